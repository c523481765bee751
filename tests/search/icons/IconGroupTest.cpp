#include "search/icons/IconGroup.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "search/icons/Modules.h"

namespace tarvik {
namespace {

using support::PlainBitmap;
using Bytes = std::vector<std::byte>;

struct Listed {
  int width;
  int height;
  int bits;
};

// A group whose pictures are numbered 1, 2, 3 ...
Bytes Group(std::initializer_list<Listed> entries) {
  Bytes bytes;
  const auto append = [&bytes](int number, int width) {
    for (int i = 0; i < width; ++i, number /= 256) bytes.push_back(static_cast<std::byte>(number % 256));
  };
  append(0, 2);
  append(1, 2);
  append(static_cast<int>(entries.size()), 2);
  int number = 0;
  for (const Listed& entry : entries) {
    append(entry.width, 1);
    append(entry.height, 1);
    append(0, 1);
    append(0, 1);
    append(1, 2);
    append(entry.bits, 2);
    append(1000, 4);
    append(++number, 2);
  }
  return bytes;
}

// The number of the picture that is chosen among those, from 1; 0 if none is.
int Chosen(std::initializer_list<Listed> entries, const IconWish& wish = {.width = 32, .height = 32, .bits = 32}) {
  return ChoosePicture(Group(entries), wish).value_or(0);
}

Bytes With(Bytes bytes, std::size_t offset, std::uint32_t number, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) bytes[offset + i] = static_cast<std::byte>(number >> (8 * i));
  return bytes;
}

Bytes Cut(Bytes bytes, std::size_t size) {
  bytes.resize(size);
  return bytes;
}

TEST(IconGroupSize, IsThatOfAllItsEntries) {
  EXPECT_EQ(IconGroupSize(Group({})), 6U);
  EXPECT_EQ(IconGroupSize(Group({{32, 32, 4}})), 20U);
  EXPECT_EQ(IconGroupSize(Cut(Group({{32, 32, 4}, {32, 32, 8}, {16, 16, 4}}), 6)), 48U);
  EXPECT_EQ(IconGroupSize(With(Group({}), 4, 0xFFFF, 2)), 6U + 14U * 65535U);
}

TEST(IconGroupSize, IsZeroForWhatIsNoGroup) {
  EXPECT_EQ(IconGroupSize({}), 0U);
  EXPECT_EQ(IconGroupSize(Cut(Group({}), 5)), 0U);
  EXPECT_EQ(IconGroupSize(With(Group({}), 0, 1, 2)), 0U);
  EXPECT_EQ(IconGroupSize(With(Group({}), 2, 2, 2)), 0U) << "a group of cursors";
  EXPECT_EQ(IconGroupSize(With(Group({}), 2, 0, 2)), 0U);
  EXPECT_FALSE(ChoosePicture(With(Group({{32, 32, 4}}), 2, 2, 2), {}));
}

TEST(ChoosePicture, TakesTheNearestSize) {
  EXPECT_EQ(Chosen({{16, 16, 32}, {32, 32, 1}, {48, 48, 32}}), 2);
  EXPECT_EQ(Chosen({{16, 16, 4}, {48, 48, 4}}), 1);
  EXPECT_EQ(Chosen({{16, 16, 4}, {40, 40, 4}}), 2);
  EXPECT_EQ(Chosen({{64, 64, 4}, {16, 16, 4}}), 2);
  EXPECT_EQ(Chosen({{48, 48, 4}, {32, 32, 4}, {16, 16, 4}}, {.width = 16, .height = 16, .bits = 32}), 3);
}

TEST(ChoosePicture, MeasuresBothSides) {
  EXPECT_EQ(Chosen({{32, 16, 4}, {30, 30, 4}}), 2);
  EXPECT_EQ(Chosen({{16, 32, 4}, {30, 30, 4}}), 2);
  EXPECT_EQ(Chosen({{30, 30, 4}, {32, 16, 4}}), 1);
  EXPECT_EQ(Chosen({{24, 40, 4}, {16, 16, 4}}, {.width = 24, .height = 40, .bits = 4}), 1);
}

TEST(ChoosePicture, TakesTheNearestNumberOfBitsAmongThoseOfThatSize) {
  EXPECT_EQ(Chosen({{32, 32, 1}, {32, 32, 4}, {32, 32, 8}, {16, 16, 32}}), 3);
  EXPECT_EQ(Chosen({{32, 32, 8}, {32, 32, 4}}, {.width = 32, .height = 32, .bits = 4}), 2);
  EXPECT_EQ(Chosen({{32, 32, 24}, {32, 32, 8}}, {.width = 32, .height = 32, .bits = 8}), 2);
  EXPECT_EQ(Chosen({{32, 32, 24}, {32, 32, 8}}, {.width = 32, .height = 32, .bits = 17}), 1);
  EXPECT_EQ(Chosen({{32, 32, 24}, {32, 32, 8}}, {.width = 32, .height = 32, .bits = 15}), 2);
}

TEST(ChoosePicture, DoesNotTakeBitsForSidesThatAreOffElsewise) {
  // Both differ by 2 pixels, one in width and the other in height.
  EXPECT_EQ(Chosen({{30, 32, 4}, {32, 30, 32}}), 1);
  EXPECT_EQ(Chosen({{30, 32, 4}, {34, 32, 32}}), 2);
  EXPECT_EQ(Chosen({{31, 31, 4}, {30, 32, 32}}), 1);
  EXPECT_EQ(Chosen({{31, 31, 4}, {32, 30, 32}}), 1);
  // One side is equal, but the other differs more.
  EXPECT_EQ(Chosen({{32, 32, 4}, {32, 16, 32}}), 1);
  EXPECT_EQ(Chosen({{32, 32, 4}, {16, 32, 32}}), 1);
}

TEST(ChoosePicture, TakesTheFirstOfEquals) {
  EXPECT_EQ(Chosen({{32, 32, 4}, {32, 32, 4}}), 1);
  EXPECT_EQ(Chosen({{16, 16, 4}, {32, 32, 4}, {32, 32, 4}, {48, 48, 4}}), 2);
}

TEST(ChoosePicture, ReadsTwoZerosAs256) {
  EXPECT_EQ(Chosen({{0, 0, 32}, {64, 64, 4}}), 2);
  EXPECT_EQ(Chosen({{0, 0, 32}, {64, 64, 4}}, {.width = 256, .height = 256, .bits = 32}), 1);
  EXPECT_EQ(Chosen({{0, 0, 4}, {1, 1, 4}}), 2);
  EXPECT_EQ(Chosen({{0, 32, 4}, {64, 48, 4}}), 1) << "one alone is a side of no pixel";
  EXPECT_EQ(Chosen({{32, 0, 4}, {48, 64, 4}}), 1);
  EXPECT_EQ(Chosen({{0, 0, 4}, {255, 255, 4}}, {.width = 256, .height = 256, .bits = 4}), 1);
  EXPECT_EQ(Chosen({{0, 0, 4}, {255, 255, 4}}, {.width = 257, .height = 257, .bits = 4}), 1);
}

TEST(ChoosePicture, TakesAnyPictureRatherThanNone) {
  EXPECT_EQ(Chosen({{0, 0, 0}}), 1);
  EXPECT_EQ(Chosen({{255, 255, 65535}}), 1);
  EXPECT_EQ(Chosen({}), 0);
  EXPECT_FALSE(ChoosePicture({}, {}));
}

TEST(ChoosePicture, CountsTheEntriesThatAreThere) {
  const Bytes group = Group({{16, 16, 4}, {32, 32, 4}});
  EXPECT_EQ(ChoosePicture(group, {}), 2);
  EXPECT_EQ(ChoosePicture(Cut(group, 6 + 14 + 13), {}), 1);
  EXPECT_FALSE(ChoosePicture(Cut(group, 6 + 13), {}));
  EXPECT_EQ(ChoosePicture(With(group, 4, 1, 2), {}), 1) << "what follows the last entry is no entry";
}

TEST(ChoosePicture, ReadsAllOfAPicturesNumber) {
  EXPECT_EQ(ChoosePicture(With(Group({{32, 32, 4}}), 18, 0xABCD, 2), {}), 0xABCD);
}

struct Size {
  int bits;
  std::size_t bytes;
};

TEST(HoldsPicture, IsTrueForAWholeBitmapOfEveryDepth) {
  // The header, the colours, 17 rows of 33 pixels, each a multiple of 4 bytes long, and as many rows of the mask.
  for (const auto [bits, bytes] :
       {Size{1, 40 + 8 + 17 * (8 + 8)}, Size{4, 40 + 64 + 17 * (20 + 8)}, Size{8, 40 + 1024 + 17 * (36 + 8)},
        Size{16, 40 + 17 * (68 + 8)}, Size{24, 40 + 17 * (100 + 8)}, Size{32, 40 + 17 * (132 + 8)}}) {
    const Bytes bitmap = PlainBitmap(33, 17, bits);
    ASSERT_EQ(bitmap.size(), bytes);
    EXPECT_TRUE(HoldsPicture(bitmap)) << bits;
    EXPECT_TRUE(HoldsPicture(Cut(bitmap, bytes + 100))) << "what follows does not matter";
    EXPECT_FALSE(HoldsPicture(Cut(bitmap, bytes - 1))) << bits;
  }
}

TEST(HoldsPicture, IsFalseForDepthsThatNoIconHas) {
  for (const std::uint32_t bits : {0U, 2U, 3U, 5U, 9U, 31U, 33U, 64U, 0x101U, 0xFFFFU}) {
    EXPECT_FALSE(HoldsPicture(With(Cut(PlainBitmap(32, 32, 32), 100000), 14, bits, 2))) << bits;
  }
}

TEST(HoldsPicture, IsTrueForSidesFrom1To256Alone) {
  const Bytes large = Cut(PlainBitmap(256, 256, 32), 600000);
  EXPECT_TRUE(HoldsPicture(large));
  EXPECT_TRUE(HoldsPicture(PlainBitmap(1, 1, 1)));
  for (const std::uint32_t width : {0U, 257U, 0x80000000U, 0xFFFFFFFFU}) {
    EXPECT_FALSE(HoldsPicture(With(large, 4, width, 4))) << width;
  }
  for (const std::uint32_t height : {0U, 1U, 514U, 0x80000000U, 0xFFFFFFFFU}) {
    EXPECT_FALSE(HoldsPicture(With(large, 8, height, 4))) << height;
  }
}

TEST(HoldsPicture, AllowsForAHeaderThatIsLonger) {
  const Bytes bitmap = PlainBitmap(16, 16, 4);
  EXPECT_FALSE(HoldsPicture(With(bitmap, 0, 44, 4)));
  EXPECT_TRUE(HoldsPicture(With(Cut(bitmap, bitmap.size() + 4), 0, 44, 4)));
  EXPECT_FALSE(HoldsPicture(With(bitmap, 0, 39, 4)));
  EXPECT_FALSE(HoldsPicture(With(bitmap, 0, 12, 4))) << "the older header, which icons do not have";
  EXPECT_FALSE(HoldsPicture(With(bitmap, 0, 0xFFFFFFFF, 4)));
}

TEST(HoldsPicture, CountsTheColorsThatAreUsed) {
  const Bytes bitmap = PlainBitmap(16, 16, 8);
  EXPECT_TRUE(HoldsPicture(With(Cut(bitmap, bitmap.size() - 4), 32, 255, 4)));
  EXPECT_FALSE(HoldsPicture(With(Cut(bitmap, bitmap.size() - 5), 32, 255, 4)));
  EXPECT_TRUE(HoldsPicture(With(bitmap, 32, 256, 4)));
  EXPECT_TRUE(HoldsPicture(With(bitmap, 32, 0xFFFFFFFF, 4))) << "no more than 256 can be there";
  EXPECT_FALSE(HoldsPicture(With(Cut(bitmap, bitmap.size() - 1), 32, 0xFFFFFFFF, 4)));
  const Bytes trueColor = PlainBitmap(16, 16, 24);
  EXPECT_FALSE(HoldsPicture(With(trueColor, 32, 1, 4)));
  EXPECT_TRUE(HoldsPicture(With(Cut(trueColor, trueColor.size() + 4), 32, 1, 4)));
}

TEST(HoldsPicture, IsFalseForACompressedBitmap) {
  for (const std::uint32_t compression : {1U, 2U, 3U, 0x1000000U}) {
    EXPECT_FALSE(HoldsPicture(With(PlainBitmap(16, 16, 4), 16, compression, 4)));
  }
}

TEST(HoldsPicture, IsFalseForTooFewBytesForAHeader) {
  EXPECT_FALSE(HoldsPicture({}));
  EXPECT_FALSE(HoldsPicture(Cut(PlainBitmap(1, 1, 1), 39)));
}

Bytes Png(std::uint32_t width, std::uint32_t height) {
  std::string text("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
  for (const std::uint32_t side : {width, height}) {
    for (int shift = 24; shift >= 0; shift -= 8) text += static_cast<char>(side >> static_cast<unsigned>(shift));
  }
  const auto bytes = std::as_bytes(std::span(text));
  return {bytes.begin(), bytes.end()};
}

TEST(HoldsPicture, IsTrueForTheStartOfAPngWithSuchSides) {
  EXPECT_TRUE(HoldsPicture(Png(256, 256)));
  EXPECT_TRUE(HoldsPicture(Png(1, 1)));
  EXPECT_TRUE(HoldsPicture(Cut(Png(48, 48), 3000)));
  EXPECT_FALSE(HoldsPicture(Cut(Png(48, 48), 23)));
  for (const std::uint32_t side : {0U, 257U, 0x100U << 8U, 0x10000U, 0x01000001U, 0xFFFFFFFFU}) {
    EXPECT_FALSE(HoldsPicture(Png(side, 32))) << side;
    EXPECT_FALSE(HoldsPicture(Png(32, side))) << side;
  }
  for (std::size_t offset = 0; offset < 16; ++offset) {
    EXPECT_FALSE(HoldsPicture(With(Cut(Png(48, 48), 3000), offset, 0x55, 1))) << offset;
  }
}

// The limit on what is read of a picture is large enough for the largest one.
TEST(HoldsPicture, NeedsNoMoreBytesThanAreRead) {
  EXPECT_LE(With(PlainBitmap(256, 256, 32), 32, 256, 4).size() + std::size_t{4} * 256, maxPictureBytes);
}

}  // namespace
}  // namespace tarvik
