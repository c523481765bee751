#pragma once

#include <windows.h>

#include <shellapi.h>

#include <cstddef>
#include <string>
#include <vector>

#include "export/IconSurfaces.h"
#include "platform/Handles.h"

namespace tarvik::bench {

// Draws the three pictures of an icon at `size` pixels.
inline void DrawPictures(HICON icon, int size, const IconSurfaces& surfaces) {
  const auto draw = [&](const Surface& surface, UINT part) {
    DrawIconEx(surface.Dc(), 0, 0, icon, size, size, 0, nullptr, part);
  };
  draw(surfaces.Mask(), DI_MASK);
  draw(surfaces.Image(), DI_IMAGE);
  draw(surfaces.Composed(), DI_NORMAL);
  GdiFlush();
}

// Extracts icon `index` (from 0) from the file by the bare platform calls and draws its three pictures.
inline void DrawBareIcon(const std::string& path, int index, int size, const IconSurfaces& surfaces) {
  HICON large = nullptr;
  ExtractIconExA(path.c_str(), index, &large, nullptr, 1);
  const IconHandle icon(large);
  DrawPictures(icon.get(), size, surfaces);
}

// Extracts `count` icons from `first` on with one call.
inline std::vector<IconHandle> TakeBareIcons(const std::string& path, int first, int count) {
  std::vector<HICON> handles(static_cast<std::size_t>(count));
  std::vector<UINT> numbers(handles.size());
  PrivateExtractIconsA(path.c_str(), first, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON), handles.data(),
                       numbers.data(), static_cast<UINT>(count), LR_DEFAULTCOLOR);
  std::vector<IconHandle> icons;
  for (const HICON handle : handles) icons.emplace_back(handle);
  return icons;
}

}  // namespace tarvik::bench
