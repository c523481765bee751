#pragma once

#include <windows.h>

#include <shlobj.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "platform/Text.h"

namespace tarvik::support {

// The memory block of WM_DROPFILES for these files and folders.
inline std::vector<std::byte> DroppedBlock(const std::vector<std::string>& paths) {
  std::wstring names;
  for (const std::string& path : paths) names += ToWide(path) + L'\0';
  names += L'\0';
  DROPFILES start{};
  start.pFiles = sizeof start;
  start.fWide = TRUE;
  std::vector<std::byte> block(sizeof start + names.size() * sizeof(wchar_t));
  std::memcpy(block.data(), &start, sizeof start);
  std::memcpy(block.data() + sizeof start, names.data(), names.size() * sizeof(wchar_t));
  return block;
}

}  // namespace tarvik::support
