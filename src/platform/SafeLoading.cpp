#include "platform/SafeLoading.h"

#include <windows.h>

namespace tarvik {
namespace {

constexpr DWORD searchSystemFolder = 0x00000800;

using SetDirectories = BOOL(WINAPI*)(DWORD flags);

}  // namespace

void LoadLibrariesFromSystemFolderOnly() {
  SetDllDirectoryW(L"");
  // Looked up by name, so that the program still starts on systems that lack it.
  const FARPROC address = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
  if (address != nullptr) reinterpret_cast<SetDirectories>(reinterpret_cast<void*>(address))(searchSystemFolder);
}

}  // namespace tarvik
