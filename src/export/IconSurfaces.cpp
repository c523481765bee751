#include "export/IconSurfaces.h"

namespace tarvik {

IconSurfaces::IconSurfaces(int size)
    : composed_(size, size, surfaceBackground),
      mask_(size, size, surfaceBackground),
      image_(size, size, imageBackground) {}

void IconSurfaces::Resize(int size) {
  for (Surface* surface : {&composed_, &mask_, &image_}) surface->Resize(size, size, surfaceBackground);
  Clear();
}

void IconSurfaces::Clear() {
  composed_.Clear(surfaceBackground);
  mask_.Clear(surfaceBackground);
  image_.Clear(imageBackground);
}

}  // namespace tarvik
