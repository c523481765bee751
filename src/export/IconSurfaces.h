#pragma once

#include "export/ModMicroArt.h"
#include "platform/Surface.h"

namespace tarvik {

// The background that icons are captured over: the colour of a bitmap at the icon's transparent pixels.
inline constexpr Color surfaceBackground = white;

// The three surfaces of a capture, as pictures in memory: square, all of one size.
class IconSurfaces {
 public:
  // `size` in pixels.
  explicit IconSurfaces(int size);

  // Changes the size of all three and clears them.
  void Resize(int size);

  // Clears them to a blank icon: transparent everywhere, and black there, because any other colour under a transparent
  // pixel changes what is below the icon. Returns them, ready to capture an icon.
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
