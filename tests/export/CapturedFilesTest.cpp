// Files of icons that were captured from real files, as the system reads them back. CapturedFiles.AreLeftForOthers
// writes the same files to the folder in TARVIK_CAPTURED_FOLDER, for read_captured.py.

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <fstream>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/FolderPath.h"
#include "export/CapturedFiles.h"
#include "export/FileFormats.h"
#include "platform/Handles.h"
#include "platform/Text.h"
#include "search/icons/ShellIcons.h"

namespace tarvik {
namespace {

using ModMicroArt::ColorClass;
using support::Capture;
using support::CapturedSource;
using support::ReadAll;
using support::TemporaryFolder;
using support::TestRaster;

constexpr std::array sizes{16, 32, 48, 64};

int BitsOf(ColorClass colors) {
  return fileFormats::DepthOf(colors).bitsPerPixel;
}

std::vector<Color> PixelsOf(const Surface& surface) {
  const auto side = static_cast<std::size_t>(surface.Width());
  std::vector<Color> pixels(side * side);
  surface.CopyPixels(pixels);
  return pixels;
}

// An icon or cursor file as the system loads and draws it.
struct LoadedIcon {
  bool isIcon = false;
  POINT hotSpot{};
  SIZE size{};
  std::vector<Color> image;
  std::vector<bool> transparent;
};

std::optional<LoadedIcon> LoadIconFile(const std::string& path, UINT type, int size) {
  const IconHandle icon(static_cast<HICON>(LoadImageA(nullptr, path.c_str(), type, size, size, LR_LOADFROMFILE)));
  ICONINFO info{};
  if (!icon || GetIconInfo(icon.get(), &info) == 0) return std::nullopt;
  const BitmapHandle color(info.hbmColor);
  const BitmapHandle mask(info.hbmMask);
  BITMAP bitmap{};
  GetObjectW(mask.get(), sizeof bitmap, &bitmap);
  // A black-and-white icon is one bitmap: the mask with the image below it.
  const LONG height = color ? bitmap.bmHeight : bitmap.bmHeight / 2;

  constexpr Color neitherBlackNorWhite = 0x808080;
  Surface imageDrawn(size, size, neitherBlackNorWhite);
  Surface maskDrawn(size, size, neitherBlackNorWhite);
  DrawIconEx(imageDrawn.Dc(), 0, 0, icon.get(), size, size, 0, nullptr, DI_IMAGE);
  DrawIconEx(maskDrawn.Dc(), 0, 0, icon.get(), size, size, 0, nullptr, DI_MASK);
  LoadedIcon loaded{.isIcon = info.fIcon != 0,
                    .hotSpot = {static_cast<LONG>(info.xHotspot), static_cast<LONG>(info.yHotspot)},
                    .size = {bitmap.bmWidth, height},
                    .image = PixelsOf(imageDrawn),
                    .transparent = {}};
  for (const Color pixel : PixelsOf(maskDrawn)) loaded.transparent.push_back(pixel == white);
  return loaded;
}

struct LoadedBitmap {
  SIZE size{};
  int bits = 0;
  std::vector<Color> pixels;
};

std::optional<LoadedBitmap> LoadBitmapFile(const std::string& path) {
  const BitmapHandle bitmap(static_cast<HBITMAP>(
      LoadImageA(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
  BITMAP facts{};
  if (!bitmap || GetObjectW(bitmap.get(), sizeof facts, &facts) == 0) return std::nullopt;
  const MemoryDc dc(CreateCompatibleDC(nullptr));
  const HGDIOBJ former = SelectObject(dc.get(), bitmap.get());
  const Surface drawn(facts.bmWidth, facts.bmHeight, black);
  BitBlt(drawn.Dc(), 0, 0, facts.bmWidth, facts.bmHeight, dc.get(), 0, 0, SRCCOPY);
  SelectObject(dc.get(), former);
  return LoadedBitmap{.size = {facts.bmWidth, facts.bmHeight}, .bits = facts.bmBitsPixel, .pixels = PixelsOf(drawn)};
}

// Every source at one size.
class CapturedAtSize : public ::testing::TestWithParam<int> {
 protected:
  void ForEachSource(const std::function<void(const Capture&, const std::string& path)>& check) const {
    for (const CapturedSource& source : support::MakeSources(folder_)) {
      SCOPED_TRACE(source.name);
      check(Capture(source, GetParam()), folder_.In(source.name + " saved"));
    }
  }

  static void ExpectSeen(const std::optional<LoadedIcon>& loaded, const Capture& capture) {
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size.cx, capture.Size());
    EXPECT_EQ(loaded->size.cy, capture.Size());
    EXPECT_TRUE(loaded->image == capture.SeenImage());
    EXPECT_TRUE(loaded->transparent == capture.SeenTransparent());
  }

  TemporaryFolder folder_;
};

TEST_P(CapturedAtSize, IconsAreLoadedWithImageAndTransparency) {
  ForEachSource([](const Capture& capture, const std::string& path) {
    ASSERT_TRUE(capture.WriteIcon(path));
    const auto loaded = LoadIconFile(path, IMAGE_ICON, capture.Size());
    ExpectSeen(loaded, capture);
    EXPECT_TRUE(loaded && loaded->isIcon);
  });
}

// In icons with an alpha channel every transparent pixel once came back as the inverse of the background.
TEST_P(CapturedAtSize, IconsWithAnAlphaChannelLeaveWhatIsBelowTheirTransparentPixels) {
  const int size = GetParam();
  for (const CapturedSource& source : support::MakeSources(folder_)) {
    if (source.name != "32-bit" && source.name != "png") continue;
    SCOPED_TRACE(source.name);
    const Capture capture(source, size);
    const std::string path = folder_.In("saved");
    ASSERT_TRUE(capture.WriteIcon(path));
    const IconHandle icon(
        static_cast<HICON>(LoadImageA(nullptr, path.c_str(), IMAGE_ICON, size, size, LR_LOADFROMFILE)));
    constexpr Color below = 0x40A0E0;
    const Surface drawn(size, size, below);
    DrawIconEx(drawn.Dc(), 0, 0, icon.get(), size, size, 0, nullptr, DI_NORMAL);
    // Their lower halves are transparent.
    EXPECT_EQ(drawn.Pixel(0, size - 1), below);
    EXPECT_EQ(drawn.Pixel(size - 1, size / 2), below);
    EXPECT_NE(drawn.Pixel(0, size / 2 - 1), below);
  }
}

TEST_P(CapturedAtSize, CursorsAreLoadedWithHotSpotImageAndTransparency) {
  ForEachSource([](const Capture& capture, const std::string& path) {
    ASSERT_TRUE(capture.WriteCursor(path));
    const auto loaded = LoadIconFile(path, IMAGE_CURSOR, capture.Size());
    ExpectSeen(loaded, capture);
    ASSERT_TRUE(loaded && !loaded->isIcon);
    EXPECT_EQ(loaded->hotSpot.x, capture.HotSpot().x);
    EXPECT_EQ(loaded->hotSpot.y, capture.HotSpot().y);
  });
}

TEST_P(CapturedAtSize, BitmapsAreLoadedWithDepthAndPixels) {
  ForEachSource([](const Capture& capture, const std::string& path) {
    ASSERT_TRUE(capture.WriteBitmap(path));
    const auto loaded = LoadBitmapFile(path);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size.cx, capture.Size());
    EXPECT_EQ(loaded->size.cy, capture.Size());
    EXPECT_EQ(loaded->bits, BitsOf(capture.BitmapClass()));
    EXPECT_TRUE(loaded->pixels == capture.SeenBitmap());
  });
}

// If a pixel of an icon's mask is white, the composed picture shows the background, otherwise the image. Through a
// half-transparent pixel the background is white in the composed picture and black in the image, so the two differ by
// the same amount in each channel.
TEST_P(CapturedAtSize, TheThreeSurfacesFitTogether) {
  ForEachSource([](const Capture& capture, const std::string&) {
    int transparent = 0;
    int half = 0;
    for (int y = 0; y < capture.Size(); ++y) {
      for (int x = 0; x < capture.Size(); ++x) {
        const bool seeThrough = capture.Mask().Pixel(x, y) == white;
        transparent += seeThrough ? 1 : 0;
        // Half-transparent pixels may be white or black in the mask.
        if (seeThrough) continue;
        const Color composed = capture.Composed().Pixel(x, y);
        const Color image = capture.Image().Pixel(x, y);
        const auto through = [&](unsigned channel) {
          return static_cast<int>(composed >> channel & 0xFFU) - static_cast<int>(image >> channel & 0xFFU);
        };
        constexpr int rounding = 2;
        ASSERT_NEAR(through(0), through(8), rounding) << x << ',' << y;
        ASSERT_NEAR(through(0), through(16), rounding) << x << ',' << y;
        ASSERT_GE(through(0), 0) << x << ',' << y;
        half += through(0) != 0 ? 1 : 0;
      }
    }
    // Only the edges of an icon.
    EXPECT_LT(half, capture.Size() * capture.Size() / 4);
    EXPECT_GT(transparent, 0);
    EXPECT_LT(transparent, capture.Size() * capture.Size());
  });
}

INSTANTIATE_TEST_SUITE_P(Sizes, CapturedAtSize, ::testing::ValuesIn(sizes), ::testing::PrintToStringParamName());

TEST(CapturedFiles, EveryColorClassOccurs) {
  const TemporaryFolder folder;
  std::set<int> iconBits;
  std::set<int> bitmapBits;
  for (const CapturedSource& source : support::MakeSources(folder)) {
    const Capture capture(source, 32);
    iconBits.insert(BitsOf(capture.IconClass()));
    bitmapBits.insert(BitsOf(capture.BitmapClass()));
  }
  EXPECT_EQ(iconBits, (std::set{1, 4, 8, 24}));
  EXPECT_EQ(bitmapBits, iconBits);
}

TEST(CapturedFiles, AnEntryOfAnAnimationIsCapturedAtItsStep) {
  const TemporaryFolder folder;
  for (const CapturedSource& source : support::MakeSources(folder)) {
    if (source.name != "step-3") continue;
    EXPECT_EQ(Capture(source, 32).Composed().Pixel(3, 3), 0x123456U);
  }
}

TEST(CapturedFiles, AnEntryWhoseFileIsGoneLeavesTheSurfacesCleared) {
  const TemporaryFolder folder;
  ShellIcons icons;
  for (const CapturedSource& source : support::MakeSources(folder)) {
    if (!source.entry.path.starts_with(folder.Path())) continue;
    IconSurfaces surfaces(32);
    ASSERT_TRUE(ModMicroArt::CaptureEntry(icons, source.entry, 32, surfaces.Clear())) << source.name;
    ASSERT_NE(DeleteFileW(ToWide(source.entry.path).c_str()), 0);
    EXPECT_FALSE(ModMicroArt::CaptureEntry(icons, source.entry, 32, surfaces.Clear())) << source.name;
    constexpr std::size_t pixels = std::size_t{32} * 32;
    for (const Surface* surface : {&surfaces.Mask(), &surfaces.Composed()})
      EXPECT_TRUE(PixelsOf(*surface) == std::vector(pixels, white)) << source.name;
    EXPECT_TRUE(PixelsOf(surfaces.Image()) == std::vector(pixels, black)) << source.name;
  }
}

using WriteFunction = bool (Capture::*)(const std::string& path) const;
constexpr std::array<WriteFunction, 3> everyWriter{&Capture::WriteIcon, &Capture::WriteCursor, &Capture::WriteBitmap};

TEST(CapturedFiles, ALongerFileIsReplacedWithNoByteKept) {
  const TemporaryFolder folder;
  const Capture capture(support::MakeSources(folder).front(), 16);
  const std::string target = folder.In("target");
  for (const WriteFunction write : everyWriter) {
    const std::string fresh = folder.In("fresh");
    DeleteFileW(ToWide(fresh).c_str());
    ASSERT_TRUE((capture.*write)(fresh));
    folder.MakeFile("target", std::string(50000, 'x'));
    ASSERT_TRUE((capture.*write)(target));
    EXPECT_TRUE(ReadAll(target) == ReadAll(fresh));
    EXPECT_LT(ReadAll(target).size(), 1000U);
    DeleteFileW(ToWide(target).c_str());
  }
}

TEST(CapturedFiles, NothingIsWrittenWhereNoFileCanBe) {
  const TemporaryFolder folder;
  const Capture capture(support::MakeSources(folder).front(), 16);
  const std::string aFolder = folder.MakeFolder("a folder");
  // No user, whatever the rights, can make a file there: the folder belongs to the kernel, or the drive does not exist.
  const std::string inReadOnlyFolder = R"(Z:\proc\tarvik-test.ico)";
  for (const std::string& path : {aFolder, inReadOnlyFolder, folder.In(R"(no folder\a.ico)")}) {
    for (const WriteFunction write : everyWriter) EXPECT_FALSE((capture.*write)(path)) << path;
  }
  EXPECT_NE(GetFileAttributesW(ToWide(aFolder).c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0U);
  EXPECT_EQ(GetFileAttributesW(ToWide(inReadOnlyFolder).c_str()), INVALID_FILE_ATTRIBUTES);
}

void WritePnm(const std::string& path, const TestRaster& raster, bool gray) {
  std::ofstream file(ToWide(path).c_str(), std::ios::binary);
  file << (gray ? "P5 " : "P6 ") << raster.Width() << ' ' << raster.Height() << " 255\n";
  for (const Color color : raster.Pixels()) {
    file.put(static_cast<char>(RedOf(color)));
    if (!gray) file.put(static_cast<char>(GreenOf(color))).put(static_cast<char>(BlueOf(color)));
  }
  EXPECT_TRUE(file.good()) << path;
}

std::string FolderForOthers(const TemporaryFolder& otherwise) {
  std::array<wchar_t, 1024> folder{};
  const DWORD length =
      GetEnvironmentVariableW(L"TARVIK_CAPTURED_FOLDER", folder.data(), static_cast<DWORD>(folder.size()));
  if (length == 0 || length >= folder.size()) return otherwise.Path();
  CreateDirectoryW(folder.data(), nullptr);
  return ToUtf8(folder.data());
}

TEST(CapturedFiles, AreLeftForOthers) {
  const TemporaryFolder folder;
  const std::string target = FolderForOthers(folder);
  std::ofstream listing(ToWide(JoinPath(target, "captured.txt")).c_str());
  for (const CapturedSource& source : support::MakeSources(folder)) {
    for (const int size : sizes) {
      const Capture capture(source, size);
      const std::string name = std::to_string(size) + "-" + source.name;
      const std::string stem = JoinPath(target, name);
      EXPECT_TRUE(capture.WriteIcon(stem + ".ico"));
      EXPECT_TRUE(capture.WriteCursor(stem + ".cur"));
      EXPECT_TRUE(capture.WriteBitmap(stem + ".bmp"));
      WritePnm(stem + ".ppm", capture.Image(), false);
      WritePnm(stem + ".pgm", capture.Mask(), true);
      WritePnm(stem + "-composed.ppm", capture.Composed(), false);
      listing << name << ' ' << size << ' ' << BitsOf(capture.IconClass()) << ' ' << BitsOf(capture.BitmapClass())
              << ' ' << int{capture.HotSpot().x} << ' ' << int{capture.HotSpot().y} << '\n';
    }
  }
  EXPECT_TRUE(listing.good());
}

}  // namespace
}  // namespace tarvik
