// The size of the enhanced view's window, and where it is stored.

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "startup/Centering.h"
#include "view/ViewFixture.h"
#include "view/ViewSize.h"
#include "view/frmBit.h"

namespace tarvik {
namespace {

class frmBitSizeTest : public support::ViewFixture {};

TEST_F(frmBitSizeTest, OpensAtItsDesignedSizeOnTheFirstRun) {
  WhileOpen([this] {
    EXPECT_EQ(WindowSize().cx, 443);
    EXPECT_EQ(WindowSize().cy, 354);
  });
}

TEST_F(frmBitSizeTest, OpensInTheMiddleAThirdOfTheSpareHeightDown) {
  WhileOpen([this] { support::ExpectCentered(view->Window()); });
  store.values["Bitmapview/Height"] = "7605";
  store.values["Bitmapview/Width"] = "9165";
  WhileOpen([this] {
    EXPECT_EQ(WindowSize().cx, 611);
    support::ExpectCentered(view->Window());
  });
}

TEST_F(frmBitSizeTest, KeepsItsSizeBetweenOpenings) {
  WhileOpen([this] { SetWindowPos(view->Window(), nullptr, 0, 0, 611, 507, SWP_NOMOVE | SWP_NOZORDER); });
  EXPECT_EQ(store.values.at("Bitmapview/Width"), "9165");
  EXPECT_EQ(store.values.at("Bitmapview/Height"), "7605");
  WhileOpen([this] {
    EXPECT_EQ(WindowSize().cx, 611);
    EXPECT_EQ(WindowSize().cy, 507);
  });
}

TEST_F(frmBitSizeTest, KeepsTheSizeBehindAMinimisedWindow) {
  WhileOpen([this] {
    SetWindowPos(view->Window(), nullptr, 0, 0, 611, 507, SWP_NOMOVE | SWP_NOZORDER);
    ShowWindow(view->Window(), SW_MINIMIZE);
  });
  EXPECT_EQ(store.values.at("Bitmapview/Width"), "9165");
  EXPECT_EQ(store.values.at("Bitmapview/Height"), "7605");
}

// The size in pixels that the system allows for a side of that many twips at 96 dpi.
int AllowedPixels(float twips, int minMetric, int maxMetric) {
  const int pixels = NearestPixels(twips, 96);
  return std::clamp(pixels, GetSystemMetrics(minMetric), GetSystemMetrics(maxMetric));
}

TEST_F(frmBitSizeTest, FollowsWhateverIsStoredWithinTheSystemsOwnLimits) {
  for (const char* text : {"3000", "450", "", "wide", "0", "-5310", "1e400", "1e-400", "-1e400", "99999999", "18000",
                           "12 inches", "5310,75", "\x01"}) {
    store.values["Bitmapview/Height"] = text;
    store.values["Bitmapview/Width"] = text;
    WhileOpen([&] {
      EXPECT_EQ(WindowSize().cx, AllowedPixels(LeadingNumber(text), SM_CXMINTRACK, SM_CXMAXTRACK)) << text;
      EXPECT_EQ(WindowSize().cy, AllowedPixels(LeadingNumber(text), SM_CYMINTRACK, SM_CYMAXTRACK)) << text;
    });
  }
}

TEST_F(frmBitSizeTest, BeginsOnTheScreenHoweverLargeItIs) {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  for (const char* text : {"0", "15000", "99999999"}) {
    store.values["Bitmapview/Height"] = text;
    store.values["Bitmapview/Width"] = text;
    WhileOpen([&] {
      RECT bounds{};
      GetWindowRect(view->Window(), &bounds);
      EXPECT_GE(bounds.left, area.left) << text;
      EXPECT_GE(bounds.top, area.top) << text;
      EXPECT_LT(bounds.left, area.right) << text;
      EXPECT_LT(bounds.top, area.bottom) << text;
    });
  }
}

TEST_F(frmBitSizeTest, CanBeMadeSmallerThanItsToolbar) {
  WhileOpen([this] {
    SetWindowPos(view->Window(), nullptr, 0, 0, 150, 100, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(WindowSize().cx, 150);
    EXPECT_EQ(WindowSize().cy, 100);
  });
  EXPECT_EQ(store.values.at("Bitmapview/Width"), "2250");
  EXPECT_EQ(store.values.at("Bitmapview/Height"), "1500");
}

}  // namespace
}  // namespace tarvik
