#include "export/TemporaryBitmap.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "support/TestRaster.h"

namespace tarvik {
namespace {

using support::ReadAll;
using support::TemporaryFolder;
using support::TestRaster;

bool Exists(const std::string& path) {
  return GetFileAttributesW(ToWide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

class TemporaryBitmapTest : public ::testing::Test {
 protected:
  TemporaryFolder folder;
  std::string first = folder.In("tmp.bmp");
  std::string second = folder.MakeFolder("second") + "\\";
  TemporaryBitmap bitmap{{first, second}};
};

TEST_F(TemporaryBitmapTest, GivesThePictureBackAsItIs) {
  for (const int size : {16, 32, 48, 64, 16}) {
    const TestRaster picture(size,
                             [](int x, int y) { return static_cast<Color>(x * 3 + y * 700 + x * y * 65537) & white; });
    const PixelView* const back = bitmap.PassThrough(picture);
    ASSERT_NE(back, nullptr);
    ASSERT_EQ(back->Width(), size);
    ASSERT_EQ(back->Height(), size);
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) ASSERT_EQ(back->Pixel(x, y), picture.Pixel(x, y)) << size << ' ' << x << ' ' << y;
  }
}

TEST_F(TemporaryBitmapTest, IsAtItsFirstPathWhileItLives) {
  ASSERT_NE(bitmap.PassThrough(TestRaster(16, 16)), nullptr);
  EXPECT_EQ(bitmap.Path(), first);
  EXPECT_TRUE(Exists(first));
  bitmap.Delete();
  EXPECT_FALSE(Exists(first));
  EXPECT_EQ(bitmap.Path(), "");
}

TEST_F(TemporaryBitmapTest, IsTrueColourAndAsLongAsItsPicture) {
  ASSERT_NE(bitmap.PassThrough(TestRaster(64, 64, white)), nullptr);
  ASSERT_NE(bitmap.PassThrough(TestRaster(16, 16, white)), nullptr);
  WIN32_FILE_ATTRIBUTE_DATA data{};
  ASSERT_NE(GetFileAttributesExW(ToWide(first).c_str(), GetFileExInfoStandard, &data), 0);
  EXPECT_EQ(data.nFileSizeLow, 14U + 40U + 16U * 16U * 3U);
}

TEST_F(TemporaryBitmapTest, LeavesAFileOfTheUsersAlone) {
  folder.MakeFile("tmp.bmp", "mine");
  ASSERT_NE(bitmap.PassThrough(TestRaster(16, 16)), nullptr);
  const std::string path = bitmap.Path();
  EXPECT_TRUE(path.starts_with(second)) << path;
  EXPECT_TRUE(Exists(path));
  bitmap.Delete();
  EXPECT_FALSE(Exists(path));
  EXPECT_EQ(ReadAll(first), "mine");
}

TEST_F(TemporaryBitmapTest, IsGoneWithItsOwner) {
  {
    TemporaryBitmap other({first, second});
    ASSERT_NE(other.PassThrough(TestRaster(16, 16)), nullptr);
    EXPECT_TRUE(Exists(first));
  }
  EXPECT_FALSE(Exists(first));
}

TEST_F(TemporaryBitmapTest, GivesNothingWhereThereIsNoPlaceForIt) {
  TemporaryBitmap nowhere({folder.In("missing\\tmp.bmp"), folder.In("missing\\")});
  EXPECT_EQ(nowhere.PassThrough(TestRaster(16, 16)), nullptr);
}

TEST_F(TemporaryBitmapTest, GivesTwoProgramsOneFileEach) {
  TemporaryBitmap other({first, second});
  ASSERT_NE(bitmap.PassThrough(TestRaster(16, 16)), nullptr);
  ASSERT_NE(other.PassThrough(TestRaster(16, 16)), nullptr);
  EXPECT_NE(bitmap.Path(), other.Path());
}

TEST(TemporaryBitmapPaths, AreTheDriveRootAndTheUsersFolder) {
  const TemporaryBitmap::Paths paths = TemporaryBitmapPaths();
  EXPECT_EQ(paths.path, "C:\\tmp.bmp");
  EXPECT_TRUE(paths.folder.ends_with('\\'));
}

}  // namespace
}  // namespace tarvik
