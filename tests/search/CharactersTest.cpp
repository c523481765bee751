#include "search/Characters.h"

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
