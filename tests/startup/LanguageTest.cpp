#include "startup/Language.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

namespace tarvik {
namespace {

// The values as the platform reads them: into a buffer of 260 spaces, with the terminating zero.
struct FakeLanguageStore {
  std::string operator()(const std::string& name) const {
    if (!opens) return {};
    std::string buffer(260, ' ');
    const auto value = values.find(name);
    if (value != values.end()) buffer.replace(0, value->second.size() + 1, value->second + '\0');
    return buffer;
  }

  bool opens = true;
  std::map<std::string, std::string> values;
};

std::string LanguageOf(const std::string& value) {
  FakeLanguageStore store;
  store.values["Language"] = value;
  return ChooseLanguage(store);
}

TEST(ChooseLanguage, IsEnglishWithoutAValue) {
  FakeLanguageStore store;
  store.values["Tongue"] = "CHS";
  EXPECT_EQ(ChooseLanguage(store), "ENG");
}

TEST(ChooseLanguage, IsEnglishWhenTheStoreDoesNotOpen) {
  FakeLanguageStore store;
  store.values["Language"] = "CHS";
  store.opens = false;
  EXPECT_EQ(ChooseLanguage(store), "ENG");
}

TEST(ChooseLanguage, TakesTheFirstThreeCharactersInUpperCase) {
  EXPECT_EQ(LanguageOf("chs"), "CHS");
  EXPECT_EQ(LanguageOf("English"), "ENG");
  EXPECT_EQ(LanguageOf("CHT-TW"), "CHT");
  EXPECT_EQ(LanguageOf("CHT  "), "CHT");
}

TEST(ChooseLanguage, LeavesAnUnknownLanguageAsItStands) {
  EXPECT_EQ(LanguageOf("Chinese"), "CHI");
}

TEST(ChooseLanguage, DoesNotTrimTheCharactersItTakes) {
  EXPECT_EQ(LanguageOf(" chs"), " CH");
  EXPECT_EQ(LanguageOf("  CHT  "), "  C");
}

TEST(ChooseLanguage, TakesAnEmptyValueForOneThatMatchesNoLanguage) {
  EXPECT_EQ(LanguageOf(""), std::string("\0  ", 3));
}

TEST(ReadLanguageValue, TrimsSpacesAndKeepsTheTerminatingZero) {
  FakeLanguageStore store;
  store.values["Language"] = "  CHT ";
  EXPECT_EQ(ReadLanguageValue(store, "Language"), std::string("CHT \0", 5));
}

TEST(ReadLanguageValue, IsEmptyWithoutAValueAndOnlyThen) {
  FakeLanguageStore store;
  EXPECT_EQ(ReadLanguageValue(store, "Language"), "");
  store.values["Language"] = "";
  EXPECT_EQ(ReadLanguageValue(store, "Language"), std::string(1, '\0'));
  store.opens = false;
  EXPECT_EQ(ReadLanguageValue(store, "Language"), "");
}

constexpr Text greeting{"Hello %1", "你好 %1", "妳好 %1"};

TEST(Pick, ChoosesTheLanguageOfTheCode) {
  EXPECT_EQ(Pick(greeting, "ENG"), "Hello %1");
  EXPECT_EQ(Pick(greeting, "CHS"), "你好 %1");
  EXPECT_EQ(Pick(greeting, "CHT"), "妳好 %1");
}

TEST(Pick, ChoosesNothingForAnyOtherCode) {
  for (const std::string code : {"CHI", "eng", "", "ENGL", " CH"}) {
    EXPECT_EQ(Pick(greeting, code), std::nullopt) << code;
    EXPECT_EQ(Compose(greeting, code, {"you"}), std::nullopt) << code;
  }
}

TEST(Compose, PutsValuesInTheirPlaces) {
  constexpr Text text{"%2 of %1, %1", "", ""};
  EXPECT_EQ(Compose(text, english, {"ten", "one"}), "one of ten, ten");
  EXPECT_EQ(Compose(greeting, simplifiedChinese, {"图标"}), "你好 图标");
}

TEST(Compose, LeavesAloneWhatAValueHolds) {
  constexpr Text text{"%1 and %2", "", ""};
  EXPECT_EQ(Compose(text, english, {"C:\\%2\\%1", "%"}), "C:\\%2\\%1 and %");
}

TEST(Compose, LeavesASignThatMarksNoPlace) {
  constexpr Text text{"100% %3 %0 %x %", "", ""};
  EXPECT_EQ(Compose(text, english, {"a", "b"}), "100% %3 %0 %x %");
}

}  // namespace
}  // namespace tarvik
