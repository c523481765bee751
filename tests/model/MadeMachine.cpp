#include "model/MadeMachine.h"

#include <windows.h>

#include "model/Model.h"
#include "platform/Surface.h"

namespace tarvik::model {
namespace {

// Draws the icon's opaque pixels in two rectangles, above and below the edge of its transparent corner.
class MadeIcon final : public ExtractedIcon {
 public:
  MadeIcon(const MadeFile& file, int index, bool isAnimation) : file_(file), index_(index), isAnimation_(isAnimation) {}

  bool Draw(tarvik::DrawSurface& surface, Point corner, int size, int step, DrawPart part) override {
    if (step >= StepBound()) return false;
    const HDC dc = static_cast<Surface&>(surface).Dc();
    const int edge = size / 4;
    if (part != DrawPart::Normal) {
      const RECT transparent{corner.x, corner.y, corner.x + edge, corner.y + edge};
      FillRect(dc, &transparent,
               static_cast<HBRUSH>(GetStockObject(part == DrawPart::Mask ? WHITE_BRUSH : BLACK_BRUSH)));
    }
    const IconLook look{file_.id, isAnimation_ ? step : index_};
    DrawPixels(dc, corner, {edge, 0, size, edge}, size, look, part);
    DrawPixels(dc, corner, {0, edge, size, size}, size, look, part);
    return true;
  }
  int StepBound() const override { return isAnimation_ ? file_.icons : 1; }

 private:
  static void DrawPixels(HDC dc, Point corner, const RECT& bounds, int size, const IconLook& look, DrawPart part) {
    const int width = bounds.right - bounds.left;
    const int height = bounds.bottom - bounds.top;
    std::vector<Pixel> pixels;
    pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = bounds.top; y < bounds.bottom; ++y) {
      for (int x = bounds.left; x < bounds.right; ++x) {
        const Pixel color = part == DrawPart::Mask ? blackPixel : ColorAt(look, size, x, y);
        pixels.push_back((color & 0xFFU) << 16 | (color & 0xFF00U) | color >> 16);
      }
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    SetDIBitsToDevice(dc, corner.x + bounds.left, corner.y + bounds.top, static_cast<DWORD>(width),
                      static_cast<DWORD>(height), 0, 0, 0, static_cast<UINT>(height), pixels.data(), &info,
                      DIB_RGB_COLORS);
  }

  MadeFile file_;
  int index_;
  bool isAnimation_;
};

}  // namespace

std::unique_ptr<ExtractedIcon> MadeFolders::Extract(const std::string& path, int index) {
  const auto file = disk_.Find(path);
  const bool isAnimation = IsAnimation(path);
  if (!file || index >= (isAnimation ? 1 : file->icons)) return nullptr;
  return std::make_unique<MadeIcon>(*file, index, isAnimation);
}

std::vector<WalkedFolder> MadeFolders::WalkedFolders(const std::string& folder) {
  std::vector<WalkedFolder> walked;
  for (const std::string& path : disk_.SubFolders(folder)) walked.push_back({path});
  return walked;
}

bool MadeFiles::Open(const std::string& path, ReadOnlyFile /*readOnly*/) {
  path_ = path;
  if (IsRefusedPath(path)) return false;
  written[path].clear();
  return true;
}

bool MadeFiles::Write(std::span<const std::byte> bytes) {
  Bytes& file = written[path_];
  for (const std::byte value : bytes) file.push_back(std::to_integer<std::uint8_t>(value));
  return true;
}

bool MadeFiles::Close() {
  path_.clear();
  return true;
}

}  // namespace tarvik::model
