#pragma once

#include "export/ModMicroArt.h"
#include "platform/Surface.h"

namespace tarvik {

// The background that icons are captured over: what a bitmap shows where its icon is transparent.
inline constexpr Color surfaceBackground = white;

// The three surfaces of a capture, as pictures in memory: square, all of one size.
class IconSurfaces {
 public:
  // `size` in pixels.
  explicit IconSurfaces(int size);

  // Changes the size of all three and clears them.
  void Resize(int size);

  // Makes them those of a blank icon: transparent everywhere, and black there, because any other colour under a
  // transparent pixel changes what lies below the icon. Returns them, to take an icon into.
  ModMicroArt::CaptureSurfaces Clear();
  const Surface& Mask() const { return mask_; }
  const Surface& Image() const { return image_; }
  const Surface& Composed() const { return composed_; }

 private:
  Surface composed_;
  Surface mask_;
  Surface image_;
};

}  // namespace tarvik
