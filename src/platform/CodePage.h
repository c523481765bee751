#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

// Text for the calls of the system that end in A, and from them. They work in the code page in force: UTF-8 if the
// system heeds the program's manifest (Windows 10 1903 and later), otherwise the system's own, which lacks most
// characters of the world.

// The text in that code page, the same character for character; nothing if the code page lacks one of them.
std::optional<std::string> ToCodePage(std::string_view utf8);

// The text for people to read: a character that the code page lacks becomes a similar one or "?".
std::string ToReadableCodePage(std::string_view utf8);

std::string FromCodePage(std::string_view text);

}  // namespace tarvik
