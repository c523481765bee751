// How the program ends while another window of its own, a system dialog or a message is open over the main window, or
// while it searches: by a request to close the main window, and by the end of the session.

#include <windows.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "driver/Dialogs.h"
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

// The parameter names what is open over the main window.
class EndingOver : public Ending, public ::testing::WithParamInterface<std::string> {
 protected:
  // Opens it. Returns whether the main window may be closed meanwhile.
  bool OpenIt() {
    const std::string& name = GetParam();
    if (name == "AboutBox") {
      program_.Command(FrmFindIcon_MnuAbout);
      program_.WaitForWindowWith(FrmSpash_CmdOk);
      return true;
    }
    if (name == "EnhancedView") {
      const HWND list = program_.Item(FrmFindIcon_PicIcons).Window();
      PostMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
      program_.WaitForWindowWith(frmBit_img);
      return true;
    }
    if (name == "Hint") {
      program_.Item(FrmFindIcon_PicIcons).Post(WM_LBUTTONUP, MK_CONTROL, MAKELPARAM(10, 10));
      program_.Command(FrmFindIcon_mnuSaveSel);
      program_.WaitForBox();
      return true;
    }
    if (name == "RunTimeError") {
      SetLimit("many");
      FindAndWaitForBox();
      return true;
    }
    OpenOfCommand(name);
    return false;
  }

 private:
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
};

TEST_P(EndingOver, TheMainWindowClosesWithTheProcessOrStaysWithWhatIsOverIt) {
  for (const Way way : closing) {
    StartAndFind();
    // The system accepts no command from the window menu while the window is disabled.
    const bool closes = OpenIt() && way == Way::Close;
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
                         ::testing::Values("AboutBox", "EnhancedView", "Hint", "RunTimeError", "NoIcons",
                                           "FolderChooser", "NewFolder", "HotSpotPicker", "SaveDialog", "JpegOptions",
                                           "JpegComment", "GifOptions", "GifOptionsOfABatch", "Failure"),
                         [](const auto& row) { return row.param; });

class EndingAtWork : public Ending {};

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
  constexpr int many = 2000;
  CopyTwoThousandIcons(In("many.dll"));
  tree_.MakeFolder(outName);
  Start();
  Tick({Dll});
  SetLimit(std::to_string(many));
  Find();
  ASSERT_EQ(List().RowCount(), many);
  KeepAsFound();
  ChooseOut(FrmFindIcon_mnuSaveAll);
  ASSERT_TRUE(Eventually([&] { return Status() == "Saving..."; }));
  EXPECT_EQ(program_.Window().Send(WM_QUERYENDSESSION), FALSE);
  EXPECT_EQ(Status(), "Saving...") << "the batch was over before it was asked";
  program_.Window().Send(WM_ENDSESSION, FALSE);
  ASSERT_TRUE(Eventually([&] { return Status() != "Saving..."; }));
  EXPECT_EQ(SavedNames().size(), static_cast<std::size_t>(many));
  EXPECT_EQ(program_.Window().Send(WM_QUERYENDSESSION), TRUE);
}

}  // namespace
}  // namespace tarvik::end_to_end
