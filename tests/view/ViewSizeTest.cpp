#include "view/ViewSize.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <limits>
#include <string>

#include "support/FakeHost.h"
#include "support/MemoryIni.h"

namespace tarvik {
namespace {

constexpr float largest = std::numeric_limits<float>::max();

class ViewSizeTest : public ::testing::Test {
 protected:
  support::MemoryIni store_;
  Settings settings_{store_, "C:\\program\\tarvik.exe"};
};

TEST_F(ViewSizeTest, IsTheDesignedOneWhereNoneIsStored) {
  EXPECT_EQ(ReadViewSize(settings_), (ViewSize{5310, 6645}));
}

TEST_F(ViewSizeTest, ComesBackAsItWasKept) {
  for (const ViewSize size : {ViewSize{5310, 6645}, ViewSize{4507.5F, 1.0F / 3}, ViewSize{0, 123456.7F}}) {
    WriteViewSize(settings_, size);
    EXPECT_EQ(ReadViewSize(settings_), size);
  }
}

TEST_F(ViewSizeTest, IsStoredAsDecimalTextWithAPoint) {
  WriteViewSize(settings_, {6000, 7507.5F});
  EXPECT_EQ(store_.values.at("Bitmapview/Height"), "6000");
  EXPECT_EQ(store_.values.at("Bitmapview/Width"), "7507.5");
}

// Compared with the standard library's shortest text.
TEST_F(ViewSizeTest, IsStoredWithAsFewDecimalsAsItNeeds) {
  for (const float side : {0.0F, 0.1F, 1.0F / 3, 7.5F, 99.99F, 4507.5F, 6645.0F, 123456.7F, 16777216.0F, 3e9F, 1.5e-7F,
                           std::numeric_limits<float>::denorm_min(), largest, -largest, -0.25F}) {
    std::array<char, 256> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), side, std::chars_format::fixed).ptr;
    WriteViewSize(settings_, {side, 0});
    EXPECT_EQ(store_.values.at("Bitmapview/Height"), std::string(digits.data(), end));
  }
}

TEST(LeadingNumber, IsWhatATextBeginsWith) {
  struct Row {
    std::string text;
    float number;
  };
  const auto rows = std::to_array<Row>({
      {"5310", 5310},
      {"5310.25", 5310.25F},
      {" \t 42", 42},
      {"+42", 42},
      {"-42", -42},
      {".5", 0.5F},
      {"1e3", 1000},
      {"12 inches", 12},
      {"1,5", 1},
      {"5310,75", 5310},
      {"", 0},
      {"   ", 0},
      {"wide", 0},
      {"-", 0},
      {".", 0},
      {"+-1", 0},
      {"inf", 0},
      {"nan", 0},
      {"-inf", 0},
      {"0x10", 0},
      {"1e39", largest},
      {"-1e39", -largest},
      {"1e400", largest},
      {"-1e400", -largest},
      {"1e-400", 0},
      {"-1e-400", 0},
      {"1e-60", 0},
      {"\xE4\xB8\xAD", 0},
      {"12\xE4\xB8\xAD", 12},
      {"\x01\x02", 0},
  });
  for (const auto& row : rows) EXPECT_EQ(LeadingNumber(row.text), row.number) << '"' << row.text << '"';
}

TEST(NearestPixels, ConvertsTwipsAtTheDisplaysResolution) {
  EXPECT_EQ(NearestPixels(5310, 96), 354);
  EXPECT_EQ(NearestPixels(6645, 96), 443);
  EXPECT_EQ(NearestPixels(5310, 192), 708);
  EXPECT_EQ(NearestPixels(5317.5F, 96), 355) << "a half is rounded up";
}

TEST(NearestPixels, KeepsNoBoundButThatOfTheNumber) {
  EXPECT_EQ(NearestPixels(0, 96), 0);
  EXPECT_EQ(NearestPixels(-5310, 96), -354);
  EXPECT_EQ(NearestPixels(1500000, 96), 100000);
  EXPECT_EQ(NearestPixels(largest, 96), std::numeric_limits<int>::max());
  EXPECT_EQ(NearestPixels(-largest, 96), std::numeric_limits<int>::min());
}

}  // namespace
}  // namespace tarvik
