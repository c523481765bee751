#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarvik::end_to_end {

// A picture file as programs that nobody here wrote see it: icotool, djpeg, rdjpgcom, giftext, ImageMagick.
struct SeenFile {
  std::string told;                   // what they say of it, in lines
  std::vector<std::uint32_t> pixels;  // 0xAABBGGRR, from the top-left corner; 0 where it is transparent
};

// All files of a folder, by their names, each read as what its extension says; where that is no extension of an
// encoder's, as a bitmap. A file that cannot be read has no pixels.
std::map<std::string, SeenFile> SeeFiles(const std::string& folder);

}  // namespace tarvik::end_to_end
