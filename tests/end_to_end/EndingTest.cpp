// How the program ends while another window of its own, a system dialog or a message is open over the main window,
// while the user moves it, or while it searches: by a request to close the main window, and by the end of the session.

#include <windows.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "driver/Dialogs.h"
#include "driver/EnhancedView.h"
#include "end_to_end/SavingTest.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::Each;
using ::testing::IsEmpty;

enum class Way { Close, SystemMenu, SessionEnd, SessionEndMainWindowFirst };
constexpr Way closing[] = {Way::Close, Way::SystemMenu};
constexpr Way sessionEnds[] = {Way::SessionEnd, Way::SessionEndMainWindowFirst};

class Ending : public Saving {
 protected:
  void StartAndFind() {
    if (NamesIn(tree_.Path()).empty()) MakePictures();
    Start();
    FindAll();
  }
  // The visible windows of the process, in the order in which the system queries them.
  std::vector<HWND> Windows() const {
    struct Search {
      DWORD process;
      std::vector<HWND> found;
    } search{.process = GetProcessId(program_.Process()), .found = {}};
    EnumWindows(
        [](HWND window, LPARAM data) {
          auto& all = *reinterpret_cast<Search*>(data);
          DWORD process = 0;
          GetWindowThreadProcessId(window, &process);
          if (process == all.process && IsWindowVisible(window) != FALSE) all.found.push_back(window);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
  }
  // What each window answers when the session is about to end.
  std::vector<LRESULT> AnswersToTheEnd() const {
    std::vector<LRESULT> answers;
    for (const HWND window : Windows()) answers.push_back(Control(window).Send(WM_QUERYENDSESSION));
    return answers;
  }
  void Ask(Way way) const {
    if (way == Way::Close) return program_.Window().Post(WM_CLOSE);
    if (way == Way::SystemMenu) return program_.Window().Post(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_THAT(AnswersToTheEnd(), Each(TRUE));
    EndSession(way == Way::SessionEndMainWindowFirst);
  }
  void EndSession(bool mainWindowFirst) const {
    std::vector<HWND> windows = Windows();
    if (mainWindowFirst) std::ranges::reverse(windows);
    for (const HWND window : windows) SendNotifyMessageW(window, WM_ENDSESSION, TRUE, 0);
  }
  void ExpectNothingWritten() const {
    EXPECT_THAT(SavedNames(), IsEmpty());
    EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
  }
};

// How the main window can be closed while something is open.
enum class Closable { No, ByRequest, ByRequestAndSystemMenu };

// The parameter names what is open over the main window.
class EndingOver : public Ending, public ::testing::WithParamInterface<std::string> {
 protected:
  // Opens it.
  Closable OpenIt() {
    const std::string& name = GetParam();
    if (OpenMenuOrList(name)) return Closable::ByRequestAndSystemMenu;
    // The system accepts no command from the window menu while the window is disabled.
    if (OpenOverTheWindow(name)) return Closable::ByRequest;
    OpenOfCommand(name);
    return Closable::No;
  }
  void ExpectNothingWritten() const {
    Ending::ExpectNothingWritten();
    EXPECT_EQ(support::ReadAll(In("0.ico")), picture_) << "it was not to be replaced";
  }
  void StartAndFind() {
    Ending::StartAndFind();
    picture_ = support::ReadAll(In("0.ico"));
  }

 private:
  static bool IsMovedOrSized(Control window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window.Window(), nullptr), &info) != FALSE &&
           info.hwndMoveSize == window.Window();
  }
  // What leaves the main window enabled.
  bool OpenMenuOrList(const std::string& name) {
    const Control window = program_.Window();
    if (name == "Menu") {
      window.Post(WM_SYSCOMMAND, SC_KEYMENU, 'f');
    } else if (name == "WindowMenu") {
      window.Post(WM_SYSCOMMAND, SC_KEYMENU, ' ');
    } else if (name == "ListMenu") {
      program_.Item(FrmFindIcon_OptView1).Send(BM_CLICK);
      const POINT row = MiddleOf(List().RowBounds(0));
      window.Post(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(program_.Item(FrmFindIcon_Lv).Window()),
                  MAKELPARAM(row.x, row.y));
    } else if (name == "SizeList") {
      const Control sizes = program_.Item(FrmFindIcon_CboIconSize);
      sizes.Send(CB_SHOWDROPDOWN, TRUE);
      EXPECT_NE(sizes.Send(CB_GETDROPPEDSTATE), FALSE);
      return true;
    } else if (name == "Moving" || name == "Sizing") {
      window.Post(WM_SYSCOMMAND, name == "Moving" ? SC_MOVE : SC_SIZE);
      if (name == "Sizing") window.Post(WM_KEYDOWN, VK_RIGHT);  // chooses the edge
      EXPECT_TRUE(Eventually([&] { return IsMovedOrSized(window); }));
      return true;
    } else {
      return false;
    }
    EXPECT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }));
    return true;
  }
  // What disables the main window, and no command waits for.
  bool OpenOverTheWindow(const std::string& name) {
    if (name == "AboutBox") {
      program_.Command(FrmFindIcon_MnuAbout);
      program_.WaitForWindowWith(FrmSpash_CmdOk);
    } else if (name == "EnhancedView" || name == "SlideShow" || name == "ZoomListOfTheView") {
      OpenView(name);
    } else if (name == "Hint") {
      program_.Item(FrmFindIcon_PicIcons).Post(WM_LBUTTONUP, MK_CONTROL, MAKELPARAM(10, 10));
      program_.Command(FrmFindIcon_mnuSaveSel);
      program_.WaitForBox();
    } else if (name == "RunTimeError") {
      SetLimit("many");
      FindAndWaitForBox();
    } else {
      return false;
    }
    return true;
  }
  void OpenView(const std::string& name) {
    program_.Item(FrmFindIcon_PicIcons).Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    const EnhancedView view(program_);
    if (name == "SlideShow") {
      view.Press(frmBit_tlb_control_Start);
      view.Tick();
      EXPECT_TRUE(view.ShowIsOn());
    } else if (name == "ZoomListOfTheView") {
      view.ZoomList().Send(CB_SHOWDROPDOWN, TRUE);
      EXPECT_NE(view.ZoomList().Send(CB_GETDROPPEDSTATE), FALSE);
    }
  }
  // Opens what a command opens; the command goes on when that is closed.
  void OpenOfCommand(const std::string& name) {
    if (name == "NoIcons") {
      program_.Item(FrmFindIcon_ChkFileType0).Send(BM_CLICK);
      FindAndWaitForBox();
    } else if (name == "FolderChooser") {
      AskForFolder(FrmFindIcon_mnuSaveAll).Open(outName);
    } else if (name == "NewFolder") {
      const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
      chooser.Open(outName);
      NewFolderDialog(program_, chooser);
    } else if (name == "HotSpotPicker") {
      program_.Command(FrmFindIcon_MnuSaveAsCursor);
      program_.WaitForWindowWith(FrmHotSpot_CmdOk);
    } else if (name == "SaveDialog") {
      AskForName(FrmFindIcon_mnuSaveAs);
    } else if (name == "OverwriteQuestion") {
      AskForName(FrmFindIcon_mnuSaveAs).Save(In("0.ico"));
      program_.WaitForBox();
    } else if (name == "JpegOptions") {
      SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.jpg"));
      program_.WaitForWindowWith(fSaveJPG_CboSize);
    } else if (name == "JpegComment") {
      SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.jpg"));
      Dialog(program_, fSaveJPG_CboSize).Press(fSaveJPG_cmdComment);
      program_.WaitForWindowWith(fComment_txtComment);
    } else if (name == "GifOptions") {
      SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.gif"));
      program_.WaitForWindowWith(FrmConvertGIF_Option1);
    } else if (name == "GifOptionsOfABatch") {
      ChooseOut(FrmFindIcon_mnuSaveAll2, Gif);
      program_.WaitForWindowWith(FrmConvertGIF_Option1);
    } else {
      ASSERT_EQ(name, "Failure");
      ASSERT_NE(CreateDirectoryW((ToWide(Out("Icon 1.ico"))).c_str(), nullptr), 0);
      ChooseOut(FrmFindIcon_mnuSaveAll);
      program_.WaitForBox();
      RemoveDirectoryW((ToWide(Out("Icon 1.ico"))).c_str());
    }
  }

  std::string picture_;  // the bytes of the first icon's file
};

TEST_P(EndingOver, TheMainWindowClosesWithTheProcessOrStaysWithWhatIsOverIt) {
  for (const Way way : closing) {
    StartAndFind();
    const Closable closable = OpenIt();
    const bool closes =
        closable == Closable::ByRequestAndSystemMenu || (closable == Closable::ByRequest && way == Way::Close);
    const std::size_t windows = Windows().size();
    Ask(way);
    if (!closes) {
      program_.Window().Send(WM_NULL);
      ASSERT_TRUE(program_.IsRunning());
      EXPECT_EQ(Windows().size(), windows);
      EXPECT_FALSE(program_.Window().IsEnabled());
      EndSession(false);
    }
    EXPECT_EQ(program_.WaitForEnd(), 0U);
    ExpectNothingWritten();
  }
}

TEST_P(EndingOver, TheSessionEndsAndNothingIsWritten) {
  for (const Way way : sessionEnds) {
    StartAndFind();
    OpenIt();
    Ask(way);
    EXPECT_EQ(program_.WaitForEnd(), 0U);
    ExpectNothingWritten();
  }
}

INSTANTIATE_TEST_SUITE_P(EachOfThem, EndingOver,
                         ::testing::Values("Menu", "WindowMenu", "ListMenu", "SizeList", "Moving", "Sizing", "AboutBox",
                                           "EnhancedView", "SlideShow", "ZoomListOfTheView", "Hint", "RunTimeError",
                                           "NoIcons", "FolderChooser", "NewFolder", "HotSpotPicker", "SaveDialog",
                                           "OverwriteQuestion", "JpegOptions", "JpegComment", "GifOptions",
                                           "GifOptionsOfABatch", "Failure"),
                         [](const auto& row) { return row.param; });

// The start-up window is the only one then.
class EndingAtStart : public Ending {};

TEST_F(EndingAtStart, TheProgramEndsWithoutAMainWindow) {
  for (const Way way : {Way::Close, Way::SystemMenu, Way::SessionEnd}) {
    program_.Launch();
    const Control startUp = program_.WaitForStartUpWindow();
    if (way == Way::Close) startUp.Post(WM_CLOSE);
    if (way == Way::SystemMenu) startUp.Post(WM_SYSCOMMAND, SC_CLOSE);
    if (way == Way::SessionEnd) {
      EXPECT_THAT(AnswersToTheEnd(), Each(TRUE));
      EndSession(false);
    }
    EXPECT_EQ(program_.WaitForEnd(), 0U);
    EXPECT_FALSE(std::filesystem::exists(program_.SettingsFile())) << "there are no settings to keep yet";
  }
}

class EndingAtWork : public Ending {
 protected:
  void StartToSaveMany() {
    ASSERT_NO_FATAL_FAILURE(FindMany());
    ChooseOut(FrmFindIcon_mnuSaveAll);
    ASSERT_TRUE(Eventually([&] { return Status() == "Saving..."; }));
  }
};

TEST_F(EndingAtWork, ASearchEndsWithTheSessionWithoutAMessageAndTheFirstFolderIsKept) {
  constexpr int folders = 60;
  for (int i = 0; i < folders; ++i) {
    const std::string folder = "folder" + std::to_string(100 + i);
    tree_.MakeFolder(folder);
    tree_.MakeFile(folder + "\\a.ico", support::IconFileOf(0xFF));
  }
  Start({}, true);
  program_.Item(FrmFindIcon_CmdFind).Press();
  ASSERT_TRUE(Eventually([&] { return !IsEnabled(FrmFindIcon_CmdClose); }));
  program_.Suspend();
  const bool running = !IsEnabled(FrmFindIcon_CmdFind);
  // Posted, so that they are processed in the middle of the search.
  program_.Window().Post(WM_QUERYENDSESSION);
  program_.Window().Post(WM_ENDSESSION, TRUE);
  program_.Resume();
  ASSERT_TRUE(running) << "the search was over before it could be stopped";
  EXPECT_TRUE(Eventually([&] {
    if (const auto box = program_.FindBox()) ADD_FAILURE() << box->Text();
    return !program_.IsRunning();
  }));
  EXPECT_EQ(program_.WaitForEnd(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
  EXPECT_EQ(ReadSetting("Subdir"), "True");
}

TEST_F(EndingAtWork, ABatchThatWritesRefusesTheEndOfTheSessionAndIsWritten) {
  StartToSaveMany();
  EXPECT_EQ(program_.Window().Send(WM_QUERYENDSESSION), FALSE);
  EXPECT_EQ(Status(), "Saving...") << "the batch was over before it was asked";
  program_.Window().Send(WM_ENDSESSION, FALSE);
  ASSERT_TRUE(Eventually([&] { return Status() != "Saving..."; }));
  EXPECT_EQ(SavedNames().size(), static_cast<std::size_t>(many));
  EXPECT_EQ(program_.Window().Send(WM_QUERYENDSESSION), TRUE);
}

// The system need not follow the refusal.
TEST_F(EndingAtWork, ABatchThatIsEndedAllTheSameLeavesWholeFiles) {
  StartToSaveMany();
  ASSERT_TRUE(Eventually([&] { return SavedNames().size() >= 20; }));
  program_.Suspend();
  const std::size_t saved = SavedNames().size();
  program_.Window().Post(WM_ENDSESSION, TRUE);
  program_.Resume();
  EXPECT_LT(saved, static_cast<std::size_t>(many)) << "the batch was over before it could be ended";
  EXPECT_EQ(program_.WaitForEnd(), 0U);
  const std::size_t size = support::ReadAll(Out("Icon 1.ico")).size();
  for (const std::string& name : SavedNames()) {
    EXPECT_THAT(name, ::testing::EndsWith(".ico"));
    EXPECT_EQ(support::ReadAll(Out(name)).size(), size) << name;
  }
  EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
}

}  // namespace
}  // namespace tarvik::end_to_end
