// Icons of every depth, saved at every size. Each pixel of the files is compared with what the platform draws.

#include <windows.h>

#include <gtest/gtest.h>
#include <shellapi.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "end_to_end/SavingTest.h"
#include "export/ImageFileReader.h"
#include "export/SeenPixels.h"
#include "platform/Handles.h"
#include "platform/Surface.h"
#include "support/TestRaster.h"

namespace tarvik::end_to_end {
namespace {

using support::Bytes;
using support::IconPicture;
using support::TestRaster;

// The colour of a pixel; none if it is transparent.
using Formula = std::function<std::optional<Color>(int x, int y)>;

// A file of one 24-bit picture of 32 pixels.
Bytes IconOf(const Formula& formula) {
  constexpr int side = 32;
  constexpr std::size_t headerBytes = 40;
  constexpr std::size_t rowBytes = 3 * side;
  constexpr std::size_t maskRowBytes = side / 8;
  IconPicture picture = support::BitmapPicture(side, 24, black, black);
  for (int y = 0; y < side; ++y) {
    const auto row = static_cast<std::size_t>(side - 1 - y);  // rows are stored from the bottom up
    for (int x = 0; x < side; ++x) {
      const std::optional<Color> color = formula(x, y);
      std::byte* const pixel = &picture.data[headerBytes + row * rowBytes + static_cast<std::size_t>(x) * 3];
      pixel[0] = std::byte{BlueOf(color.value_or(black))};
      pixel[1] = std::byte{GreenOf(color.value_or(black))};
      pixel[2] = std::byte{RedOf(color.value_or(black))};
      std::byte& mask =
          picture.data[headerBytes + side * rowBytes + row * maskRowBytes + static_cast<std::size_t>(x) / 8];
      const std::byte bit{static_cast<unsigned char>(0x80U >> static_cast<unsigned>(x % 8))};
      mask = color ? mask & ~bit : mask | bit;
    }
  }
  return support::IconFile({&picture, 1});
}

// A colour for each pixel that no other one has, and that is neither black nor white.
Color OwnColor(int x, int y) {
  return static_cast<Color>(x * 8) << 16U | static_cast<Color>(y * 8) << 8U | static_cast<Color>(200 - (x + y) * 3);
}

// Colours and transparency change from pixel to pixel, so that no two neighbours can be confused.
std::optional<Color> OfEight(int x, int y) {
  constexpr std::array<Color, 8> standard{0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00, 0x808080, white};
  if ((x * 3 + y * 5) % 7 == 0) return std::nullopt;
  return standard.at(static_cast<std::size_t>(x * 5 + y * 3) % standard.size());
}

std::optional<Color> OfTwo(int x, int y) {
  if ((x * 5 + y * 3) % 11 < 3) return std::nullopt;
  return (x * x + y) % 3 == 0 ? white : black;
}

// An icon as the platform draws it at a size: its parts, and the whole over white.
struct Drawn {
  TestRaster mask;
  TestRaster image;
  TestRaster composed;
};

TestRaster DrawPart(const IconHandle& icon, int side, Color background, UINT part) {
  const Surface surface(side, side, background);
  EXPECT_NE(DrawIconEx(surface.Dc(), 0, 0, icon.get(), side, side, 0, nullptr, part), 0);
  return {side, [&](int x, int y) { return Color{surface.Pixel(x, y)}; }};
}

Drawn Draw(const Entry& entry, int side) {
  HICON extracted = nullptr;
  ExtractIconExA(entry.path.c_str(), entry.index, &extracted, nullptr, 1);
  const IconHandle icon(extracted);
  return {.mask = DrawPart(icon, side, white, DI_MASK),
          .image = DrawPart(icon, side, black, DI_IMAGE),
          .composed = DrawPart(icon, side, white, DI_NORMAL)};
}

std::vector<std::uint8_t> BytesOf(const std::string& path) {
  const std::string bytes = support::ReadAll(path);
  return {bytes.begin(), bytes.end()};
}

class SavedAtSize : public Saving, public ::testing::WithParamInterface<IconSizeChoice> {
 protected:
  void FindEveryDepth() {
    MakePictures();
    const auto where = [](bool isOpaque, int x, int y) {
      return isOpaque ? std::optional(OwnColor(x, y)) : std::nullopt;
    };
    tree_.MakeFile("5.ico", IconOf([&](int x, int y) { return where(x < 16 || y < 12, x, y); }));
    // At 16 pixels one is transparent, and the other 255 are more than a palette holds.
    tree_.MakeFile("6.ico", IconOf([&](int x, int y) { return where(x >= 2 || y >= 2, x, y); }));
    const IconPicture withAlpha = support::BitmapPicture(32, 32, 0x4020C0, 0x10B030);
    tree_.MakeFile("7.ico", support::IconFile({&withAlpha, 1}));
    tree_.MakeFile("8.ico", IconOf(OfEight));
    tree_.MakeFile("9.ico", IconOf(OfTwo));
    Start();
    ChooseSize(GetParam());
    Find();
    ASSERT_EQ(List().RowCount(), 10);
    KeepAsFound();
  }
  int Side() const { return gridGeometries.at(static_cast<std::size_t>(GetParam())).IconSize; }

  static void ExpectIcon(const ReadImage& file, const Drawn& drawn) {
    EXPECT_EQ(file.width, drawn.image.Width());
    EXPECT_EQ(file.height, drawn.image.Height());
    EXPECT_TRUE(file.colors == SeenImage(drawn.image, drawn.mask, file.bitsPerPixel));
    EXPECT_TRUE(file.transparent == SeenTransparent(drawn.image, drawn.mask, file.bitsPerPixel));
  }
  static void ExpectBitmap(const ReadImage& file, const Drawn& drawn) {
    EXPECT_EQ(file.width, drawn.composed.Width());
    EXPECT_EQ(file.height, drawn.composed.Height());
    EXPECT_TRUE(file.colors == SeenBitmap(drawn.composed, file.bitsPerPixel));
  }
};

TEST_P(SavedAtSize, EveryPixelOfIconsCursorsAndBitmapsIsAsThePlatformDrawsIt) {
  ASSERT_NO_FATAL_FAILURE(FindEveryDepth());
  for (const int command : {FrmFindIcon_mnuSaveAll, FrmFindIcon_mnuSaveAll2, FrmFindIcon_mnuSaveAll3})
    SaveBatch(command);
  std::set<int> depths;
  int number = 0;
  for (const Entry& entry : Entries()) {
    SCOPED_TRACE(entry.path);
    const Drawn drawn = Draw(entry, Side());
    const std::string name = std::to_string(++number);
    const ReadImage icon = ReadIconOrCursor(BytesOf(Out("Icon " + name + ".ico")));
    ExpectIcon(icon, drawn);
    ExpectIcon(ReadIconOrCursor(BytesOf(Out("Curor " + name + ".cur"))), drawn);
    ExpectBitmap(ReadBitmap(BytesOf(Out("Images " + name + ".bmp"))), drawn);
    depths.insert(icon.bitsPerPixel);
  }
  EXPECT_EQ(number, 10);
  EXPECT_EQ(depths, (std::set{1, 4, 8, 24}));
}

INSTANTIATE_TEST_SUITE_P(Sizes, SavedAtSize, ::testing::Values(Size16, Size32, Size48, Size64), [](const auto& size) {
  return std::to_string(gridGeometries.at(static_cast<std::size_t>(size.param)).IconSize);
});

}  // namespace
}  // namespace tarvik::end_to_end
