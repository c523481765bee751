// The cost of extracting icons: GDI objects, and bytes read.

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "base/RuntimeError.h"
#include "damaged_files/Libraries.h"
#include "driver/UnixProgram.h"
#include "platform/GdiObjects.h"
#include "platform/Holdings.h"
#include "platform/IconFiles.h"
#include "platform/Surface.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "search/icons/CountedFiles.h"
#include "search/icons/Modules.h"
#include "search/icons/ShellIcons.h"
#include "search/icons/ShellWithoutModules.h"

namespace tarvik {
namespace {

using support::AnimationFile;
using support::Bytes;
using support::CountedFiles;
using support::CutOffLibrary;
using support::IconFileOf;
using support::LibraryOfOneIcon;
using support::TemporaryFolder;

constexpr Color red = 0x0000FF;
constexpr Color green = 0x00FF00;
constexpr Color blue = 0xFF0000;
constexpr Color background = 0x808080;

// Each call that is cut off leaks what the system had made by then: its view of the file at least.
TEST(ShellIcons, AsksTheSystemOnceForAnIconThatItBreaksOn) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.dll", CutOffLibrary());
  ShellIcons icons;
  ASSERT_EQ(icons.Extract(path, 0), nullptr);
  const int objects = support::CountGdiObjects();
  const int views = support::CountMappedViews(GetCurrentProcess());
  for (int i = 0; i < 20; ++i) EXPECT_EQ(icons.Extract(path, 0), nullptr);
  EXPECT_EQ(support::CountGdiObjects(), objects);
  EXPECT_EQ(support::CountMappedViews(GetCurrentProcess()), views);
}

TEST(ShellIcons, AsksAgainForAFileThatHasChanged) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.dll", CutOffLibrary());
  ShellIcons icons;
  ASSERT_EQ(icons.Extract(path, 0), nullptr);
  // The call that was cut off still holds the file, so the file can only be changed from outside Wine.
  const std::string intact = folder.MakeFile("intact.dll", LibraryOfOneIcon());
  ASSERT_EQ(end_to_end::RunUnix("cp " + end_to_end::QuoteForUnix(ToWide(intact)) + ' ' +
                                end_to_end::QuoteForUnix(ToWide(path)))
                .exitCode,
            0);
  EXPECT_NE(icons.Extract(path, 0), nullptr);
}

// Once the damaged icons had used up the process's GDI objects, a blank picture was saved instead of a good icon.
TEST(ShellIcons, SaysThatThereIsNoRoomForAnIconInsteadOfLeavingItOut) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", IconFileOf(red));
  ShellIcons icons;
  Surface surface(32, 32, background);
  const auto icon = icons.Extract(path, 0);
  ASSERT_NE(icon, nullptr);
  {
    const support::NoGdiObjects none;
    EXPECT_THROW(icons.Extract(path, 0), OutOfMemoryError);
  }
  EXPECT_NE(icons.Extract(path, 0), nullptr);
  EXPECT_TRUE(icon->Draw(surface, {0, 0}, 32, 0, DrawPart::Normal));
}

constexpr std::uint64_t megabyte = std::uint64_t{1} << 20U;

// A search of such a file of 512 MB once took 14 seconds, and with one of 5 GB it did not end.
TEST(ShellIcons, ReadsLittleOfALargeAnimationAndThatOnce) {
  const TemporaryFolder folder;
  CountedFiles files;
  ShellIcons icons(files.Opener());
  const Bytes intact = AnimationFile(std::array{red, green, blue});
  // The header claims the length of the whole file.
  Bytes endless = intact;
  std::fill_n(endless.begin() + 4, 4, std::byte{0xFF});
  for (const std::uint64_t size : {512 * megabyte, 5 * 1024 * megabyte}) {
    const std::string end = std::to_string(size) + ".ani";
    const std::string tailed = folder.MakeSparseFile("tailed" + end, intact, size);
    const std::string large = folder.MakeSparseFile("large" + end, endless, size);
    files.read = 0;
    // As often as a search reads the file.
    for (int look = 0; look < 3; ++look) {
      const auto icon = icons.Extract(tailed, 0);
      ASSERT_NE(icon, nullptr) << size;
      EXPECT_EQ(icon->StepBound(), 3) << size;
      icons.Extract(large, 0);
    }
    EXPECT_LE(files.read, 2 * megabyte) << size;
  }
}

// The program's own reader, as with the shell of current Windows.
TEST(ShellIcons, ReadsLittleOfALargeModule) {
  const TemporaryFolder folder;
  CountedFiles files;
  ShellIcons icons(files.Opener(), support::ShellWithoutModules);
  const support::ModuleBytes module = support::MakeModule(support::PlainIcons(20));
  // The first icon of a process also opens handles that the system keeps.
  EXPECT_EQ(icons.ExtractGroup(folder.MakeSparseFile("first.icl", module, megabyte), 0, 20).size(), 20U);
  for (const char* name : {"a.icl", "a.exe", "a.dll", "a.ocx"}) {
    const std::string path = folder.MakeSparseFile(name, module, 5 * 1024 * megabyte);
    files.read = 0;
    const int handles = support::HeldBy(GetCurrentProcess()).kernelHandles;
    // As often as a search reads the file.
    for (int look = 0; look < 3; ++look) {
      EXPECT_EQ(icons.CountIcons(path), 20) << name;
      EXPECT_NE(icons.Extract(path, 19), nullptr) << name;
      EXPECT_EQ(icons.ExtractGroup(path, 0, 20).size(), 20U) << name;
    }
    EXPECT_LE(files.read, megabyte / 8) << name;
    EXPECT_EQ(support::HeldBy(GetCurrentProcess()).kernelHandles, handles) << name;
  }
}

}  // namespace
}  // namespace tarvik
