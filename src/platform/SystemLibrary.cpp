#include "platform/SystemLibrary.h"

#include "base/FolderPath.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// LOAD_LIBRARY_SEARCH_SYSTEM32, which the headers hide from programs that also run on older systems.
constexpr DWORD searchSystemFolder = 0x00000800;

}  // namespace

HMODULE LoadSystemLibrary(const char* name) {
  const HMODULE library = LoadLibraryExW(ToWide(name).c_str(), nullptr, searchSystemFolder);
  if (library != nullptr || GetLastError() != ERROR_INVALID_PARAMETER) return library;
  return LoadSystemLibraryByPath(name);
}

HMODULE LoadSystemLibraryByPath(const char* name) {
  // The flag makes the system search the DLL's own folder for its dependencies first, not the program's.
  return LoadLibraryExW(ToWide(JoinPath(SystemFolder(), name)).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

FARPROC FindSystemFunction(const char* library, const char* name) {
  const HMODULE module = LoadSystemLibrary(library);
  return module != nullptr ? GetProcAddress(module, name) : nullptr;
}

}  // namespace tarvik
