#include "startup/FrmSpash.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/Application.h"
#include "platform/Handles.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/FrmSpashTexts.h"
#include "startup/TextChecks.h"

namespace tarvik {
namespace {

constexpr const char* languages[] = {"ENG", "CHS", "CHT", "CHI"};

// Runs an action once, from within the message loop.
void Later(std::function<void()> action) {
  static std::function<void()> waiting;
  waiting = std::move(action);
  SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR id, DWORD) {
    KillTimer(nullptr, id);
    std::exchange(waiting, nullptr)();
  });
}

class FrmSpashTest : public ::testing::Test {
 protected:
  void Open(const std::string& language = "ENG") {
    state.CurrentLanguage = language;
    spash.emplace(application, state, [this] {
      ++mainWindowShown;
      loadedThen = spash->IsLoaded();
      if (onMainWindow) onMainWindow();
    });
    spash->Show();
    application.DoEvents();
  }
  // Opens the window as the main window's About command does, runs the action once it is visible, and returns when it
  // is closed.
  void OpenAbout(const std::function<void()>& action, const std::string& language = "ENG") {
    owner.Show();
    state.ShowAsAbout = true;
    state.CurrentLanguage = language;
    spash.emplace(application, state, [this] { ++mainWindowShown; });
    Later(action);
    spash->ShowModal(owner.Window());
  }
  void ExpectPicture() {
    application.DoEvents();
    RECT bounds;
    GetClientRect(spash->Item(FrmSpash_Picture), &bounds);
    const WindowDc dc(spash->Item(FrmSpash_Picture));
    EXPECT_EQ(GetPixel(dc.get(), 0, 0), RGB(0x1D, 0x2D, 0x52));
    const COLORREF corner = GetPixel(dc.get(), bounds.right - 1, bounds.bottom - 1);
    EXPECT_NEAR(GetBValue(corner), 0x86, 2);
  }
  void Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    SendMessageW(spash->Window(), message, wParam, lParam);
  }
  void PressKey(WPARAM key) {
    // Another program's window may have taken the focus. Then this thread has no focus, or the owner still has it.
    const HWND focus = IsChild(spash->Window(), GetFocus()) != FALSE ? GetFocus() : spash->Window();
    PostMessageW(focus, WM_KEYDOWN, key, 0);
    application.DoEvents();
  }
  std::string Caption() const {
    std::wstring text(256, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(spash->Window(), text.data(), 256)));
    return ToUtf8(text);
  }
  bool IsShown(int id) const { return (GetWindowLongW(spash->Item(id), GWL_STYLE) & WS_VISIBLE) != 0; }
  bool HasCaption() const { return (GetWindowLongW(spash->Window(), GWL_STYLE) & WS_CAPTION) == WS_CAPTION; }

  ProgramState state;
  Application application{GetModuleHandleW(nullptr)};
  Form owner{application, Dialog_FrmSpash};  // in place of the main window
  std::optional<FrmSpash> spash;
  int mainWindowShown = 0;
  std::function<void()> onMainWindow;
  bool loadedThen = true;
};

TEST_F(FrmSpashTest, ShowsTheNoticeInEachLanguage) {
  const std::pair<const char*, const char*> rows[] = {{"ENG", "Finds the icons stored in your files and saves them."},
                                                      {"CHS", "查找并保存文件中的图标。"},
                                                      {"CHT", "尋找並儲存檔案中的圖示。"}};
  for (const auto& [language, notice] : rows) {
    Open(language);
    EXPECT_EQ(spash->ItemText(FrmSpash_lblDescription), notice);
  }
}

TEST_F(FrmSpashTest, ShowsEveryTextOfItsTable) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    Open(language);
    for (const FormText& row : spashTexts) {
      EXPECT_EQ(row.id == formCaption ? Caption() : spash->ItemText(row.id), *Pick(row.text, language))
          << language << ' ' << row.id;
    }
  }
}

TEST_F(FrmSpashTest, KeepsItsDesignTextsForAnUnknownCode) {
  Open("CHI");
  EXPECT_EQ(Caption(), "Brindle Tarvik");
  EXPECT_EQ(spash->ItemText(FrmSpash_lblDescription), "Finds icons and saves them.");
}

TEST_F(FrmSpashTest, SendsQuestionsToTheProjectsPageInEachLanguage) {
  const std::pair<const char*, const char*> rows[] = {{"ENG", "Questions? Ask on the project's page."},
                                                      {"CHS", "如有疑问，请到项目主页提问。"},
                                                      {"CHT", "如有疑問，請到專案首頁提問。"},
                                                      {"CHI", "Questions? Ask on the project's page."}};
  for (const auto& [language, contact] : rows) {
    Open(language);
    EXPECT_EQ(spash->ItemText(FrmSpash_LblEmail), contact);
  }
}

TEST_F(FrmSpashTest, HasRoomForItsTextsInEveryLanguage) {
  for (const char* language : languages) {
    Open(language);
    EXPECT_EQ(support::CutOffTexts(spash->Window()), std::vector<std::string>{}) << language;
    EXPECT_EQ(support::TextsWithTakenKeys(spash->Window()), std::vector<std::string>{}) << language;
  }
}

TEST_F(FrmSpashTest, StandsInTheMiddleAThirdOfTheSpareHeightDown) {
  const auto check = [this] {
    RECT bounds;
    GetWindowRect(spash->Window(), &bounds);
    const int spareWidth = GetSystemMetrics(SM_CXSCREEN) - (bounds.right - bounds.left);
    const int spareHeight = GetSystemMetrics(SM_CYSCREEN) - (bounds.bottom - bounds.top);
    EXPECT_NEAR(bounds.left * 2, spareWidth, 1);
    EXPECT_NEAR(bounds.top * 3, spareHeight, 1);
  };
  Open();
  check();
  OpenAbout([&] {
    check();
    spash->Unload();
  });
}

TEST_F(FrmSpashTest, HidesItsButtonAndCaptionAtStartUp) {
  Open();
  EXPECT_FALSE(IsShown(FrmSpash_CmdOk));
  EXPECT_FALSE(HasCaption());
}

TEST_F(FrmSpashTest, FillsItsPicture) {
  Open();
  ExpectPicture();
}

TEST_F(FrmSpashTest, FillsItsPictureAgainAsAboutBox) {
  Open();
  Send(WM_TIMER, FrmSpash_Timer1);
  owner.Show();
  state.ShowAsAbout = true;
  Later([this] {
    ExpectPicture();
    Send(WM_CLOSE);
  });
  spash->ShowModal(owner.Window());
}

TEST_F(FrmSpashTest, HasTheProgramsIconsWithAndWithoutACaption) {
  const auto expectIcons = [this] {
    for (const int size : {ICON_SMALL, ICON_BIG}) {
      const auto icon =
          reinterpret_cast<HICON>(SendMessageW(spash->Window(), WM_GETICON, static_cast<WPARAM>(size), 0));
      const int side = GetSystemMetrics(size == ICON_BIG ? SM_CXICON : SM_CXSMICON);
      EXPECT_EQ(icon, LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(Icon_Program), IMAGE_ICON, side, side,
                                 LR_SHARED))
          << size;
      EXPECT_NE(icon, nullptr) << size;
    }
  };
  Open();
  expectIcons();
  OpenAbout([&] {
    expectIcons();
    Send(WM_CLOSE);
  });
}

TEST_F(FrmSpashTest, GivesTheFocusToItsButtonAsAboutBox) {
  OpenAbout([this] {
    EXPECT_EQ(GetFocus(), spash->Item(FrmSpash_CmdOk));
    // As on systems that do not set the focus.
    SetFocus(nullptr);
    spash->Show();
    EXPECT_EQ(GetFocus(), spash->Item(FrmSpash_CmdOk));
    Send(WM_CLOSE);
  });
}

// The system fires timers in the order of their times, even if a busy machine processes them late.
TEST_F(FrmSpashTest, GivesWayToTheMainWindowAfterThreeSeconds) {
  static std::vector<std::string> struck;
  struck.clear();
  const auto strikeAfter = [](UINT milliseconds, TIMERPROC strike) { SetTimer(nullptr, 0, milliseconds, strike); };
  strikeAfter(2950, [](HWND, UINT, UINT_PTR id, DWORD) {
    KillTimer(nullptr, id);
    struck.emplace_back("sooner");
  });
  onMainWindow = [] { struck.emplace_back("main window"); };
  Open();
  strikeAfter(3050, [](HWND, UINT, UINT_PTR id, DWORD) {
    KillTimer(nullptr, id);
    struck.emplace_back("later");
  });
  application.RunWhile([] { return struck.size() < 3; });
  EXPECT_EQ(struck, (std::vector<std::string>{"sooner", "main window", "later"}));
  EXPECT_FALSE(loadedThen);
  EXPECT_EQ(mainWindowShown, 1);
}

TEST_F(FrmSpashTest, AnswersItsTimerOnce) {
  Open();
  Send(WM_TIMER, FrmSpash_Timer1);
  application.DoEvents();
  EXPECT_FALSE(spash->IsLoaded());
  EXPECT_EQ(mainWindowShown, 1);
}

TEST_F(FrmSpashTest, IgnoresEnterAndEscAtStartUp) {
  Open();
  PressKey(VK_RETURN);
  PressKey(VK_ESCAPE);
  Send(WM_COMMAND, FrmSpash_CmdOk);
  EXPECT_TRUE(spash->IsLoaded());
  EXPECT_EQ(mainWindowShown, 0);
}

TEST_F(FrmSpashTest, EndsTheProgramWithoutAMainWindowWhereItIsClosed) {
  Open();
  Send(WM_CLOSE);
  application.Run();
  EXPECT_FALSE(spash->IsLoaded());
  EXPECT_EQ(mainWindowShown, 0);
}

TEST_F(FrmSpashTest, HasNoTimerAsAboutBox) {
  OpenAbout([&] {
    EXPECT_EQ(KillTimer(spash->Window(), FrmSpash_Timer1), FALSE);
    spash->Unload();
  });
  EXPECT_EQ(mainWindowShown, 0);
}

TEST_F(FrmSpashTest, IsModalAsAboutBoxAndClosedByItsButton) {
  OpenAbout([&] {
    EXPECT_TRUE(IsShown(FrmSpash_CmdOk));
    EXPECT_TRUE(HasCaption());
    EXPECT_FALSE(IsWindowEnabled(owner.Window()));
    EXPECT_EQ(GetWindow(spash->Window(), GW_OWNER), owner.Window());
    PostMessageW(spash->Item(FrmSpash_CmdOk), BM_CLICK, 0, 0);
  });
  EXPECT_FALSE(spash->IsLoaded());
  EXPECT_TRUE(IsWindowEnabled(owner.Window()));
  EXPECT_EQ(mainWindowShown, 0);
}

TEST_F(FrmSpashTest, IsClosedByEnterEscAndItsCloseBoxAsAboutBox) {
  const std::function<void()> ways[] = {[&] { PressKey(VK_RETURN); }, [&] { PressKey(VK_ESCAPE); },
                                        [&] { PostMessageW(spash->Window(), WM_CLOSE, 0, 0); }};
  for (const auto& way : ways) {
    OpenAbout(way);
    EXPECT_FALSE(spash->IsLoaded());
    EXPECT_TRUE(IsWindowEnabled(owner.Window()));
  }
}

TEST_F(FrmSpashTest, OpensAgainAsAboutBoxAfterTheStart) {
  Open();
  Send(WM_TIMER, FrmSpash_Timer1);
  for (int time = 0; time < 2; ++time) {
    OpenAbout([&] {
      EXPECT_TRUE(IsShown(FrmSpash_CmdOk));
      PressKey(VK_ESCAPE);
    });
  }
  EXPECT_EQ(mainWindowShown, 1);
}

}  // namespace
}  // namespace tarvik
