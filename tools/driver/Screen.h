#pragma once

#include <windows.h>

#include <filesystem>
#include <vector>

#include "base/PixelView.h"
#include "driver/Program.h"

namespace tarvik::end_to_end {

// The pixels of a part of the screen.
class Screenshot : public PixelView {
 public:
  // Captures `bounds`, in screen pixels, which must lie on the screen. An external program makes the capture, because
  // here no process can read another one's pixels.
  explicit Screenshot(const RECT& bounds);

  int Width() const override { return width_; }
  int Height() const override { return height_; }
  Color Pixel(int x, int y) const override {
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
  }

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<Color> pixels_;
};

// Saves a picture of `bounds`, in screen pixels, for viewing, after it has stopped changing. The file's extension
// chooses the format; its folder is created if necessary.
void SavePicture(const RECT& bounds, const std::filesystem::path& file);

// The number of pixels of that colour.
int CountPixels(const PixelView& picture, Color color);

// The number of differing pixels in the area common to both.
int CountDifferences(const PixelView& one, const PixelView& other);

// Whether the box shows that icon of the system (IDI_INFORMATION ...), compared pixel by pixel.
bool ShowsSign(const Box& box, const wchar_t* sign);

}  // namespace tarvik::end_to_end
