#include "driver/Screen.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "driver/UnixProgram.h"
#include "driver/Waiting.h"
#include "platform/Surface.h"

namespace tarvik::end_to_end {
namespace {

// The command that captures `bounds` and writes it to the file that follows.
std::string TakeCommand(const RECT& bounds) {
  std::ostringstream command;
  command << "import -silent -window root -crop " << bounds.right - bounds.left << 'x' << bounds.bottom - bounds.top
          << '+' << bounds.left << '+' << bounds.top << " +repage -depth 8 ";
  return command.str();
}

void Run(const std::string& command) {
  const UnixAnswer answer = RunUnix(command);
  if (answer.exitCode != 0) throw std::runtime_error("no screenshot: " + answer.output);
}

}  // namespace

Screenshot::Screenshot(const RECT& bounds) {
  const auto file =
      std::filesystem::temp_directory_path() / (L"tarvik-screen-" + std::to_wstring(GetCurrentProcessId()) + L".ppm");
  Run(TakeCommand(bounds) + "ppm:" + QuoteForUnix(file));

  // The format: "P6", width, height, the maximum value, one blank, then red, green and blue of each pixel.
  std::ifstream in(file, std::ios::binary);
  std::string kind;
  int highest = 0;
  in >> kind >> width_ >> height_ >> highest;
  in.get();
  if (kind != "P6" || highest != 255) throw std::runtime_error("a screenshot of an unknown kind");
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  const auto channel = [&](std::size_t at) { return static_cast<Color>(static_cast<unsigned char>(bytes.at(at))); };
  const std::size_t count = static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
  pixels_.reserve(count);
  for (std::size_t i = 0; i < 3 * count; i += 3)
    pixels_.push_back(channel(i) | channel(i + 1) << 8 | channel(i + 2) << 16);
  in.close();
  std::filesystem::remove(file);
}

void SavePicture(const RECT& bounds, const std::filesystem::path& file) {
  std::filesystem::create_directories(file.parent_path());
  // Captures until two pictures in a row are identical; if something moves all the time, the last one is used.
  Run("folder=$(mktemp -d)\ncd $folder\ntake() { " + TakeCommand(bounds) + R"("ppm:$1"; }
take former
for try in 1 2 3 4 5 6 7 8 9 10; do
  take shown
  cmp -s former shown && break
  mv shown former
done
[ -e shown ] || mv former shown
convert ppm:shown )" +
      QuoteForUnix(file) + "\nstatus=$?\nrm -r $folder\nexit $status");
}

int CountPixels(const PixelView& picture, Color color) {
  int count = 0;
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      if (picture.Pixel(x, y) == color) ++count;
    }
  }
  return count;
}

int CountDifferences(const PixelView& one, const PixelView& other) {
  int differences = 0;
  for (int y = 0; y < std::min(one.Height(), other.Height()); ++y) {
    for (int x = 0; x < std::min(one.Width(), other.Width()); ++x) {
      if (one.Pixel(x, y) != other.Pixel(x, y)) ++differences;
    }
  }
  return differences;
}

bool ShowsSign(const Box& box, const wchar_t* sign) {
  const Control control = box.Sign();
  if (!control) return false;
  const RECT bounds = control.Inside();
  Surface expected(bounds.right - bounds.left, bounds.bottom - bounds.top, GetSysColor(COLOR_3DFACE));
  DrawIconEx(expected.Dc(), 0, 0, LoadIconW(nullptr, sign), 0, 0, 0, nullptr, DI_NORMAL);
  GdiFlush();
  return Eventually([&] { return CountDifferences(Screenshot(bounds), expected) == 0; });
}

}  // namespace tarvik::end_to_end
