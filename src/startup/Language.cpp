#include "startup/Language.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr std::size_t codeLength = 3;

char UpperAscii(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

std::string UpperAscii(std::string text) {
  std::ranges::transform(text, text.begin(), [](char character) { return UpperAscii(character); });
  return text;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::optional<std::string_view> Pick(const Text& text, std::string_view code) {
  if (code == simplifiedChinese) return text.chs;
  if (code == traditionalChinese) return text.cht;
  if (code == english) return text.eng;
  return std::nullopt;
}

std::string ReadLanguageValue(LanguageStore& store, const std::string& name) {
  return Trimmed(store.ReadBuffer(name));
}

std::string ChooseLanguage(LanguageStore& store) {
  const std::string name = "Language";
  if (ReadLanguageValue(store, name).empty()) return std::string(english);
  return UpperAscii(store.ReadBuffer(name)).substr(0, codeLength);
}

}  // namespace tarvik
