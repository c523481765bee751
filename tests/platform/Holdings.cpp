#include "platform/Holdings.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/GdiObjects.h"

namespace tarvik::support {
namespace {

// The list of all handles of the system, with only the fields that are read here.
struct HandleEntry {
  void* object;
  ULONG_PTR process;
  ULONG_PTR handle;
  ULONG access;
  USHORT trace;
  USHORT type;
  ULONG attributes;
  ULONG reserved;
};
struct HandleList {
  ULONG_PTR count;
  ULONG_PTR reserved;
  HandleEntry entries[1];
};

int CountKernelHandles(HANDLE process) {
  DWORD counted = 0;
  if (GetProcessHandleCount(process, &counted) != FALSE && counted != 0) return static_cast<int>(counted);

  // Wine does not count handles per process, but lists all of them. The headers do not declare that list.
  using Query = NTSTATUS(NTAPI*)(ULONG what, void* answer, ULONG size, ULONG* needed);
  constexpr ULONG extendedHandleInformation = 64;
  const auto query = reinterpret_cast<Query>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
  std::vector<std::byte> list(1 << 20);
  while (query(extendedHandleInformation, list.data(), static_cast<ULONG>(list.size()), nullptr) < 0)
    list.resize(list.size() * 2);
  const auto& handles = *reinterpret_cast<const HandleList*>(list.data());
  const ULONG_PTR id = GetProcessId(process);
  return static_cast<int>(std::count_if(handles.entries, handles.entries + handles.count,
                                        [id](const HandleEntry& entry) { return entry.process == id; }));
}

int CountUserHandles(HANDLE process) {
  if (const DWORD count = GetGuiResources(process, GR_USEROBJECTS)) return static_cast<int>(count);

  // Wine does not count USER handles. A handle's lower half is its position in one table, its upper half says how often
  // that position was used. A position is used for the first time only if no older one is free; then all positions are
  // occupied, by the probes and by other handles.
  std::vector<HMENU> probes;
  const auto number = [&probes] { return reinterpret_cast<ULONG_PTR>(probes.back()); };
  do probes.push_back(CreateMenu());
  while (probes.back() != nullptr && HIWORD(number()) != 1);
  const int positions = LOWORD(number()) / 2;  // positions are even numbers
  for (const HMENU probe : probes) DestroyMenu(probe);
  return positions - static_cast<int>(probes.size());
}

std::int64_t UsedBytes(HANDLE process) {
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(process, &counters, sizeof counters);
  return static_cast<std::int64_t>(counters.WorkingSetSize);  // Wine fills in no other counter
}

}  // namespace

Holdings HeldBy(HANDLE process) {
  return {.gdiObjects = CountGdiObjects(process),
          .kernelHandles = CountKernelHandles(process),
          .userHandles = CountUserHandles(process),
          .bytes = UsedBytes(process)};
}

int CountMappedViews(HANDLE process) {
  int views = 0;
  const std::byte* address = nullptr;
  MEMORY_BASIC_INFORMATION region;
  while (VirtualQueryEx(process, address, &region, sizeof(region)) != 0) {
    if (region.Type == MEM_MAPPED && region.BaseAddress == region.AllocationBase) ++views;
    address = static_cast<const std::byte*>(region.BaseAddress) + region.RegionSize;
  }
  return views;
}

}  // namespace tarvik::support
