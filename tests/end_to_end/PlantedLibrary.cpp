// A DLL that must never be loaded. If it is, it leaves an empty file in its folder: its own path and ".loaded".

#include <windows.h>

#include <array>
#include <cwchar>

#include "platform/Handles.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* /*reserved*/) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  constexpr const wchar_t* ending = L".loaded";
  std::array<wchar_t, 1024> path{};
  const DWORD room = static_cast<DWORD>(path.size() - std::wcslen(ending) - 1);
  const DWORD length = GetModuleFileNameW(module, path.data(), room);
  std::wcscpy(&path[length], ending);
  const tarvik::FileHandle mark(
      CreateFileW(path.data(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return TRUE;
}
