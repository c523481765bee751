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
  RECT BoundsAfterCentering(int width, int height) {
    form.Load();
    SetWindowPos(form.Window(), nullptr, 5, 7, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    basInitEntry::CenterForm(form);
    RECT bounds;
    GetWindowRect(form.Window(), &bounds);
    return bounds;
  }

  const int screenWidth = GetSystemMetrics(SM_CXSCREEN);
  const int screenHeight = GetSystemMetrics(SM_CYSCREEN);
  Application application{GetModuleHandleW(nullptr)};
  Form form{application, Dialog_FrmSpash};
};

TEST_F(FormPlacementTest, CentersAWindowAThirdOfTheSpareHeightDown) {
  const RECT bounds = BoundsAfterCentering(screenWidth - 300, screenHeight - 300);
  EXPECT_EQ(bounds.left, 150);
  EXPECT_EQ(bounds.top, 100);
}

TEST_F(FormPlacementTest, LeavesTheSizeAlone) {
  const RECT bounds = BoundsAfterCentering(501, 377);
  EXPECT_EQ(bounds.right - bounds.left, 501);
  EXPECT_EQ(bounds.bottom - bounds.top, 377);
}

TEST_F(FormPlacementTest, PutsAWindowAsLargeAsTheScreenIntoItsCorner) {
  const RECT bounds = BoundsAfterCentering(screenWidth, screenHeight);
  EXPECT_EQ(bounds.left, 0);
  EXPECT_EQ(bounds.top, 0);
}

TEST_F(FormPlacementTest, AppliesNoSkinWhereThereIsNone) {
  form.Load();
  EXPECT_FALSE(basInitEntry::ApplySkinToForm(form));
  EXPECT_EQ(form.Skn, nullptr);
}

}  // namespace
}  // namespace tarvik
