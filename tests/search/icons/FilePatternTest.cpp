#include "search/icons/FilePattern.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvik {
namespace {

struct MatchRow {
  std::string name;
  std::string pattern;
  bool matches;
};

void ExpectRows(std::initializer_list<MatchRow> rows) {
  for (const MatchRow& row : rows) {
    EXPECT_EQ(MatchesPattern(row.name, row.pattern), row.matches) << row.name << " against " << row.pattern;
  }
}

TEST(MatchesPattern, TakesAStarForAnyRunOfCharacters) {
  ExpectRows({{"a.ico", "*.ico", true},
              {".ico", "*.ico", true},
              {"a.ico.bak", "*.ico", false},
              {"a.icon", "*.ico", false},
              {"aico", "*.ico", false},
              {"", "*", true},
              {"abcabd", "*ab?", true},
              {"aXbXc", "a*b*c", true},
              {"aXbX", "a*b*c", false},
              {"abc", "***c", true},
              {"abc", "abc***", true}});
}

TEST(MatchesPattern, TakesAQuestionMarkForExactlyOneCharacter) {
  ExpectRows({{"a1.ico", "a?.ico", true},
              {"a.ico", "a?.ico", false},
              {"a12.ico", "a?.ico", false},
              {"图.ico", "?.ico", true},
              {"🎨.ico", "?.ico", true},
              {"图标.ico", "?.ico", false},
              {"", "?", false}});
}

TEST(MatchesPattern, IgnoresTheCaseOfLetters) {
  ExpectRows({{"A.ICO", "*.ico", true}, {"shell32.Dll", "SHELL??.dLL", true}, {"[.ico", "{.ico", false}});
}

TEST(MatchesPattern, MatchesAnyPartAndPassesOverEmptyOnes) {
  ExpectRows({{"a.dll", "*.ico;*.dll;", true},
              {"a.ico", "*.ico;*.dll;", true},
              {"a.exe", "*.ico;*.dll;", false},
              {"a.exe", ";;*.exe", true},
              {"", ";;", false},
              {"a", "", false}});
}

TEST(FileTypeBoxOf, IsTheBoxOfTheNamesTypeOrThatOfAllFiles) {
  EXPECT_EQ(FileTypeBoxOf("a.ico"), 0U);
  EXPECT_EQ(FileTypeBoxOf("a.b.ANI"), 1U);
  EXPECT_EQ(FileTypeBoxOf(".icl"), 2U);
  EXPECT_EQ(FileTypeBoxOf("a.Ocx"), 3U);
  EXPECT_EQ(FileTypeBoxOf("图标.dll"), 4U);
  EXPECT_EQ(FileTypeBoxOf("a.exe"), 5U);
  for (const std::string name : {"a.txt", "exe", "a.exe.bak", "a.icon", ""})
    EXPECT_EQ(FileTypeBoxOf(name), allFilesBox);
}

TEST(MatchesPattern, MatchesEveryNameWithStarDotStar) {
  ExpectRows({{"a.b", "*.*", true}, {"README", "*.*", true}, {"README", "*.ico;*.*", true}, {"README", "*.*x", false}});
}

TEST(MatchesPattern, MatchesNoUsualFileWithThePatternForNone) {
  ExpectRows({{"a.ico", "aaa.aaa", false}, {"AAA.aaa", "aaa.aaa", true}});
}

// A matcher that tries every split of the name would practically never finish this.
TEST(MatchesPattern, ComesBackFromAPatternOfManyStars) {
  std::string pattern;
  for (int i = 0; i < 100; ++i) pattern += "*a";
  EXPECT_FALSE(MatchesPattern(std::string(5000, 'a') + "b", pattern + "c"));
}

TEST(MatchesPattern, WalksOverBytesThatAreNoText) {
  EXPECT_TRUE(MatchesPattern("\xE5\x9B.ico", "??.ico"));
  EXPECT_TRUE(MatchesPattern("\xFF\x80", "*\x80"));
  EXPECT_FALSE(MatchesPattern("\xE5\x9B\xBE", "\xE5??"));
}

TEST(BuildPattern, JoinsThePartsOfTheTickedBoxesInOrder) {
  EXPECT_EQ(BuildPattern({true, false, false, false, false, false, false}), "*.ico;");
  EXPECT_EQ(BuildPattern({false, false, false, false, true, true, false}), "*.dll;*.exe;");
  EXPECT_EQ(BuildPattern({true, true, true, true, true, true, false}), "*.ico;*.ani;*.icl;*.ocx;*.dll;*.exe;");
}

TEST(BuildPattern, IsTheTypesOwnPartForOneTickedBox) {
  for (std::size_t box = 0; box < searchedTypes.size(); ++box) {
    FileTypeChecks checks{};
    checks.at(box) = true;
    EXPECT_EQ(BuildPattern(checks), searchedTypes.at(box).part);
  }
}

TEST(BuildPattern, MatchesNothingWithNoBoxTicked) {
  EXPECT_EQ(BuildPattern({}), "aaa.aaa");
}

TEST(BuildPattern, MatchesEverythingWhileAllFilesIsTicked) {
  EXPECT_EQ(BuildPattern({false, false, false, false, false, false, true}), "*.*");
  EXPECT_EQ(BuildPattern({false, true, true, true, true, true, true}), "*.*");
}

TEST(WithAllFilesRule, TicksTheOtherBoxesWithAllFiles) {
  const FileTypeChecks all{true, true, true, true, true, true, true};
  EXPECT_EQ(WithAllFilesRule({false, true, false, false, false, false, true}), all);
}

TEST(WithAllFilesRule, LeavesTheBoxesAsTheyAreWithoutAllFiles) {
  const FileTypeChecks some{true, false, true, true, true, true, false};
  EXPECT_EQ(WithAllFilesRule(some), some);
}

}  // namespace
}  // namespace tarvik
