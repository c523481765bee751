#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <span>

#include "base/DisplayScale.h"
#include "base/DrawSurface.h"
#include "base/NonCopyable.h"
#include "base/PixelView.h"
#include "base/Point.h"

namespace tarvik {

// A picture in memory that GDI draws into and the program reads: a 24-bit DIB section, top row first, with its device
// context. Pixels are read as 0x00BBGGRR directly from memory. It is the program's only DrawSurface.
class Surface final : public DrawSurface, public PixelView, NonCopyable {
 public:
  // Both sides in pixels, 1 or more. Throws OutOfMemoryError if memory runs out.
  Surface(int width, int height, Color background);
  ~Surface() override;

  HDC Dc() const;
  int Width() const override { return width_; }
  int Height() const override { return height_; }
  Color Pixel(int x, int y) const override;
  void CopyPixels(std::span<Color> pixels) const override;

  // Makes every pixel `color`.
  void Clear(Color color);
  // Draws `source` over it, aligned at the top-left corner, as far as both extend; `operation` is one of GDI's ternary
  // raster operations (SRCCOPY, SRCAND, SRCINVERT ...).
  void Combine(const Surface& source, DWORD operation);
  // Copies the picture over it, aligned at the top-left corner, as far as both extend.
  void Copy(const PixelView& picture);
  // Fills it with a part of `picture` at a display's scale (see Enlarge): the part whose top-left corner is at
  // `corner`, in display pixels.
  void FillEnlarged(const Surface& picture, const DisplayScale& scale, Point corner);
  // Changes the size. The content is kept where old and new size overlap; the rest becomes `background`.
  void Resize(int width, int height, Color background);

 private:
  struct Section;

  int width_ = 0;
  int height_ = 0;
  std::unique_ptr<Section> section_;
};

}  // namespace tarvik
