#pragma once

#include <windows.h>

#include <filesystem>
#include <vector>

#include "base/PixelView.h"
#include "driver/Program.h"

namespace tarvik::end_to_end {

// What a part of the screen shows, as pixels.
class Screenshot : public PixelView {
 public:
  // Takes the picture of `place`, in screen pixels, which must lie on the screen. It is taken by a program of its own,
  // because no process may read another one's pixels here.
  explicit Screenshot(const RECT& place);

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

// Saves a picture of `place`, in screen pixels, for people to look at, once it no longer changes. The file's ending
// says which kind of picture; its folder is made where it is not there.
void SavePicture(const RECT& place, const std::filesystem::path& file);

// How many pixels have that colour.
int CountPixels(const PixelView& picture, Color color);

// How many pixels of the two differ, where both have them.
int CountDifferences(const PixelView& one, const PixelView& other);

// Whether the box shows that sign of the system (IDI_INFORMATION ...), compared pixel by pixel.
bool ShowsSign(const Box& box, const wchar_t* sign);

}  // namespace tarvik::end_to_end
