#pragma once

namespace tarvik {

// The letters A to Z in the other case; any other byte, including those of longer UTF-8 characters, is unchanged.
constexpr char LowerAscii(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}
constexpr char UpperAscii(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

}  // namespace tarvik
