#include "base/AsciiCase.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tarvik {
namespace {

constexpr std::string_view small = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view large = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

TEST(AsciiCase, ChangesTheLettersAndNoOtherByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    const std::size_t amongSmall = small.find(character);
    const std::size_t amongLarge = large.find(character);
    EXPECT_EQ(LowerAscii(character), amongLarge == std::string_view::npos ? character : small[amongLarge]) << byte;
    EXPECT_EQ(UpperAscii(character), amongSmall == std::string_view::npos ? character : large[amongSmall]) << byte;
  }
}

}  // namespace
}  // namespace tarvik
