#include "platform/GdiObjects.h"

#include <windows.h>
#include <winternl.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace tarvik::testing {
namespace {

// The list of the open handles of all processes, as the system gives it.
std::vector<std::byte> ListHandles() {
  constexpr NTSTATUS tooShort = static_cast<NTSTATUS>(0xC0000004);  // STATUS_INFO_LENGTH_MISMATCH
  std::vector<std::byte> list(std::size_t{1} << 20U);
  for (;;) {
    const NTSTATUS status =
        NtQuerySystemInformation(SystemHandleInformation, list.data(), static_cast<ULONG>(list.size()), nullptr);
    if (status != tooShort) return list;
    list.resize(2 * list.size());
  }
}

}  // namespace

int CountGdiObjects() {
  return CountGdiObjects(GetCurrentProcess());
}

int CountGdiObjects(void* process) {
  if (const DWORD count = GetGuiResources(process, GR_GDIOBJECTS)) return static_cast<int>(count);

  // Wine does not count, but it keeps the table of the process where Windows keeps its own: its address stands in the
  // process environment block.
  constexpr std::size_t tablePointerOffset = 0xF8;
  constexpr std::size_t entryCount = 65536;
  constexpr std::size_t entrySize = 24;
  constexpr std::size_t typeOffset = 14;
  PROCESS_BASIC_INFORMATION information{};
  NtQueryInformationProcess(process, ProcessBasicInformation, &information, sizeof information, nullptr);
  const auto* const environment = reinterpret_cast<const std::byte*>(information.PebBaseAddress);
  const std::byte* address = nullptr;
  if (ReadProcessMemory(process, environment + tablePointerOffset, &address, sizeof address, nullptr) == 0) return 0;
  std::vector<std::byte> table(entryCount * entrySize);
  if (ReadProcessMemory(process, address, table.data(), table.size(), nullptr) == 0) return 0;
  int count = 0;
  for (std::size_t entry = 0; entry < entryCount; ++entry)
    count += table[entry * entrySize + typeOffset] != std::byte{0};
  return count;
}

int CountHandles(void* process) {
  DWORD counted = 0;
  if (GetProcessHandleCount(process, &counted) != 0 && counted != 0) return static_cast<int>(counted);

  // Wine does not count them either, but it lists them.
  const DWORD id = GetProcessId(process);
  const std::vector<std::byte> list = ListHandles();
  ULONG total = 0;
  std::memcpy(&total, list.data(), sizeof total);
  int count = 0;
  for (std::size_t i = 0; i < total; ++i) {
    SYSTEM_HANDLE_ENTRY handle{};
    std::memcpy(&handle, list.data() + offsetof(SYSTEM_HANDLE_INFORMATION, Handle) + i * sizeof handle, sizeof handle);
    count += handle.OwnerPid == id ? 1 : 0;
  }
  return count;
}

}  // namespace tarvik::testing
