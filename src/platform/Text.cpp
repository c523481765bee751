#include "platform/Text.h"

#include <windows.h>

namespace tarvik {

std::wstring ToWide(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  std::wstring utf16(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, utf16.data(), static_cast<int>(utf16.size()));
  return utf16;
}

std::string ToUtf8(std::wstring_view utf16) {
  const int length = static_cast<int>(utf16.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, utf16.data(), length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, utf16.data(), length, utf8.data(), needed, nullptr, nullptr);
  return utf8;
}

}  // namespace tarvik
