#include "driver/SeenFiles.h"

#include <stdexcept>

#include "driver/UnixProgram.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

// For each file of the current folder, writes NAME.txt and NAME.rgba to the folder $seen.
constexpr const char* readEach = R"(
for file in *; do
  picture=$file
  case "$file" in
    *.ico|*.cur) icotool -l "$file"; icotool -x -o "$seen/picture.png" "$file"; picture=$seen/picture.png;;
    *.[jJ][pP][gG])
      identify -format '%wx%h quality %Q sampling %[jpeg:sampling-factor]\n' "$file"
      rdjpgcom -raw "$file"
      djpeg -pnm -outfile "$seen/picture.pnm" "$file"; picture=$seen/picture.pnm;;
    *.gif) giftext "$file";;
    *) identify -format '%m %wx%h\n' "bmp:$file"; picture=bmp:$file;;
  esac >"$seen/$file.txt" 2>&1
  convert "$picture" -depth 8 "rgba:$seen/$file.rgba" 2>>"$seen/$file.txt"
  echo "$file"
done
)";

std::vector<std::uint32_t> Pixels(const std::string& bytes) {
  std::vector<std::uint32_t> pixels;
  for (std::size_t i = 0; i + 3 < bytes.size(); i += 4) {
    std::uint32_t pixel = 0;
    for (std::size_t byte = 4; byte > 0; --byte) pixel = pixel << 8U | static_cast<unsigned char>(bytes[i + byte - 1]);
    pixels.push_back(pixel >> 24U != 0 ? pixel : 0);
  }
  return pixels;
}

}  // namespace

std::map<std::string, SeenFile> SeeFiles(const std::string& folder) {
  const support::TemporaryFolder seen;
  const UnixAnswer answer = RunUnix("seen=" + QuoteForUnix(ToWide(seen.Path())) + "\ncd " +
                                    QuoteForUnix(ToWide(folder)) + " || exit\n" + readEach);
  if (answer.exitCode != 0) throw std::runtime_error("the files cannot be read: " + answer.output);
  std::map<std::string, SeenFile> files;
  std::size_t start = 0;
  for (std::size_t end = 0; (end = answer.output.find('\n', start)) != std::string::npos; start = end + 1) {
    const std::string name = answer.output.substr(start, end - start);
    files[name] = {.told = support::ReadAll(seen.In(name + ".txt")),
                   .pixels = Pixels(support::ReadAll(seen.In(name + ".rgba")))};
  }
  return files;
}

}  // namespace tarvik::end_to_end
