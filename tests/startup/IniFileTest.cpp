#include "startup/IniFile.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <span>
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

// The system would read all of such a file into memory for each value.
TEST(IniFile, NeitherReadsNorWritesAFileOfMoreThanAMegabyte) {
  const TemporaryFolder folder;
  const std::string start = "[Section]\r\nKey=Value\r\n";
  constexpr std::uint64_t megabyte = std::uint64_t{1} << 20U;
  IniFile ini;
  const std::string largest = folder.MakeSparseFile("a.dat", std::as_bytes(std::span(start)), megabyte);
  EXPECT_EQ(ini.Read("Section", "Key", "default", 100, largest), "Value");
  const std::string larger = folder.MakeSparseFile("b.dat", std::as_bytes(std::span(start)), megabyte + 1);
  EXPECT_EQ(ini.Read("Section", "Key", "default", 100, larger), "default");
  EXPECT_EQ(ini.Write("Section", "Key", "Other", larger), 0);
  EXPECT_EQ(ini.DeleteKey("Section", "Key", larger), 0);
  EXPECT_EQ(ini.DeleteSection("Section", larger), 0);
  EXPECT_TRUE(support::ReadAll(larger).starts_with(start));
  EXPECT_EQ(support::ReadAll(larger).size(), megabyte + 1);
}

}  // namespace
}  // namespace tarvik
