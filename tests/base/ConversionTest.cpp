#include "base/Conversion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvik {
namespace {

TEST(RoundToEven, GoesToTheNearestAndHalvesToTheEvenNeighbour) {
  EXPECT_EQ(RoundToEven(37.6), 38);
  EXPECT_EQ(RoundToEven(37.4), 37);
  EXPECT_EQ(RoundToEven(2.5), 2);
  EXPECT_EQ(RoundToEven(3.5), 4);
  EXPECT_EQ(RoundToEven(-0.5), 0);
  EXPECT_EQ(RoundToEven(-1.5), -2);
}

TEST(ToInteger16, ReadsWhatUsersWriteForANumber) {
  EXPECT_EQ(ToInteger16("300"), 300);
  EXPECT_EQ(ToInteger16("  -12 "), -12);
  EXPECT_EQ(ToInteger16("+7"), 7);
  EXPECT_EQ(ToInteger16("2.5"), 2);
  EXPECT_EQ(ToInteger16(".5e1"), 5);
  EXPECT_EQ(ToInteger16("1,000"), 1000);
  EXPECT_EQ(ToInteger16("&H1F"), 31);
  EXPECT_EQ(ToInteger16("32767"), 32767);
}

TEST(ToInteger16, TakesANumberTooSmallForADoubleForZero) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string("1e-400"), std::string("-1e-400"), "." + zeros + "1", "0." + zeros + "1e+20", "1" + zeros + "e-900",
        std::string("1e-99999999999999999999")})
    EXPECT_EQ(ToInteger16(text), 0) << text;
}

TEST(ToInteger16, OverflowsForANumberTooLargeForADouble) {
  const std::string zeros(400, '0');
  for (const std::string& text : {std::string("1e400"), std::string("-1e400"), "1" + zeros, "1" + zeros + "e-20",
                                  "." + zeros + "1e+900", std::string("1E+99999999999999999999")})
    EXPECT_THROW(ToInteger16(text), OverflowError) << text;
}

TEST(ToInteger16, RefusesATextThatIsNoNumber) {
  for (const std::string text : {"", "  ", "abc", "12x", "--1", "+-1", "inf", "nan", "-", "&H", "1,,0", ",1", "1 2"}) {
    EXPECT_THROW(ToInteger16(text), TypeMismatchError) << '"' << text << '"';
  }
}

TEST(ToInteger16, OverflowsOutsideSixteenBits) {
  for (const std::string text : {"32768", "-32769", "32767.5", "1e300", "1e999", "&HFFFFFFFFFFFFFFFFF"}) {
    EXPECT_THROW(ToInteger16(text), OverflowError) << text;
  }
}

}  // namespace
}  // namespace tarvik
