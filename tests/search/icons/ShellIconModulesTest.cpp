// Icons of 16-bit modules, read by this program itself if the shell finds none. Wine's shell reads such modules too:
// the program must find the same icons without it.

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "base/FolderPath.h"
#include "base/PixelCopy.h"
#include "base/RuntimeError.h"
#include "driver/UnixProgram.h"
#include "platform/GdiObjects.h"
#include "platform/IconFiles.h"
#include "platform/Paths.h"
#include "platform/Surface.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "search/icons/CountedFiles.h"
#include "search/icons/FileBytes.h"
#include "search/icons/Folders.h"
#include "search/icons/IconsAhead.h"
#include "search/icons/Modules.h"
#include "search/icons/RandomModules.h"
#include "search/icons/ShellIcons.h"
#include "search/icons/ShellWithoutModules.h"

namespace tarvik {
namespace {

using support::CountedFiles;
using support::MakeModule;
using support::ModuleBytes;
using support::ModuleIcon;
using support::RandomBitmap;
using support::ShellWithoutModules;
using support::TemporaryFolder;
using Pixels = std::vector<Color>;

constexpr Color background = 0x808080;

std::unique_ptr<ByteSource> Open(const std::string& path) {
  return std::make_unique<FileBytes>(path);
}

// The pixels of an icon at each size, and those of image and mask alone; empty if there is no icon.
std::vector<Pixels> Looks(ExtractedIcon* icon) {
  std::vector<Pixels> looks;
  if (icon == nullptr) return looks;
  const auto draw = [&](int size, DrawPart part) {
    Surface surface(size, size, background);
    EXPECT_TRUE(icon->Draw(surface, {0, 0}, size, 0, part));
    const PixelCopy copy(surface);
    looks.emplace_back(copy.Pixels().begin(), copy.Pixels().end());
  };
  for (const int size : {16, 32, 48, 64}) draw(size, DrawPart::Normal);
  draw(32, DrawPart::Mask);
  draw(32, DrawPart::Image);
  return looks;
}

// Icons of one picture of 32 pixels each, all random.
std::vector<ModuleIcon> Icons(int count) {
  std::vector<ModuleIcon> icons;
  for (int i = 0; i < count; ++i) {
    const int bits = i % 2 == 0 ? 4 : 8;
    icons.push_back({.pictures = {{32, 32, bits, RandomBitmap(32, 32, bits, static_cast<std::uint32_t>(i) + 1)}}});
  }
  return icons;
}

// Both ways to extract icons: with the shell of this machine, and without it.
struct BothWays {
  ShellIcons byShell{Open};
  ShellIcons withoutShell{Open, ShellWithoutModules};

  // Compares all icons of a file. Returns how many there are.
  int Compare(const std::string& path) {
    const int count = byShell.CountIcons(path);
    EXPECT_EQ(withoutShell.CountIcons(path), count) << path;
    for (int index = 0; index <= count; ++index) {
      const auto expected = Looks(byShell.Extract(path, index).get());
      EXPECT_EQ(expected.empty(), index == count) << path << ' ' << index;
      EXPECT_TRUE(Looks(withoutShell.Extract(path, index).get()) == expected) << path << ' ' << index;
    }
    return count;
  }
};

TEST(ShellIconModules, AreReadAsTheShellOfWineReadsThem) {
  constexpr std::uint32_t modules = 500;
  const TemporaryFolder folder;
  BothWays ways;
  int icons = 0;
  for (std::uint32_t number = 0; number < modules && !HasFailure(); ++number) {
    const support::RandomModule module = support::MakeRandomModule(number);
    const std::string path = folder.MakeFile(std::to_string(number) + ".icl", module.bytes);
    EXPECT_EQ(ways.Compare(path), module.icons) << path;
    icons += module.icons;
  }
  std::printf("%d icons of %u modules\n", icons, modules);
}

// Wine's fonts are modules in the old format, made by a current linker: they hold no icons.
TEST(ShellIconModules, AreReadAmongTheModulesOfThisMachine) {
  const TemporaryFolder folder;
  const std::string fonts = JoinPath(ParentFolder(SystemFolder()), "Fonts");
  Folders folders;
  BothWays ways;
  int modules = 0;
  for (const std::string& name : folders.Files(fonts, "*.fon")) {
    const std::string path = folder.In(name + ".dll");
    ASSERT_NE(CopyFileW(ToWide(JoinPath(fonts, name)).c_str(), ToWide(path).c_str(), TRUE), 0);
    EXPECT_EQ(ways.Compare(path), 0) << name;
    ++modules;
  }
  EXPECT_GE(modules, 20);
}

// Cross-checked with wrestool and the shell, which draws the icon file that wrestool extracts from a group.
TEST(ShellIconModules, AreReadAsAProgramFromElsewhereReadsThem) {
  const TemporaryFolder folder;
  ShellIcons icons(Open, ShellWithoutModules);
  ShellIcons byShell;
  for (std::uint32_t number = 0; number < 20; ++number) {
    const ModuleBytes module =
        MakeModule(Icons(static_cast<int>(number) % 4 + 1),
                   {.shift = number % 10, .groupsFirst = number % 2 == 0, .otherResources = true});
    const std::string path = folder.MakeFile("a" + std::to_string(number) + ".icl", module);
    const auto answer = end_to_end::RunUnix(
        "cd " + end_to_end::QuoteForUnix(ToWide(folder.Path())) + " && wrestool -x -t14 -o . a" +
        std::to_string(number) + ".icl 2>/dev/null && ls a" + std::to_string(number) + ".icl_14_*.ico | wc -l");
    ASSERT_EQ(answer.exitCode, 0) << answer.output;
    const int count = icons.CountIcons(path);
    ASSERT_EQ(std::atoi(answer.output.c_str()), count) << answer.output;
    for (int index = 0; index < count; ++index) {
      const auto expected = Looks(byShell.Extract(path + "_14_" + std::to_string(index + 1) + ".ico", 0).get());
      ASSERT_FALSE(expected.empty());
      EXPECT_TRUE(Looks(icons.Extract(path, index).get()) == expected) << path << ' ' << index;
    }
  }
}

TEST(ShellIconModules, HaveThePictureThatTheSystemWouldChoose) {
  std::mt19937 chance(17);
  const auto below = [&chance](unsigned end) { return static_cast<int>(static_cast<unsigned>(chance()) % end); };
  const WindowDc screen(nullptr);
  const int screenBits = GetDeviceCaps(screen.get(), BITSPIXEL);
  constexpr int sides[] = {0, 8, 16, 20, 24, 32, 40, 48, 64, 96, 128};
  constexpr int depths[] = {0, 1, 4, 8, 16, 24, 32};
  for (int round = 0; round < 5000; ++round) {
    ModuleIcon icon;
    std::vector<std::byte> group(6 + 14 * (1 + static_cast<std::size_t>(below(8))));
    group[2] = std::byte{1};
    group[4] = static_cast<std::byte>((group.size() - 6) / 14);
    for (std::size_t offset = 6; offset < group.size(); offset += 14) {
      const int width = sides[below(std::size(sides))];
      group[offset] = static_cast<std::byte>(width);
      // Most of the pictures are square. A width of 0 always comes with a height of 0: one of them alone has no
      // meaning.
      group[offset + 1] = static_cast<std::byte>(width != 0 && below(5) == 0 ? 1 + below(64) : width);
      group[offset + 6] = static_cast<std::byte>(depths[below(std::size(depths))]);
      group[offset + 12] = static_cast<std::byte>(offset / 14 + 1);
    }
    const int side = sides[1 + below(std::size(sides) - 1)];
    const int expected =
        LookupIconIdFromDirectoryEx(reinterpret_cast<PBYTE>(group.data()), TRUE, side, side, LR_DEFAULTCOLOR);
    ASSERT_EQ(ChoosePicture(group, {.width = side, .height = side, .bits = screenBits}).value_or(0), expected) << round;
  }
}

TEST(ShellIconModules, AreTakenInGroupsToo) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.icl", MakeModule(Icons(70)));
  ShellIcons icons(Open, ShellWithoutModules);
  const auto group = icons.ExtractGroup(path, 3, 64);
  ASSERT_EQ(group.size(), 64U);
  for (int i = 0; i < 64; ++i) {
    ASSERT_TRUE(Looks(group[static_cast<std::size_t>(i)].get()) == Looks(icons.Extract(path, i + 3).get())) << i;
  }
  EXPECT_TRUE(icons.ExtractGroup(path, 60, 11).empty());
  std::vector<ModuleIcon> broken = Icons(10);
  broken[4].pictures[0].data.resize(100);
  EXPECT_TRUE(icons.ExtractGroup(folder.MakeFile("b.icl", MakeModule(broken)), 0, 10).empty());
}

TEST(ShellIconModules, AreTheSameWhereTheyAreReadAhead) {
  const TemporaryFolder folder;
  std::vector<ModuleIcon> all = Icons(90);
  all[70].pictures[0].data.resize(100);
  const std::string path = folder.MakeFile("a.icl", MakeModule(all));
  ShellIcons oneByOne(Open, ShellWithoutModules);
  ShellIcons icons(Open, ShellWithoutModules);
  IconsAhead ahead(icons);
  const auto search = ahead.InTurn();
  ASSERT_EQ(ahead.CountIcons(path), 90);
  for (int index = 0; index < 90; ++index) {
    const auto expected = Looks(oneByOne.Extract(path, index).get());
    EXPECT_EQ(expected.empty(), index == 70);
    ASSERT_TRUE(Looks(ahead.Extract(path, index).get()) == expected) << index;
  }
}

TEST(ShellIconModules, AreOfFourKindsOfFile) {
  const TemporaryFolder folder;
  ShellIcons icons(Open, ShellWithoutModules);
  const ModuleBytes module = MakeModule(Icons(2));
  for (const char* name : {"a.icl", "b.EXE", "c.dll", "d.ocx"}) {
    const std::string path = folder.MakeFile(name, module);
    EXPECT_EQ(icons.CountIcons(path), 2) << name;
    EXPECT_NE(icons.Extract(path, 1), nullptr) << name;
    EXPECT_EQ(icons.ExtractGroup(path, 0, 2).size(), 2U) << name;
  }
  for (const char* name : {"a.ico", "b.fon", "c", "d.ani"}) {
    const std::string path = folder.MakeFile(name, module);
    EXPECT_EQ(icons.CountIcons(path), 0) << name;
    EXPECT_EQ(icons.Extract(path, 1), nullptr) << name;
    EXPECT_TRUE(icons.ExtractGroup(path, 0, 2).empty()) << name;
  }
}

// A table that claims thousands of icons would get every search of its folder refused.
TEST(ShellIconModules, AreNotBelievedWhereTheyClaimMoreThanAHundred) {
  const TemporaryFolder folder;
  ShellIcons icons(Open, ShellWithoutModules);
  EXPECT_EQ(icons.CountIcons(folder.MakeFile("intact.icl", MakeModule(Icons(150)))), 150);
  std::vector<ModuleIcon> broken = Icons(1000);
  for (std::size_t i = 30; i < broken.size(); ++i) broken[i].pictures[0].data.resize(50);
  EXPECT_EQ(icons.CountIcons(folder.MakeFile("broken.icl", MakeModule(broken, {.shift = 5}))), 30);
}

TEST(ShellIconModules, AreReadAgainWhereTheFileChanged) {
  const TemporaryFolder folder;
  ShellIcons icons(Open, ShellWithoutModules);
  const std::string path = folder.MakeFile("a.icl", MakeModule(Icons(3)));
  EXPECT_EQ(icons.CountIcons(path), 3);
  const auto replace = [&](std::span<const std::byte> bytes) {
    ASSERT_NE(DeleteFileW(ToWide(path).c_str()), 0) << "a file that is kept open cannot be replaced";
    folder.MakeFile("a.icl", bytes);
  };
  replace(MakeModule(Icons(1)));
  EXPECT_EQ(icons.Extract(path, 2), nullptr);
  EXPECT_NE(icons.Extract(path, 0), nullptr);
  EXPECT_EQ(icons.CountIcons(path), 1);
  replace(ModuleBytes(3000));
  EXPECT_EQ(icons.CountIcons(path), 0);
  EXPECT_EQ(icons.Extract(path, 0), nullptr);
  ASSERT_NE(DeleteFileW(ToWide(path).c_str()), 0);
  EXPECT_EQ(icons.CountIcons(path), 0);
  EXPECT_EQ(icons.Extract(path, 0), nullptr);
}

TEST(ShellIconModules, AreNotLeftOutForLackOfGdiObjects) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.icl", MakeModule(Icons(1)));
  ShellIcons icons(Open, ShellWithoutModules);
  {
    const support::NoGdiObjects none;
    EXPECT_THROW(icons.Extract(path, 0), OutOfMemoryError);
  }
  EXPECT_NE(icons.Extract(path, 0), nullptr);
}

TEST(ShellIconModules, KeepNoHandlesAndNoFileOpen) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.icl", MakeModule(Icons(4)));
  std::vector<ModuleIcon> broken = Icons(4);
  broken[3].pictures[0].data.resize(100);
  const std::string other = folder.MakeFile("b.icl", MakeModule(broken));
  ShellIcons icons(Open, ShellWithoutModules);
  const auto round = [&] {
    ASSERT_EQ(icons.CountIcons(path), 4);
    ASSERT_NE(icons.Extract(path, 3), nullptr);
    ASSERT_EQ(icons.ExtractGroup(path, 0, 4).size(), 4U);
    ASSERT_TRUE(icons.ExtractGroup(other, 0, 4).empty());
  };
  round();
  const int before = support::CountGdiObjects();
  for (int i = 0; i < 50; ++i) round();
  EXPECT_EQ(support::CountGdiObjects(), before);
  EXPECT_NE(DeleteFileW(ToWide(path).c_str()), 0);
}

TEST(ShellIconModules, AreLeftToTheShellWhereItReadsThem) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.icl", MakeModule(Icons(3)));
  CountedFiles files;
  ShellIcons icons(files.Opener());
  ASSERT_EQ(icons.CountIcons(path), 3) << "this machine's shell reads no 16-bit modules";
  ASSERT_NE(icons.Extract(path, 2), nullptr);
  EXPECT_EQ(icons.ExtractGroup(path, 0, 3).size(), 3U);
  EXPECT_EQ(files.opened, 0);
  // An icon that the shell cannot extract counts as none, even if other parts of it are readable.
  std::vector<ModuleIcon> broken = Icons(3);
  broken[1].pictures[0].data.resize(2);
  const std::string other = folder.MakeFile("b.icl", MakeModule(broken));
  ASSERT_EQ(icons.CountIcons(other), 3);
  EXPECT_EQ(icons.Extract(other, 1), nullptr);
}

TEST(ShellIconModules, AreLookedForInNoFileMoreThanOnceAPass) {
  const TemporaryFolder folder;
  CountedFiles files;
  ShellIcons icons(files.Opener(), ShellWithoutModules);
  IconsAhead ahead(icons);
  const auto search = ahead.InTurn();
  // A current library without icons: only its first block is read, which contains both headers.
  const std::string library = folder.In("version.dll");
  ASSERT_NE(CopyFileW(ToWide(JoinPath(SystemFolder(), "version.dll")).c_str(), ToWide(library).c_str(), TRUE), 0);
  EXPECT_EQ(ahead.CountIcons(library), 0);
  EXPECT_EQ(ahead.CountIcons(library), 0);
  EXPECT_EQ(files.opened, 1);
  EXPECT_EQ(files.read, 512U);
  // A library with icons, and a file of another type: they are not even opened.
  files = {};
  EXPECT_GT(ahead.CountIcons(JoinPath(SystemFolder(), "shell32.dll")), 0);
  EXPECT_EQ(ahead.CountIcons(folder.MakeFile("a.txt", "text")), 0);
  EXPECT_EQ(files.opened, 0);
}

TEST(ShellIconModules, AreNotLookedForInTheSystemsOwnFolder) {
  const TemporaryFolder folder;
  CountedFiles files;
  ShellIcons icons(files.Opener(), ShellWithoutModules);
  for (const char* name : {"version.dll", "VERSION.DLL", "drivers\\none.dll"}) {
    EXPECT_EQ(icons.CountIcons(JoinPath(SystemFolder(), name)), 0);
    EXPECT_EQ(icons.Extract(JoinPath(SystemFolder(), name), 0), nullptr);
  }
  EXPECT_EQ(files.opened, 0);
  EXPECT_EQ(icons.CountIcons(folder.MakeFile("a.dll", MakeModule(Icons(2)))), 2);
  // A library in the system folder that did not come with the system.
  const std::string library = JoinPath(SystemFolder(), "put there by a test.icl");
  ASSERT_NE(CopyFileW(ToWide(folder.MakeFile("a.icl", MakeModule(Icons(2)))).c_str(), ToWide(library).c_str(), FALSE),
            0);
  EXPECT_EQ(icons.CountIcons(library), 2);
  EXPECT_NE(DeleteFileW(ToWide(library).c_str()), 0);
}

TEST(ShellIconModules, HaveTheirTableReadOnceForAllTheirIcons) {
  const TemporaryFolder folder;
  const ModuleBytes module = MakeModule(Icons(60));
  const std::string path = folder.MakeFile("a.icl", module);
  CountedFiles files;
  ShellIcons icons(files.Opener(), ShellWithoutModules);
  for (int index = 0; index < 60; ++index) ASSERT_NE(icons.Extract(path, index), nullptr);
  EXPECT_LE(files.read, 512 + module.size() + std::size_t{60} * 6) << "the start of each group is read twice";
}

}  // namespace
}  // namespace tarvik
