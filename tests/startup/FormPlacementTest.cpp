#include "startup/FormPlacement.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "forms/Application.h"
#include "platform/AutomationObject.h"
#include "resource.h"

namespace tarvik {
namespace {

class FormPlacementTest : public ::testing::Test {
 protected:
  RECT PlaceAfterCentering(int width, int height) {
    form.Load();
    SetWindowPos(form.Window(), nullptr, 5, 7, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    basInitEntry::CenterForm(form);
    RECT place;
    GetWindowRect(form.Window(), &place);
    return place;
  }

  const int screenWidth = GetSystemMetrics(SM_CXSCREEN);
  const int screenHeight = GetSystemMetrics(SM_CYSCREEN);
  Application application{GetModuleHandleW(nullptr)};
  Form form{application, Dialog_FrmSpash};
};

TEST_F(FormPlacementTest, CentersAWindowAThirdOfTheSpareHeightDown) {
  const RECT place = PlaceAfterCentering(screenWidth - 300, screenHeight - 300);
  EXPECT_EQ(place.left, 150);
  EXPECT_EQ(place.top, 100);
}

TEST_F(FormPlacementTest, LeavesTheSizeAlone) {
  const RECT place = PlaceAfterCentering(501, 377);
  EXPECT_EQ(place.right - place.left, 501);
  EXPECT_EQ(place.bottom - place.top, 377);
}

TEST_F(FormPlacementTest, PutsAWindowAsLargeAsTheScreenIntoItsCorner) {
  const RECT place = PlaceAfterCentering(screenWidth, screenHeight);
  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 0);
}

TEST_F(FormPlacementTest, AppliesNoSkinWhereThereIsNone) {
  form.Load();
  EXPECT_FALSE(basInitEntry::ApplySkinToForm(form));
  EXPECT_EQ(form.Skn, nullptr);
}

}  // namespace
}  // namespace tarvik
