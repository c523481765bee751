#include "forms/Form.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <vector>

#include "forms/ModalDriver.h"
#include "resource.h"

namespace tarvik {
namespace {

class FormTest : public ::testing::Test {
 protected:
  Application application{GetModuleHandleW(nullptr)};
  support::ModalDriver driver;
  Form owner{application, Dialog_frmDir};
  Form owned{application, Dialog_frmDirCreate};
};

// A form whose button and whose loading run actions of a test.
class TriedForm final : public Form {
 public:
  explicit TriedForm(Application& application) : Form(application, Dialog_frmDirCreate) {}
  void Click() const { SendMessageW(Window(), WM_COMMAND, frmDirCreate_CmdOk, 0); }

  std::function<void()> onLoad = [] {};
  std::function<void()> onClick = [] {};
  std::function<void()> onKey = [] {};
  int unloaded = 0;

 private:
  void Form_Load() override { onLoad(); }
  void Form_Unload() override { ++unloaded; }
  bool OnCommand(int /*id*/, int /*code*/) override {
    onClick();
    return true;
  }
  bool PreviewMessage(const MSG& message) override {
    if (message.message == WM_KEYDOWN) onKey();
    return false;
  }
};

class FormErrorsTest : public ::testing::Test {
 protected:
  FormErrorsTest() {
    application.onRuntimeError = [this](Form&, const RuntimeError& error) { told.push_back(error); };
  }

  Application application{GetModuleHandleW(nullptr)};
  std::vector<RuntimeError> told;
  TriedForm form{application};
};

TEST_F(FormErrorsTest, TellsWhateverExceptionEndsAHandlerAndStaysUsable) {
  form.Show();
  const std::pair<std::function<void()>, RuntimeErrorKind> rows[] = {
      {[] { throw OverflowError(); }, RuntimeErrorKind::Overflow},
      {[] { throw std::bad_alloc(); }, RuntimeErrorKind::OutOfMemory},
      {[] { throw std::length_error("too long"); }, RuntimeErrorKind::OutOfMemory},
      {[] { throw std::system_error(std::make_error_code(std::errc::io_error)); }, RuntimeErrorKind::Unexpected},
  };
  for (const auto& [failure, kind] : rows) {
    form.onClick = failure;
    form.Click();
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back().Kind(), kind);
  }
  int clicks = 0;
  form.onClick = [&] { ++clicks; };
  form.Click();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(told.size(), std::size(rows));
}

TEST_F(FormErrorsTest, TellsAnExceptionOfAKeyBeforeItReachesItsControl) {
  form.Show();
  form.onKey = [] { throw std::length_error("too long"); };
  PostMessageW(form.Item(frmDirCreate_txt), WM_KEYDOWN, VK_F24, 0);
  EXPECT_NO_THROW(application.DoEvents());
  EXPECT_EQ(told.size(), 1U);
}

TEST_F(FormErrorsTest, OutlivesAMessageThatCannotBeShown) {
  form.Show();
  int asked = 0;
  application.onRuntimeError = [&](Form&, const RuntimeError&) {
    ++asked;
    throw std::bad_alloc();
  };
  form.onClick = [] { throw std::bad_alloc(); };
  form.Click();
  form.Click();
  EXPECT_EQ(asked, 2);
  EXPECT_TRUE(form.IsLoaded());
}

TEST_F(FormErrorsTest, SaysThatTheSystemMakesNoWindow) {
  constexpr int noDialog = 9999;
  Form missing(application, noDialog);
  EXPECT_THROW(missing.Show(), NoWindowError);
  EXPECT_THROW(missing.ShowModal(nullptr), NoWindowError);
  EXPECT_FALSE(missing.IsLoaded());
  form.Show();
  form.onClick = [&] { missing.ShowModal(form.Window()); };
  form.Click();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].Kind(), RuntimeErrorKind::NoWindow);
  EXPECT_TRUE(IsWindowEnabled(form.Window()));
}

TEST_F(FormErrorsTest, LeavesNoWindowBehindThatCouldNotLoad) {
  HWND former = nullptr;
  form.onLoad = [&] {
    former = form.Window();
    throw std::bad_alloc();
  };
  EXPECT_THROW(form.Show(), std::bad_alloc);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_FALSE(IsWindow(former));
  EXPECT_EQ(form.unloaded, 0) << "what was never loaded has nothing to save";
  EXPECT_TRUE(told.empty()) << "the caller that opened it gets the error";
  form.onLoad = [] {};
  form.Show();
  EXPECT_TRUE(IsWindowVisible(form.Window()));
}

// A fault of the processor is not an exception that a handler may catch.
TEST_F(FormErrorsTest, LetsAFaultOfTheProgramsOwnEndIt) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto endAtOnce = [](EXCEPTION_POINTERS*) -> LONG { return EXCEPTION_EXECUTE_HANDLER; };
  const auto fault = [] { *static_cast<volatile int*>(nullptr) = 1; };
  const auto endsByFault = [](int exitCode) { return static_cast<DWORD>(exitCode) == EXCEPTION_ACCESS_VIOLATION; };
  SetUnhandledExceptionFilter(endAtOnce);
  form.Show();
  form.onClick = fault;
  EXPECT_EXIT(form.Click(), endsByFault, "");
  TriedForm loading(application);
  loading.onLoad = fault;
  EXPECT_EXIT(loading.Show(), endsByFault, "");
  SetUnhandledExceptionFilter(nullptr);
}

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
  application.Run();  // returns because no form is left
}

TEST_F(FormTest, IsUnloadedOnceWhereItGoesWithItsOwner) {
  TriedForm form{application};
  owner.Show();
  form.Show(owner.Window());
  owner.Unload();
  EXPECT_EQ(form.unloaded, 1);
  application.Run();
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
  PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);  // stays in the queue for another message loop
}

}  // namespace
}  // namespace tarvik
