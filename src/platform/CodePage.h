#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

// Conversions for the system's A functions. They use the current code page: UTF-8 if the system honours the program's
// manifest (Windows 10 1903 and later), otherwise the system's own, which lacks most Unicode characters.

// The text in that code page without loss; nothing if the code page lacks one of its characters.
std::optional<std::string> ToCodePage(std::string_view utf8);

// The text for display: a character that the code page lacks becomes a similar one or "?".
std::string ToReadableCodePage(std::string_view utf8);

std::string FromCodePage(std::string_view text);

}  // namespace tarvik
