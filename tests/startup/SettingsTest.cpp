#include "startup/Settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/MemoryIni.h"

namespace tarvik {
namespace {

using support::MemoryIni;
using ::testing::ElementsAre;

class SettingsTest : public ::testing::Test {
 protected:
  MemoryIni store;
  Settings settings{store, "C:\\Tools\\tarvik.exe"};
};

TEST(SettingsPath, StandsBesideTheProgramUnderItsName) {
  EXPECT_EQ(SettingsPath("C:\\Tools\\tarvik.exe"), "C:\\Tools\\tarvik.dat");
  EXPECT_EQ(SettingsPath("C:\\tarvik.exe"), "C:\\tarvik.dat");
  EXPECT_EQ(SettingsPath("C:\\Tools v1.0\\tarvik"), "C:\\Tools v1.0\\tarvik.dat");
  EXPECT_EQ(SettingsPath("C:\\工具\\my.tarvik.EXE"), "C:\\工具\\my.tarvik.dat");
  EXPECT_EQ(SettingsPath("tarvik.exe"), "tarvik.dat");
  EXPECT_EQ(SettingsPath("C:\\Tools\\.exe"), "C:\\Tools\\.dat") << "a name that is an extension alone";
}

TEST_F(SettingsTest, GivesTheDefaultForAnAbsentKey) {
  EXPECT_EQ(settings.ReadIniSetting("FindIcon", "Subdir", "False"), "False");
}

TEST_F(SettingsTest, KeepsWhatWasWritten) {
  EXPECT_EQ(settings.WriteIniSetting("FindIcon", "Folder", "C:\\图标"), 1);
  EXPECT_EQ(settings.ReadIniSetting("FindIcon", "Folder", "C:\\"), "C:\\图标");
  EXPECT_EQ(settings.ReadIniSetting("Bitmapview", "Folder", "other"), "other");
}

TEST_F(SettingsTest, UsesTheProgramsFileUnlessOneIsNamed) {
  settings.ReadIniSetting("FindIcon", "Folder", "");
  settings.WriteIniSetting("FindIcon", "Folder", "x");
  settings.WriteIniSetting("FindIcon", "Folder", "x", "D:\\other.ini");
  settings.ReadIniSetting("FindIcon", "Folder", "", "D:\\other.ini");
  EXPECT_THAT(store.files,
              ElementsAre("C:\\Tools\\tarvik.dat", "C:\\Tools\\tarvik.dat", "D:\\other.ini", "D:\\other.ini"));
}

TEST_F(SettingsTest, DeletesTheKeyWhenAnEmptyValueIsWritten) {
  settings.WriteIniSetting("FindIcon", "Folder", "D:\\icons");
  EXPECT_EQ(settings.WriteIniSetting("FindIcon", "Folder", ""), 2);
  EXPECT_EQ(settings.ReadIniSetting("FindIcon", "Folder", "C:\\Tools"), "C:\\Tools");
}

TEST_F(SettingsTest, DeletesTheSectionWhenAnEmptyKeyIsWritten) {
  settings.WriteIniSetting("FindIcon", "Folder", "D:\\icons");
  settings.WriteIniSetting("FindIcon", "Subdir", "True");
  settings.WriteIniSetting("Bitmapview", "Height", "5310");
  EXPECT_EQ(settings.WriteIniSetting("FindIcon", "", "ignored"), 3);
  EXPECT_EQ(settings.ReadIniSetting("FindIcon", "Folder", "gone"), "gone");
  EXPECT_EQ(settings.ReadIniSetting("FindIcon", "Subdir", "gone"), "gone");
  EXPECT_EQ(settings.ReadIniSetting("Bitmapview", "Height", "gone"), "5310");
}

TEST_F(SettingsTest, CutsALongValueAtTheBuffer) {
  settings.WriteIniSetting("FindIcon", "Folder", std::string(2047, 'a') + "bc");
  EXPECT_EQ(settings.ReadIniSetting("FindIcon", "Folder", ""), std::string(2047, 'a'));
  settings.WriteIniSetting("FindIcon", "Folder", std::string(2047, 'a'));
  EXPECT_EQ(settings.ReadIniSetting("FindIcon", "Folder", ""), std::string(2047, 'a'));
}

TEST_F(SettingsTest, ReportsAWriteThatFailed) {
  class FullStore : public MemoryIni {
   public:
    int Write(const std::string&, const std::string&, const std::string&, const std::string&) override { return 0; }
  };
  FullStore full;
  EXPECT_EQ(Settings(full, "C:\\tarvik.exe").WriteIniSetting("FindIcon", "Folder", "x"), 0);
}

TEST(IsTruth, TakesOnlyTrueInAnyCase) {
  for (const std::string text : {"True", "TRUE", "true", "tRuE"}) EXPECT_TRUE(IsTruth(text)) << text;
  for (const std::string text : {"yes", "1", "False", "", "True ", "Tru", "Truee"}) EXPECT_FALSE(IsTruth(text)) << text;
}

TEST(TruthText, IsReadAsItWasWritten) {
  EXPECT_EQ(TruthText(true), "True");
  EXPECT_EQ(TruthText(false), "False");
}

}  // namespace
}  // namespace tarvik
