#include "base/Characters.h"

namespace tarvik {
namespace {

// The length that a first byte announces; 1 for a byte that cannot be a first one.
std::size_t AnnouncedLength(unsigned char first) {
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 1;
}

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::size_t FirstCharacterLength(std::string_view text) {
  if (text.empty()) return 0;
  const std::size_t length = AnnouncedLength(static_cast<unsigned char>(text[0]));
  if (length > text.size()) return 1;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[i])) return 1;
  }
  return length;
}

std::string_view FirstCharacters(std::string_view text, int count) {
  std::size_t length = 0;
  for (int i = 0; i < count && length < text.size(); ++i) length += FirstCharacterLength(text.substr(length));
  return text.substr(0, length);
}

}  // namespace tarvik
