#include "startup/IniFile.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/TemporaryFolder.h"

namespace tarvik {
namespace {

using support::TemporaryFolder;

TEST(IniFile, ReadsBackWhatItWrote) {
  const TemporaryFolder folder;
  const std::string file = folder.In("设置.dat");
  IniFile ini;
  EXPECT_NE(ini.Write("FindIcon", "Folder", R"(C:\图标 😀\a)", file), 0);
  EXPECT_NE(ini.Write("FindIcon", "Subdir", "True", file), 0);
  EXPECT_EQ(ini.Read("FindIcon", "Folder", "", 2048, file), R"(C:\图标 😀\a)");
  EXPECT_EQ(ini.Read("FindIcon", "Subdir", "", 2048, file), "True");
}

TEST(IniFile, GivesTheDefaultWithoutFileSectionOrKey) {
  const TemporaryFolder folder;
  IniFile ini;
  EXPECT_EQ(ini.Read("a", "b", "default", 2048, folder.In("none.dat")), "default");
  const std::string file = folder.MakeFile("a.dat", "[a]\r\nc=1\r\n");
  EXPECT_EQ(ini.Read("a", "b", "default", 2048, file), "default");
  EXPECT_EQ(ini.Read("x", "c", "default", 2048, file), "default");
  EXPECT_EQ(ini.Read("a", "c", "default", 2048, file), "1");
}

TEST(IniFile, CutsAValueThatTheBufferCannotHold) {
  const TemporaryFolder folder;
  const std::string file = folder.MakeFile("a.dat", "[a]\r\nlong=" + std::string(3000, 'v') + "\r\n");
  IniFile ini;
  EXPECT_EQ(ini.Read("a", "long", "", 2048, file), std::string(2047, 'v'));
}

TEST(IniFile, DeletesAKeyAndASection) {
  const TemporaryFolder folder;
  const std::string file = folder.MakeFile("a.dat", "[a]\r\nx=1\r\ny=2\r\n[b]\r\nz=3\r\n");
  IniFile ini;
  EXPECT_NE(ini.DeleteKey("a", "x", file), 0);
  EXPECT_EQ(ini.Read("a", "x", "gone", 2048, file), "gone");
  EXPECT_EQ(ini.Read("a", "y", "gone", 2048, file), "2");
  EXPECT_NE(ini.DeleteSection("a", file), 0);
  EXPECT_EQ(ini.Read("a", "y", "gone", 2048, file), "gone");
  EXPECT_EQ(ini.Read("b", "z", "gone", 2048, file), "3");
}

TEST(IniFile, SaysThatAWriteFailed) {
  const TemporaryFolder folder;
  EXPECT_EQ(IniFile().Write("a", "b", "c", folder.In(R"(none\a.dat)")), 0);
}

}  // namespace
}  // namespace tarvik
