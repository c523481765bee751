#include "export/IconSurfaces.h"

namespace tarvik {

IconSurfaces::IconSurfaces(int size)
    : composed_(size, size, surfaceBackground),
      mask_(size, size, surfaceBackground),
      image_(size, size, surfaceBackground) {}

void IconSurfaces::Resize(int size) {
  for (Surface* surface : {&composed_, &mask_, &image_}) surface->Resize(size, size, surfaceBackground);
  Clear();
}

ModMicroArt::CaptureSurfaces IconSurfaces::Clear() {
  composed_.Clear(surfaceBackground);
  mask_.Clear(white);
  image_.Clear(black);
  return {mask_, image_, composed_};
}

}  // namespace tarvik
