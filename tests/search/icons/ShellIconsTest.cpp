#include "search/icons/ShellIcons.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "base/FolderPath.h"
#include "damaged_files/Libraries.h"
#include "platform/GdiObjects.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/Paths.h"
#include "platform/Surface.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

using support::AnimationFile;
using support::BitmapPicture;
using support::Bytes;
using support::IconFile;
using support::IconFileKind;
using support::IconFileOf;
using support::IconPicture;
using support::PngPicture;
using support::TemporaryFolder;

constexpr Color red = 0x0000FF;
constexpr Color green = 0x00FF00;
constexpr Color blue = 0xFF0000;
constexpr Color yellow = 0x00FFFF;
constexpr Color background = 0x808080;
constexpr std::array eightColors{
    red, green, blue, yellow, Color{0xFF00FF}, Color{0xFFFF00}, Color{0xC0C0C0}, Color{0x302010}};

Bytes OneIcon(const IconPicture& picture) {
  return IconFile(std::span(&picture, 1));
}

Bytes Truncate(Bytes file, std::size_t size) {
  file.resize(size);
  return file;
}

// Meaningless bytes, always the same.
Bytes Nonsense() {
  Bytes bytes(9000);
  std::uint32_t state = 1;
  for (std::byte& value : bytes) {
    state = state * 1664525 + 1013904223;
    value = static_cast<std::byte>(state >> 24U);
  }
  return bytes;
}

// The colours of the first steps, read from the upper half of the icon's left side: as many as can be drawn, at most
// `maxCount`.
std::vector<Color> StepColors(const std::string& path, int maxCount = 20) {
  std::vector<Color> colors;
  ShellIcons icons;
  const auto icon = icons.Extract(path, 0);
  for (int step = 0; icon && step < maxCount; ++step) {
    Surface surface(32, 32, background);
    if (!icon->Draw(surface, {0, 0}, 32, step, DrawPart::Normal)) break;
    colors.push_back(surface.Pixel(4, 4));
  }
  return colors;
}

TEST(ShellIcons, CountsTheImagesOfAnIconFileAsOneIcon) {
  const TemporaryFolder folder;
  const std::array pictures{BitmapPicture(16, 4, red, blue), BitmapPicture(32, 24, red, blue),
                            PngPicture(48, red, blue)};
  ShellIcons icons;
  EXPECT_EQ(icons.CountIcons(folder.MakeFile("图标😀.ico", IconFile(pictures))), 1);
}

TEST(ShellIcons, CountsNoneWhereThereIsNothingToCount) {
  const TemporaryFolder folder;
  ShellIcons icons;
  for (const std::string& path :
       {folder.MakeFile("empty.ico", ""), folder.MakeFile("empty.dll", ""), folder.MakeFile("text.exe", "text"),
        folder.MakeFile("nonsense.ico", Nonsense()), folder.MakeFile("nonsense.dll", Nonsense()), folder.In("none.ico"),
        folder.MakeFolder("folder.ico"), std::string()}) {
    EXPECT_EQ(icons.CountIcons(path), 0) << path;
    EXPECT_EQ(icons.Extract(path, 0), nullptr) << path;
  }
}

TEST(ShellIcons, TakesEachIconOfALibraryByItsIndex) {
  const TemporaryFolder folder;
  const std::string library = folder.In("three.dll");
  ASSERT_NE(CopyFileW(ToWide(JoinPath(SystemFolder(), "version.dll")).c_str(), ToWide(library).c_str(), TRUE), 0);
  const std::array pictures{BitmapPicture(32, 8, red, red), BitmapPicture(32, 24, green, green),
                            BitmapPicture(32, 32, blue, blue)};
  support::AddIcons(library, pictures);

  ShellIcons icons;
  ASSERT_EQ(icons.CountIcons(library), 3);
  const std::array expected{red, green, blue};
  for (int index = 0; index < 3; ++index) {
    const auto icon = icons.Extract(library, index);
    ASSERT_NE(icon, nullptr) << index;
    Surface surface(32, 32, background);
    EXPECT_TRUE(icon->Draw(surface, {0, 0}, 32, 0, DrawPart::Normal));
    EXPECT_EQ(surface.Pixel(4, 4), expected[static_cast<std::size_t>(index)]);
  }
  EXPECT_EQ(icons.Extract(library, 3), nullptr);
}

// The pixels that each part of the icon leaves on the surface: upper left, upper right, lower half.
struct Drawn {
  Color upperLeft;
  Color upperRight;
  Color lower;
  friend bool operator==(const Drawn&, const Drawn&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Drawn& drawn) {
    return out << std::hex << drawn.upperLeft << ' ' << drawn.upperRight << ' ' << drawn.lower;
  }
};

class EveryDepth : public ::testing::TestWithParam<int> {};

constexpr int pngDepth = 0;

TEST_P(EveryDepth, IsDrawnByParts) {
  const int depth = GetParam();
  // One bit per pixel: black and white are the only two colours that every system keeps.
  const Color left = depth == 1 ? black : red;
  const Color right = depth == 1 ? white : blue;
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile(
      "a.ico", OneIcon(depth == pngDepth ? PngPicture(32, left, right) : BitmapPicture(32, depth, left, right)));
  const auto icon = ShellIcons().Extract(path, 0);
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(icon->StepBound(), 1);

  const auto draw = [&](DrawPart part) {
    Surface surface(32, 32, background);
    EXPECT_TRUE(icon->Draw(surface, {0, 0}, 32, 0, part));
    return Drawn{surface.Pixel(0, 0), surface.Pixel(31, 15), surface.Pixel(16, 31)};
  };
  EXPECT_EQ(draw(DrawPart::Mask), (Drawn{black, black, white}));
  EXPECT_EQ(draw(DrawPart::Normal), (Drawn{left, right, background}));
  // With an alpha channel the image alone is blended too, and the old content of the surface must not show through.
  EXPECT_EQ(draw(DrawPart::Image), (Drawn{left, right, black}));
}

INSTANTIATE_TEST_SUITE_P(ShellIcons, EveryDepth, ::testing::Values(1, 4, 8, 24, 32, pngDepth), [](const auto& depth) {
  return depth.param == pngDepth ? "Png" : "Bits" + std::to_string(depth.param);
});

TEST(ShellIcons, DrawsScaledAtItsCorner) {
  const TemporaryFolder folder;
  const auto icon = ShellIcons().Extract(folder.MakeFile("a.ico", IconFileOf(red)), 0);
  ASSERT_NE(icon, nullptr);
  Surface surface(40, 30, background);
  ASSERT_TRUE(icon->Draw(surface, {5, 3}, 16, 0, DrawPart::Normal));
  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 40; ++x) {
      const bool inside = x >= 5 && x < 21 && y >= 3 && y < 11;  // the lower half is transparent
      ASSERT_EQ(surface.Pixel(x, y), inside ? red : background) << x << ',' << y;
    }
  }
}

TEST(ShellIcons, HasOneStepForAStillPicture) {
  const TemporaryFolder folder;
  EXPECT_EQ(StepColors(folder.MakeFile("a.ico", IconFileOf(red))), std::vector{red});
  EXPECT_EQ(StepColors(folder.MakeFile("icon.ani", IconFileOf(green))), std::vector{green});
  EXPECT_EQ(StepColors(folder.MakeFile("cursor.ANI", IconFileOf(blue, IconFileKind::Cursor))), std::vector{blue});
}

TEST(ShellIcons, DrawsTheStepsOfAnAnimation) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("八.ani", AnimationFile(eightColors));
  EXPECT_EQ(StepColors(path), std::vector(eightColors.begin(), eightColors.end()));
  EXPECT_EQ(ShellIcons().Extract(path, 0)->StepBound(), 8);
}

TEST(ShellIcons, DrawsTheStepsInTheOrderTheAnimationGives) {
  const TemporaryFolder folder;
  const std::string path =
      folder.MakeFile("a.ani", AnimationFile(std::array{red, green, blue}, {.sequence = {2, 0, 1, 0, 2}}));
  EXPECT_EQ(StepColors(path), (std::vector{blue, red, green, red, blue}));
}

TEST(ShellIcons, DrawsNoStepBeforeTheFirst) {
  const TemporaryFolder folder;
  const auto icon = ShellIcons().Extract(folder.MakeFile("a.ani", AnimationFile(eightColors)), 0);
  ASSERT_NE(icon, nullptr);
  Surface surface(32, 32, background);
  EXPECT_FALSE(icon->Draw(surface, {0, 0}, 32, -1, DrawPart::Normal));
}

TEST(ShellIcons, YieldsNothingForAnAniThatIsNoPicture) {
  const TemporaryFolder folder;
  ShellIcons icons;
  for (const std::string& path :
       {folder.MakeFile("empty.ani", ""), folder.MakeFile("text.ani", "no picture"),
        folder.MakeFile("nonsense.ani", Nonsense()), folder.MakeFile("wave.ani", "RIFF$...WAVEfmt "),
        folder.MakeFile("pictureless.ani", AnimationFile({})),
        folder.MakeFile("cut.ani", Truncate(AnimationFile(eightColors), 30)), folder.In("none.ani")}) {
    EXPECT_EQ(icons.Extract(path, 0), nullptr) << path;
  }
}

// Each of these once ended the program: the platform trusts the headers of such files.
TEST(ShellIcons, OutlivesDamagedFiles) {
  const TemporaryFolder folder;
  const std::array onePicture{red};
  const std::array twoPictures{red, blue};
  const IconPicture picture = BitmapPicture(32, 32, red, blue);
  Bytes manyEntries = Truncate(OneIcon(picture), 22);
  manyEntries[4] = manyEntries[5] = std::byte{0xFF};
  Bytes farOffset = Truncate(OneIcon(picture), 22);
  farOffset[21] = std::byte{0x7F};
  Bytes noHeight = AnimationFile(onePicture);
  // After the starts of the file, header, list and picture chunks, the directory, and two numbers.
  const std::size_t heightOffset = 12 + 44 + 12 + 8 + 22 + 8;
  noHeight[heightOffset] = std::byte{0};
  std::string halfLibrary = support::ReadAll(JoinPath(SystemFolder(), "shell32.dll"));
  halfLibrary.resize(halfLibrary.size() / 2);

  ShellIcons icons;
  for (const std::string& path :
       {folder.MakeFile("entries.ico", manyEntries), folder.MakeFile("offset.ico", farOffset),
        folder.MakeFile("height.ani", noHeight), folder.MakeFile("cut.ico", Truncate(OneIcon(picture), 40)),
        folder.MakeFile("half.dll", halfLibrary),
        folder.MakeFile("list.ani", AnimationFile(onePicture, {.frames = 2, .listSize = 0xFFFFFFFF})),
        folder.MakeFile("frames.ani", AnimationFile(twoPictures, {.frames = 100000, .steps = 100000})),
        folder.MakeFile("frames2.ani", AnimationFile(twoPictures, {.frames = 0x7FFFFFFF})),
        folder.MakeFile("frames3.ani", AnimationFile(twoPictures, {.frames = 0xFFFFFFFF, .steps = 0xFFFFFFFF})),
        folder.MakeFile("steps.ani", AnimationFile(twoPictures, {.sequence = {0, 1, 0}, .steps = 0x40000001})),
        folder.MakeFile("none.ani", AnimationFile(twoPictures, {.sequence = {0, 1, 0}, .frames = 0}))}) {
    icons.CountIcons(path);
    EXPECT_EQ(icons.Extract(path, 0), nullptr) << path;
  }
  // From a picture that is cut off some systems use the rest (Wine 10), others nothing.
  const std::string cutOff = folder.MakeFile("cut2.ico", Truncate(OneIcon(picture), 3000));
  EXPECT_LE(icons.CountIcons(cutOff), 1);
  if (const auto icon = icons.Extract(cutOff, 0)) {
    Surface surface(32, 32, background);
    EXPECT_TRUE(icon->Draw(surface, {0, 0}, 32, 0, DrawPart::Normal));
  }
  // Some of them left a lock of the system held, and then the next use of a window ended the program.
  const HWND window = CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  EXPECT_NE(DestroyWindow(window), 0);
  EXPECT_EQ(StepColors(folder.MakeFile("good.ico", IconFileOf(red))), std::vector{red});
  EXPECT_EQ(StepColors(folder.MakeFile("good.ani", AnimationFile(twoPictures))), (std::vector{red, blue}));
}

// A library of icons whose resource tree claims another number of icons.
Bytes LyingLibrary(std::span<const IconPicture> pictures, std::uint16_t claimed) {
  constexpr std::size_t sectionOffset = 0x200;  // the tree's offset in the file
  constexpr std::size_t countOffset = 14;       // in a directory
  support::IntactFile library = support::Library(support::Bitness::Bits64, pictures);
  const std::size_t groups = library.directories[2] & 0x7FFFFFFF;
  library.bytes[sectionOffset + groups + countOffset] = static_cast<std::byte>(claimed);
  library.bytes[sectionOffset + groups + countOffset + 1] = static_cast<std::byte>(claimed >> 8U);
  return library.bytes;
}

Bytes LyingLibrary(int icons, std::uint16_t claimed) {
  return LyingLibrary(std::vector(static_cast<std::size_t>(icons), BitmapPicture(16, 1, red, red)), claimed);
}

// Such a count once got every search of its folder refused, with a message about thousands of icons or an overflow.
TEST(ShellIcons, BelievesNoFileMoreThanAHundredIconsThatItDoesNotHave) {
  const TemporaryFolder folder;
  ShellIcons icons;
  for (const int claimed : {101, 4000, 40000, 65535}) {
    const auto name = std::to_string(claimed) + ".dll";
    EXPECT_EQ(icons.CountIcons(folder.MakeFile(name, LyingLibrary(3, static_cast<std::uint16_t>(claimed)))), 3) << name;
  }
}

TEST(ShellIcons, NoBrokenIconHidesThoseBehindItWhereTheCountIsALie) {
  const TemporaryFolder folder;
  ShellIcons icons;
  std::vector pictures(50, BitmapPicture(16, 1, red, red));
  // Each of them broken alone, then the first half together.
  for (std::size_t broken = 0; broken < pictures.size() - 1; ++broken) {
    auto damaged = pictures;
    damaged[broken].data.clear();
    const std::string path = folder.MakeFile(std::to_string(broken) + ".dll", LyingLibrary(damaged, 4000));
    ASSERT_EQ(icons.Extract(path, static_cast<int>(broken)), nullptr);
    EXPECT_EQ(icons.CountIcons(path), 50) << "without icon " << broken;
  }
  for (IconPicture& picture : std::span(pictures).first(25)) picture.data.clear();
  EXPECT_EQ(icons.CountIcons(folder.MakeFile("half.dll", LyingLibrary(pictures, 4000))), 50);
}

TEST(ShellIcons, CountsAHundredIconsOrMoreThatAreThere) {
  const TemporaryFolder folder;
  ShellIcons icons;
  for (const int count : {100, 101, 250}) {
    const auto name = std::to_string(count) + ".dll";
    EXPECT_EQ(icons.CountIcons(folder.MakeFile(name, LyingLibrary(count, static_cast<std::uint16_t>(count)))), count);
  }
}

TEST(ShellIcons, KeepsNoHandles) {
  const TemporaryFolder folder;
  const std::vector<std::string> paths{folder.MakeFile("a.ico", OneIcon(BitmapPicture(32, 32, red, blue))),
                                       folder.MakeFile("a.ani", AnimationFile(std::array{red, green, blue})),
                                       folder.MakeFile("still.ani", IconFileOf(red, IconFileKind::Cursor))};
  ShellIcons icons;
  Surface surface(32, 32, background);
  const auto round = [&](const std::string& path) {
    ASSERT_GE(icons.CountIcons(path), 0);
    const auto icon = icons.Extract(path, 0);
    ASSERT_TRUE(icon && icon->Draw(surface, {0, 0}, 32, 0, DrawPart::Normal)) << path;
  };
  for (const std::string& path : paths) round(path);
  const int before = support::CountGdiObjects();
  for (int i = 0; i < 1000; ++i) {
    for (const std::string& path : paths) round(path);
  }
  EXPECT_EQ(support::CountGdiObjects(), before);
}

}  // namespace
}  // namespace tarvik
