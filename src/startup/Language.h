#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

// The code of an interface language.
using LanguageCode = std::string;

// The codes of the three languages. Any other text is not a language: it matches none of them, and windows keep their
// design texts.
inline constexpr std::string_view english = "ENG";
inline constexpr std::string_view simplifiedChinese = "CHS";
inline constexpr std::string_view traditionalChinese = "CHT";

// One text in the three languages, UTF-8. A row that lacks a language does not compile.
struct Text {
  std::string_view eng;
  std::string_view chs;
  std::string_view cht;

  consteval Text(std::string_view englishText, std::string_view simplifiedText, std::string_view traditionalText)
      : eng(englishText), chs(simplifiedText), cht(traditionalText) {}
};

// The text in the language of `code`, or nothing for any other code.
std::optional<std::string_view> Pick(const Text& text, std::string_view code);

// The same with each "%1" to "%9" of the text replaced by the value of that number in `values`. The values themselves
// are not expanded, for example a "%1" in a path.
std::optional<std::string> Compose(const Text& text, std::string_view code,
                                   std::initializer_list<std::string_view> values);

// Reads a value from the store of the interface language: returns a buffer of 260 spaces into which the value of that
// name was read, including its terminating zero. Only spaces if there is no such value, and an empty text if the store
// cannot be opened.
using ReadLanguageBuffer = std::function<std::string(const std::string& name)>;

// The named value without leading and trailing spaces; empty if there is none. The terminating zero of an existing
// value is part of it, so an existing value is never empty (deliberate: oddities 8).
std::string ReadLanguageValue(const ReadLanguageBuffer& read, const std::string& name);

// The code for the stored value "Language": "ENG" if there is none, otherwise its first three characters in upper case.
// Whether there is one is decided by the trimmed value, but the characters are taken from the untrimmed one, so a value
// with leading blanks matches no language (deliberate: oddities 7).
LanguageCode ChooseLanguage(const ReadLanguageBuffer& read);

}  // namespace tarvik
