#include "forms/SystemTaskBar.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/ComObject.h"
#include "platform/ComUse.h"
#include "platform/RegisteredObject.h"

namespace tarvik {
namespace {

// A task bar that the system makes instead of its own, because this process registered it: it logs each call.
class NotedList final : public support::ComObject<ITaskbarList3> {
 public:
  NotedList() : ComObject(IID_ITaskbarList3) {}

  HRESULT STDMETHODCALLTYPE HrInit() override {
    diary += "begun|";
    return initResult;
  }
  HRESULT STDMETHODCALLTYPE SetProgressValue(HWND window, ULONGLONG done, ULONGLONG total) override {
    diary += std::to_string(done) + " of " + std::to_string(total) + NameOf(window);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetProgressState(HWND window, TBPFLAG state) override {
    diary += "state " + std::to_string(state) + NameOf(window);
    return S_OK;
  }

  // What the program does not use.
  HRESULT STDMETHODCALLTYPE AddTab(HWND) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE DeleteTab(HWND) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE ActivateTab(HWND) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE SetActiveAlt(HWND) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE MarkFullscreenWindow(HWND, WINBOOL) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE RegisterTab(HWND, HWND) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE UnregisterTab(HWND) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE SetTabOrder(HWND, HWND) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE SetTabActive(HWND, HWND, DWORD) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE ThumbBarAddButtons(HWND, UINT, LPTHUMBBUTTON) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE ThumbBarUpdateButtons(HWND, UINT, LPTHUMBBUTTON) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE ThumbBarSetImageList(HWND, HIMAGELIST) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE SetOverlayIcon(HWND, HICON, LPCWSTR) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE SetThumbnailTooltip(HWND, LPCWSTR) override { return LogUnexpected(); }
  HRESULT STDMETHODCALLTYPE SetThumbnailClip(HWND, RECT*) override { return LogUnexpected(); }

  std::string diary;
  HRESULT initResult = S_OK;

 private:
  static std::string NameOf(HWND window) { return " of " + std::to_string(reinterpret_cast<INT_PTR>(window)) + '|'; }
  HRESULT LogUnexpected() {
    diary += "unexpected|";
    return S_OK;
  }
};

class SystemTaskBarTest : public ::testing::Test {
 protected:
  ComUse use_;
  NotedList list_;
  support::RegisteredObject registered_{CLSID_TaskbarList, list_};
  HWND window_ = reinterpret_cast<HWND>(INT_PTR{77});
};

TEST_F(SystemTaskBarTest, PassesOnStateAndShareOfAWindow) {
  {
    SystemTaskBar bar;
    EXPECT_EQ(list_.diary, "") << "it is made with the first use";
    bar.SetState(window_, TaskBar::State::Indeterminate);
    bar.SetState(window_, TaskBar::State::Normal);
    bar.SetShare(window_, 1, 2);
    bar.SetState(window_, TaskBar::State::Error);
    bar.SetState(window_, TaskBar::State::None);
    EXPECT_EQ(list_.References(), 1U);
  }
  EXPECT_EQ(list_.diary, "begun|state 1 of 77|state 2 of 77|1 of 2 of 77|state 4 of 77|state 0 of 77|");
  EXPECT_EQ(list_.References(), 0U) << "it is released";
}

TEST_F(SystemTaskBarTest, IsAskedOnceAndLeftAloneIfItCannotBegin) {
  list_.initResult = E_FAIL;
  SystemTaskBar bar;
  bar.SetState(window_, TaskBar::State::Normal);
  bar.SetShare(window_, 1, 2);
  EXPECT_FALSE(bar.IsThere());
  EXPECT_EQ(list_.diary, "begun|");
  EXPECT_EQ(list_.References(), 0U);
}

// The system's own object. Its display is outside this program, and Wine's displays nothing.
TEST(SystemTaskBar, IsThereAndMindsNoWindowThatIsGone) {
  SystemTaskBar bar;
  bar.SetState(nullptr, TaskBar::State::Normal);
  bar.SetShare(nullptr, 1, 1);
  EXPECT_TRUE(bar.IsThere());
}

}  // namespace
}  // namespace tarvik
