// The size of the enhanced view's window, and where it is kept.

#include <gmock/gmock.h>

#include <string>

#include "startup/Centering.h"
#include "view/ViewFixture.h"
#include "view/frmBit.h"

namespace tarvik {
namespace {

class frmBitSizeTest : public testing::ViewFixture {};

TEST_F(frmBitSizeTest, OpensAtItsDesignedSizeOnTheFirstRun) {
  WhileOpen([this] {
    EXPECT_EQ(WindowSize().cx, 443);
    EXPECT_EQ(WindowSize().cy, 354);
  });
}

TEST_F(frmBitSizeTest, OpensInTheMiddleAThirdOfTheSpareHeightDown) {
  WhileOpen([this] { testing::ExpectCentered(view->Window()); });
  store.values["Bitmapview/Height"] = "7605";
  store.values["Bitmapview/Width"] = "9165";
  WhileOpen([this] {
    EXPECT_EQ(WindowSize().cx, 611);
    testing::ExpectCentered(view->Window());
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

TEST_F(frmBitSizeTest, CanBeSeenAndUsedWhateverSizeIsStored) {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  for (const char* text : {"", "wide", "0", "-5310", "1e400", "-1e400", "99999999", "12 inches", "5310,75", "\x01"}) {
    store.values["Bitmapview/Height"] = text;
    store.values["Bitmapview/Width"] = text;
    WhileOpen([&] {
      RECT place{};
      GetWindowRect(view->Window(), &place);
      EXPECT_GE(place.left, area.left) << text;
      EXPECT_GE(place.top, area.top) << text;
      EXPECT_LE(place.right, area.right) << text;
      EXPECT_LE(place.bottom, area.bottom) << text;
      RECT inner{};
      GetClientRect(view->Window(), &inner);
      RECT exit{};
      SendMessageW(Item(frmBit_tlb_control), TB_GETRECT, frmBit_tlb_control_Exit, reinterpret_cast<LPARAM>(&exit));
      EXPECT_LE(exit.right, inner.right) << text;
      EXPECT_LE(PlaceOf(frmBit_CboZoom).bottom, PlaceOf(frmBit_sbMain).top) << text;
    });
  }
}

TEST_F(frmBitSizeTest, CannotBeMadeSmallerThanItsToolbar) {
  WhileOpen([this] {
    SetWindowPos(view->Window(), nullptr, 0, 0, 20, 20, SWP_NOMOVE | SWP_NOZORDER);
    RECT inner{};
    GetClientRect(view->Window(), &inner);
    EXPECT_LE(PlaceOf(frmBit_CboZoom).bottom, PlaceOf(frmBit_sbMain).top);
    RECT exit{};
    SendMessageW(Item(frmBit_tlb_control), TB_GETRECT, frmBit_tlb_control_Exit, reinterpret_cast<LPARAM>(&exit));
    EXPECT_LE(exit.right, inner.right);
  });
}

}  // namespace
}  // namespace tarvik
