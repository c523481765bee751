#include "startup/Language.h"

#include <algorithm>

#include "base/AsciiCase.h"

namespace tarvik {
namespace {

constexpr std::size_t codeLength = 3;

std::string UpperCase(std::string text) {
  std::ranges::transform(text, text.begin(), UpperAscii);
  return text;
}

std::string Trim(const std::string& text) {
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

std::optional<std::string> Compose(const Text& text, std::string_view code,
                                   std::initializer_list<std::string_view> values) {
  const auto pattern = Pick(text, code);
  if (!pattern) return std::nullopt;
  std::string composed;
  for (std::size_t i = 0; i < pattern->size(); ++i) {
    const bool marks = (*pattern)[i] == '%' && i + 1 < pattern->size();
    const int index = marks ? (*pattern)[i + 1] - '1' : -1;
    if (index < 0 || static_cast<std::size_t>(index) >= values.size()) {
      composed += (*pattern)[i];
      continue;
    }
    composed += *(values.begin() + index);
    ++i;
  }
  return composed;
}

std::string ReadLanguageValue(const ReadLanguageBuffer& read, const std::string& name) {
  return Trim(read(name));
}

LanguageCode ChooseLanguage(const ReadLanguageBuffer& read) {
  const std::string name = "Language";
  if (ReadLanguageValue(read, name).empty()) return std::string(english);
  return UpperCase(read(name)).substr(0, codeLength);
}

}  // namespace tarvik
