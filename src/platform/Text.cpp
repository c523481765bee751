#include "platform/Text.h"

#include <windows.h>

namespace tarvik {

std::wstring ToWide(std::string_view utf8) {
  const int needed = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
  std::wstring utf16(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), utf16.data(), needed);
  return utf16;
}

std::string ToUtf8(std::wstring_view utf16) {
  const int needed =
      WideCharToMultiByte(CP_UTF8, 0, utf16.data(), static_cast<int>(utf16.size()), nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, utf16.data(), static_cast<int>(utf16.size()), utf8.data(), needed, nullptr, nullptr);
  return utf8;
}

}  // namespace tarvik
