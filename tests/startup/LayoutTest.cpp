// The layout of every window at the dpi of the tests' display: visible controls do not overlap and are inside the
// window, no text is cut off, and no list cuts off its letters.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "platform/Handles.h"
#include "resource.h"
#include "search/window/FindIconFixture.h"
#include "startup/Dialogs.h"
#include "startup/FrmSpash.h"
#include "startup/LayoutChecks.h"
#include "startup/TextChecks.h"
#include "view/ViewFixture.h"

namespace tarvik {
namespace {

using Texts = std::vector<std::string>;

void ExpectInOrder(HWND window) {
  EXPECT_EQ(support::OverlappingControls(window), Texts{});
  EXPECT_EQ(support::ControlsOutside(window), Texts{});
  EXPECT_EQ(support::CutOffTexts(window), Texts{});
  EXPECT_EQ(support::CutOffChoices(window), Texts{});
  EXPECT_EQ(support::ListsThatCutLetters(window), std::vector<int>{});
}

// TARVIK_TEST_DOTS is the dpi that the display should have; with another one these tests would prove nothing.
TEST(Layout, IsLookedAtWithTheDotsAnInchThatWereAskedFor) {
  const char* const asked = std::getenv("TARVIK_TEST_DOTS");
  const WindowDc screen(nullptr);
  EXPECT_EQ(std::to_string(GetDeviceCaps(screen.get(), LOGPIXELSX)), asked != nullptr ? asked : "96");
}

class DialogLayout : public support::Dialogs, public ::testing::TestWithParam<const char*> {
 protected:
  DialogLayout() : Dialogs(GetParam()) {}

  static void Check(const std::unique_ptr<Form>& form) {
    form->Load();
    ASSERT_TRUE(form->IsLoaded());
    ExpectInOrder(form->Window());
  }
};

TEST_P(DialogLayout, FolderChooser) {
  Check(Dialogs::FolderChooser());
}

TEST_P(DialogLayout, NewFolder) {
  Check(Dialogs::NewFolder());
}

TEST_P(DialogLayout, HotSpotPicker) {
  Check(Dialogs::HotSpotPicker());
}

TEST_P(DialogLayout, JpegOptions) {
  Check(Dialogs::JpegOptions());
}

TEST_P(DialogLayout, JpegComment) {
  Check(Dialogs::JpegComment());
}

TEST_P(DialogLayout, GifOptions) {
  Check(Dialogs::GifOptions());
}

TEST_P(DialogLayout, StartUpWindowAndAboutBox) {
  for (const bool about : {false, true}) {
    state.ShowAsAbout = about;
    Check(std::make_unique<FrmSpash>(application, state, [] {}));
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogLayout, ::testing::Values("ENG", "CHS", "CHT", "Chinese"),
                         [](const auto& row) { return std::string(row.param); });

class MainWindowLayout : public support::FindIconFixture, public ::testing::WithParamInterface<const char*> {};

TEST_P(MainWindowLayout, IsInOrderWithTheGridAndWithTheList) {
  Open(GetParam());
  ExpectInOrder(window->Window());
  Click(FrmFindIcon_OptView1);
  ExpectInOrder(window->Window());
}

TEST_P(MainWindowLayout, IsInOrderWhenItIsEnlargedAndMaximised) {
  Open(GetParam());
  Find(100);
  RECT first{};
  GetWindowRect(window->Window(), &first);
  for (const int extra : {1, 37, 250}) {
    SetWindowPos(window->Window(), nullptr, 0, 0, first.right - first.left + extra, first.bottom - first.top + extra,
                 SWP_NOZORDER);
    for (const int view : {FrmFindIcon_OptView1, FrmFindIcon_OptView0}) {
      Click(view);
      ExpectInOrder(window->Window());
    }
  }
  ShowWindow(window->Window(), SW_MAXIMIZE);
  for (const int view : {FrmFindIcon_OptView1, FrmFindIcon_OptView0}) {
    Click(view);
    ExpectInOrder(window->Window());
  }
}

TEST_P(MainWindowLayout, ShowsTheWholeHeadersOfTheList) {
  Open(GetParam());
  Find(3);
  EXPECT_EQ(support::CutOffHeaders(Item(FrmFindIcon_Lv)), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowLayout, ::testing::Values("ENG", "CHS", "CHT", "Chinese"),
                         [](const auto& row) { return std::string(row.param); });

class EnhancedViewLayout : public support::ViewFixture, public ::testing::WithParamInterface<const char*> {};

TEST_P(EnhancedViewLayout, IsInOrderWhenItOpens) {
  state.CurrentLanguage = GetParam();
  WhileOpen([this] {
    ExpectInOrder(view->Window());
    RECT last{};
    const HWND toolbar = Item(frmBit_tlb_control);
    const LRESULT buttons = SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0);
    SendMessageW(toolbar, TB_GETITEMRECT, static_cast<WPARAM>(buttons - 1), reinterpret_cast<LPARAM>(&last));
    RECT inside{};
    GetClientRect(toolbar, &inside);
    EXPECT_LE(last.right, inside.right);
    EXPECT_LE(last.bottom, inside.bottom);
  });
}

INSTANTIATE_TEST_SUITE_P(Languages, EnhancedViewLayout, ::testing::Values("ENG", "CHS", "CHT", "Chinese"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace tarvik
