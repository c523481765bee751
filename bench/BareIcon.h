#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>

#include "export/IconSurfaces.h"
#include "platform/Handles.h"

namespace tarvik::bench {

// Takes icon `index` (from 0) out of the file by the bare platform calls and draws its three pictures, `size` pixels on
// a side.
inline void DrawBareIcon(const std::string& path, int index, int size, const IconSurfaces& surfaces) {
  HICON large = nullptr;
  ExtractIconExA(path.c_str(), index, &large, nullptr, 1);
  const IconHandle icon(large);
  const auto draw = [&](const Surface& surface, UINT part) {
    DrawIconEx(surface.Dc(), 0, 0, icon.get(), size, size, 0, nullptr, part);
  };
  draw(surfaces.Mask(), DI_MASK);
  draw(surfaces.Image(), DI_IMAGE);
  draw(surfaces.Composed(), DI_NORMAL);
  GdiFlush();
}

}  // namespace tarvik::bench
