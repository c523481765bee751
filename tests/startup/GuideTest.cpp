#include "startup/Guide.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(GuidePath, IsAPageInEachLanguageBesideTheProgram) {
  EXPECT_EQ(GuidePath(R"(C:\Tools)", "ENG"), R"(C:\Tools\guide\guide-eng.html)");
  EXPECT_EQ(GuidePath(R"(C:\Tools)", "CHS"), R"(C:\Tools\guide\guide-chs.html)");
  EXPECT_EQ(GuidePath(R"(C:\Tools)", "CHT"), R"(C:\Tools\guide\guide-cht.html)");
}

TEST(GuidePath, IsTheEnglishPageInAnUnknownLanguage) {
  EXPECT_EQ(GuidePath(R"(C:\Tools)", "CHI"), R"(C:\Tools\guide\guide-eng.html)");
}

}  // namespace
}  // namespace tarvik
