#include "base/Integer16.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(Integer16, HoldsTheWholeRange) {
  EXPECT_EQ(Integer16(32767), 32767);
  EXPECT_EQ(Integer16(-32768), -32768);
}

TEST(Integer16, ThrowsInsteadOfWrapping) {
  EXPECT_THROW(Integer16(32768), OverflowError);
  EXPECT_THROW(Integer16(-32769), OverflowError);
  Integer16 number = 32767;
  EXPECT_THROW(number += 1, OverflowError);
  EXPECT_EQ(number, 32767) << "a refused value must not be stored";
  number = -32768;
  EXPECT_THROW(number -= 1, OverflowError);
}

}  // namespace
}  // namespace tarvik
