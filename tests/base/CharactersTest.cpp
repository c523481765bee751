#include "base/Characters.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(FirstCharacters, CountsCharactersOfEachLength) {
  EXPECT_EQ(FirstCharacters("aé图🎨z", 4), "aé图🎨");
  EXPECT_EQ(FirstCharacters("aé图🎨z", 3), "aé图");
  EXPECT_EQ(FirstCharacters("abc", 0), "");
}

TEST(FirstCharacters, GivesAShorterTextWhole) {
  EXPECT_EQ(FirstCharacters("图", 20), "图");
  EXPECT_EQ(FirstCharacters("", 20), "");
}

TEST(FirstCharacterLength, IsToldByTheFirstByte) {
  const struct {
    std::string_view text;
    std::size_t length;
  } rows[] = {{"\x7F\x80\x80\x80", 1}, {"\xBF\x80\x80\x80", 1}, {"\xC1\x80\x80\x80", 1}, {"\xC2\x80\x80\x80", 2},
              {"\xDF\x80\x80\x80", 2}, {"\xE0\x80\x80\x80", 3}, {"\xEF\x80\x80\x80", 3}, {"\xF0\x80\x80\x80", 4},
              {"\xF4\x80\x80\x80", 4}, {"\xF5\x80\x80\x80", 1}};
  for (const auto& row : rows) EXPECT_EQ(FirstCharacterLength(row.text), row.length) << row.text;
}

TEST(FirstCharacterLength, TakesAByteThatStartsNoWholeCharacterAsOne) {
  EXPECT_EQ(FirstCharacterLength("\x80\x80"), 1U);
  EXPECT_EQ(FirstCharacterLength("\xE5\x9B"), 1U);
  EXPECT_EQ(FirstCharacterLength("\xE5zz"), 1U);
  EXPECT_EQ(FirstCharacterLength("\xC0\x80"), 1U);
  EXPECT_EQ(FirstCharacterLength("\xFF"), 1U);
  EXPECT_EQ(FirstCharacterLength(""), 0U);
}

}  // namespace
}  // namespace tarvik
