#include "platform/Surface.h"

#include <algorithm>
#include <utility>

#include "base/Enlargement.h"
#include "base/NonCopyable.h"
#include "base/PixelCopy.h"
#include "base/RuntimeError.h"
#include "platform/Handles.h"

namespace tarvik {
namespace {

// DIB rows are padded to whole 4-byte words.
std::size_t RowBytes(int width) {
  return (static_cast<std::size_t>(width) * bytesPerPixel + 3) / 4 * 4;
}

Color ColorAt(const std::uint8_t* pixel) {
  return pixel[2] | Color{pixel[1]} << 8U | Color{pixel[0]} << 16U;
}

void SetColor(std::uint8_t* pixel, Color color) {
  pixel[0] = BlueOf(color);
  pixel[1] = GreenOf(color);
  pixel[2] = RedOf(color);
}

}  // namespace

// The DIB section, selected into a device context of its own for the lifetime of both.
struct Surface::Section : NonCopyable {
  Section(int width, int height) : dc(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* memory = nullptr;
    bitmap.reset(CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &memory, nullptr, 0));
    if (!dc || !bitmap) throw OutOfMemoryError();
    bits = static_cast<std::uint8_t*>(memory);
    former = SelectObject(dc.get(), bitmap.get());
  }
  ~Section() { SelectObject(dc.get(), former); }

  BitmapHandle bitmap;
  MemoryDc dc;
  std::uint8_t* bits = nullptr;  // owned by the bitmap
  HGDIOBJ former = nullptr;
};

Surface::Surface(int width, int height, Color background)
    : width_(width), height_(height), section_(std::make_unique<Section>(width, height)) {
  Clear(background);
}

Surface::~Surface() = default;

HDC Surface::Dc() const {
  return section_->dc.get();
}

Color Surface::Pixel(int x, int y) const {
  GdiFlush();
  return ColorAt(section_->bits + RowBytes(width_) * static_cast<std::size_t>(y) +
                 static_cast<std::size_t>(x) * bytesPerPixel);
}

void Surface::CopyPixels(std::span<Color> pixels) const {
  GdiFlush();
  const std::uint8_t* row = section_->bits;
  auto next = pixels.begin();
  for (int y = 0; y < height_; ++y, row += RowBytes(width_)) {
    const std::uint8_t* pixel = row;
    for (int x = 0; x < width_; ++x, pixel += bytesPerPixel) *next++ = ColorAt(pixel);
  }
}

void Surface::Clear(Color color) {
  GdiFlush();
  const std::size_t rowBytes = RowBytes(width_);
  std::uint8_t* const first = section_->bits;
  for (int x = 0; x < width_; ++x) SetColor(first + static_cast<std::size_t>(x) * bytesPerPixel, color);
  for (int y = 1; y < height_; ++y) std::copy_n(first, rowBytes, first + rowBytes * static_cast<std::size_t>(y));
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the picture
void Surface::Combine(const Surface& source, DWORD operation) {
  BitBlt(Dc(), 0, 0, std::min(width_, source.width_), std::min(height_, source.height_), source.Dc(), 0, 0, operation);
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the picture
void Surface::Copy(const PixelView& picture) {
  const PixelCopy copy(picture);
  const auto width = static_cast<std::size_t>(std::min(width_, copy.Width()));
  GdiFlush();
  std::uint8_t* row = section_->bits;
  for (int y = 0; y < std::min(height_, copy.Height()); ++y, row += RowBytes(width_)) {
    std::uint8_t* pixel = row;
    for (const Color color : copy.Row(y).first(width)) {
      SetColor(pixel, color);
      pixel += bytesPerPixel;
    }
  }
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the picture
void Surface::FillEnlarged(const Surface& picture, const DisplayScale& scale, Point corner) {
  GdiFlush();
  Enlarge({picture.section_->bits, RowBytes(picture.width_), picture.width_, picture.height_}, scale, corner,
          {section_->bits, RowBytes(width_), width_, height_});
}

void Surface::Resize(int width, int height, Color background) {
  if (width == width_ && height == height_) return;
  Surface resized(width, height, background);
  resized.Combine(*this, SRCCOPY);
  std::swap(width_, resized.width_);
  std::swap(height_, resized.height_);
  std::swap(section_, resized.section_);
}

}  // namespace tarvik
