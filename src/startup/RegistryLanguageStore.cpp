#include "startup/RegistryLanguageStore.h"

#include <windows.h>

#include "platform/CodePage.h"
#include "platform/Handles.h"

namespace tarvik {
namespace {

// Read control and the rights to query and set values, to create and list sub-keys, to be notified and to create links.
// For an account without write access the key does not open, and the program is in English (deliberate: oddities 9).
constexpr REGSAM accessRights = READ_CONTROL | KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_CREATE_SUB_KEY |
                                KEY_ENUMERATE_SUB_KEYS | KEY_NOTIFY | KEY_CREATE_LINK;
static_assert(accessRights == 0x2003F);

constexpr DWORD bufferSize = 260;

}  // namespace

std::string ReadRegistryLanguage(const std::string& name) {
  HKEY opened = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, registryLanguageKey, 0, accessRights, &opened) != ERROR_SUCCESS) return {};
  const RegistryKey owner(opened);

  std::string buffer(bufferSize, ' ');
  DWORD size = bufferSize;
  // The result is not needed: without such a value the buffer stays blank.
  RegQueryValueExA(opened, ToReadableCodePage(name).c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(buffer.data()),
                   &size);
  return FromCodePage(buffer);
}

}  // namespace tarvik
