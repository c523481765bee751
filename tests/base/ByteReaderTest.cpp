#include "base/ByteReader.h"

#include <gtest/gtest.h>

#include <array>

namespace tarvik {
namespace {

constexpr std::array bytes{std::byte{0x01}, std::byte{0xF2}, std::byte{0x83}, std::byte{0xC4}, std::byte{0xA5}};

TEST(ByteReader, ReadsNumbersFromTheirLowByte) {
  EXPECT_EQ(U8At(bytes, 1), 0xF2U);
  EXPECT_EQ(U16At(bytes, 0), 0xF201U);
  EXPECT_EQ(U16At(bytes, 3), 0xA5C4U);
  EXPECT_EQ(U32At(bytes, 0), 0xC483F201U);
  EXPECT_EQ(U32At(bytes, 1), 0xA5C483F2U);
}

TEST(ByteReader, ReadsNumbersFromTheirHighByte) {
  EXPECT_EQ(BigU32At(bytes, 0), 0x01F283C4U);
  EXPECT_EQ(BigU32At(bytes, 1), 0xF283C4A5U);
}

}  // namespace
}  // namespace tarvik
