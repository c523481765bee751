#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarvik::end_to_end {

// A picture file as independent programs read it: icotool, djpeg, rdjpgcom, giftext, ImageMagick.
struct SeenFile {
  std::string told;                   // their output, in lines
  std::vector<std::uint32_t> pixels;  // 0xAABBGGRR, from the top-left corner; 0 for transparent pixels
};

// All files of a folder by their names, each read in the format of its extension. A file without an encoder's extension
// is read as a bitmap. A file that cannot be read has no pixels.
std::map<std::string, SeenFile> SeeFiles(const std::string& folder);

}  // namespace tarvik::end_to_end
