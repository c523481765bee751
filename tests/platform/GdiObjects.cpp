#include "platform/GdiObjects.h"

#include <winternl.h>

#include <cstddef>

namespace tarvik::support {

int CountGdiObjects() {
  return CountGdiObjects(GetCurrentProcess());
}

int CountGdiObjects(HANDLE process) {
  if (const DWORD count = GetGuiResources(process, GR_GDIOBJECTS)) return static_cast<int>(count);

  // Wine does not count them, but keeps the GDI handle table of the process where Windows does: its address is in the
  // process environment block.
  constexpr std::size_t tablePointerOffset = 0xF8;
  constexpr std::size_t entryCount = 65536;
  constexpr std::size_t entrySize = 24;
  constexpr std::size_t typeOffset = 14;
  PROCESS_BASIC_INFORMATION information{};
  NtQueryInformationProcess(process, ProcessBasicInformation, &information, sizeof information, nullptr);
  const std::byte* table = nullptr;
  const auto* const environment = reinterpret_cast<const std::byte*>(information.PebBaseAddress);
  ReadProcessMemory(process, environment + tablePointerOffset, &table, sizeof table, nullptr);
  std::vector<std::byte> entries(entryCount * entrySize);
  ReadProcessMemory(process, table, entries.data(), entries.size(), nullptr);
  int count = 0;
  for (std::size_t entry = 0; entry < entryCount; ++entry)
    count += entries[entry * entrySize + typeOffset] != std::byte{0};
  return count;
}

NoGdiObjects::NoGdiObjects() {
  while (const HBITMAP bitmap = CreateBitmap(1, 1, 1, 1, nullptr)) bitmaps_.emplace_back(bitmap);
}

}  // namespace tarvik::support
