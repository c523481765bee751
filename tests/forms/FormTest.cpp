#include "forms/Form.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "forms/ModalDriver.h"
#include "resource.h"

namespace tarvik {
namespace {

class FormTest : public ::testing::Test {
 protected:
  Application application{GetModuleHandleW(nullptr)};
  testing::ModalDriver driver;
  Form owner{application, Dialog_frmDir};
  Form owned{application, Dialog_frmDirCreate};
};

TEST_F(FormTest, GoesWithItsOwnerAndOpensAgain) {
  owner.Show();
  owned.Show(owner.Window());
  const HWND former = owned.Window();
  owner.Unload();
  EXPECT_FALSE(IsWindow(former));
  ASSERT_FALSE(owned.IsLoaded());
  owner.Show();
  owned.Show(owner.Window());
  EXPECT_TRUE(IsWindowVisible(owned.Window()));
  owner.Unload();
  application.Run();  // returns, as no form is left
}

TEST_F(FormTest, GivesUpWhatWaitedForItWhereItGoesWithItsOwner) {
  owner.Show();
  driver.On(frmDirCreate_txt, [this](HWND) { PostMessageW(owner.Window(), WM_CLOSE, 0, 0); });
  EXPECT_THROW(owned.ShowModal(owner.Window()), GivenUp);
  EXPECT_FALSE(owner.IsLoaded());
  EXPECT_FALSE(owned.IsLoaded());
  application.Run();
}

TEST_F(FormTest, LetsTheSessionEndAndUnloadsEveryForm) {
  owner.Show();
  driver.On(frmDirCreate_txt, [this](HWND window) {
    EXPECT_TRUE(SendMessageW(owner.Window(), WM_QUERYENDSESSION, 0, 0));
    EXPECT_TRUE(SendMessageW(window, WM_QUERYENDSESSION, 0, 0));
    SendMessageW(window, WM_ENDSESSION, FALSE, 0);
    EXPECT_TRUE(owned.IsLoaded()) << "another program refused";
    SendMessageW(window, WM_ENDSESSION, TRUE, 0);
  });
  EXPECT_THROW(owned.ShowModal(owner.Window()), GivenUp);
  EXPECT_FALSE(owner.IsLoaded());
  EXPECT_FALSE(owned.IsLoaded());
  application.Run();
  MSG message;
  PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);  // left for whoever else waits for messages
}

}  // namespace
}  // namespace tarvik
