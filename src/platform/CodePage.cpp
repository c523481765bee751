#include "platform/CodePage.h"

#include <windows.h>

#include "platform/Text.h"

namespace tarvik {
namespace {

std::wstring WideFromCodePage(std::string_view text) {
  const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), needed);
  return wide;
}

std::string CodePageFromWide(std::wstring_view wide, DWORD flags) {
  const int needed =
      WideCharToMultiByte(CP_ACP, flags, wide.data(), static_cast<int>(wide.size()), nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, flags, wide.data(), static_cast<int>(wide.size()), text.data(), needed, nullptr, nullptr);
  return text;
}

bool IsUtf8InForce() {
  return GetACP() == CP_UTF8;
}

}  // namespace

// The round trip is checked, because a code page may accept a character and return a different one.
std::optional<std::string> ToCodePage(std::string_view utf8) {
  if (IsUtf8InForce()) return std::string(utf8);
  const std::wstring wide = ToWide(utf8);
  std::string text = CodePageFromWide(wide, WC_NO_BEST_FIT_CHARS);
  if (WideFromCodePage(text) != wide) return std::nullopt;
  return text;
}

std::string ToReadableCodePage(std::string_view utf8) {
  return IsUtf8InForce() ? std::string(utf8) : CodePageFromWide(ToWide(utf8), 0);
}

std::string FromCodePage(std::string_view text) {
  return IsUtf8InForce() ? std::string(text) : ToUtf8(WideFromCodePage(text));
}

}  // namespace tarvik
