#pragma once

#include "export/ModMicroArt.h"
#include "platform/Surface.h"

namespace tarvik {

// The background that icons are captured over: what a bitmap shows where its icon is transparent.
inline constexpr Color surfaceBackground = white;
// The background of an icon's image alone. The system blends an image with an alpha channel over it, and black is the
// one colour that a transparent pixel of an icon file or a cursor file may have: any other changes what lies below.
inline constexpr Color imageBackground = black;

// The three surfaces of a capture, as pictures in memory: square, all of one size.
class IconSurfaces final : public ModMicroArt::CaptureSurfaces {
 public:
  // `size` in pixels.
  explicit IconSurfaces(int size);

  // Changes the size of all three and clears them.
  void Resize(int size);

  void Clear() override;
  Surface& Mask() override { return mask_; }
  Surface& Image() override { return image_; }
  Surface& Composed() override { return composed_; }
  const Surface& Mask() const { return mask_; }
  const Surface& Image() const { return image_; }
  const Surface& Composed() const { return composed_; }

 private:
  Surface composed_;
  Surface mask_;
  Surface image_;
};

}  // namespace tarvik
