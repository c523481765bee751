// The keys that no menu shows: F1 in every window, F5, and Ctrl with a letter in the main window.

#include <windows.h>

#include <gmock/gmock.h>

#include <filesystem>

#include "driver/Dialogs.h"
#include "driver/SaveDialog.h"
#include "end_to_end/ViewByHand.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HelpKey : public ViewByHand {
 protected:
  void SetUp() override {
    fs::copy(BuiltFile(TARVIK_GUIDE), fs::path(ToWide(home_.In("guide"))), fs::copy_options::recursive);
    FindFiles(2);
  }
  void ExpectGuide(const char* where) const {
    const std::string page = home_.In("page.txt");
    const WebPageReader reader(page);
    PressKey(VK_F1);
    EXPECT_TRUE(Eventually([&] { return support::ReadAll(page).find("guide-eng.html") != std::string::npos; }, shortly))
        << where;
    DeleteFileW(ToWide(page).c_str());
    EXPECT_FALSE(program_.FindBox()) << where;
    SetForegroundWindow(front_);
  }
  // Gives the keyboard back to the window after the guide was shown.
  void Front(const Control& window) {
    front_ = window.Window();
    ASSERT_TRUE(Eventually([&] {
      SetForegroundWindow(front_);
      return GetForegroundWindow() == front_;
    }));
  }

  HWND front_ = nullptr;
};

TEST_F(HelpKey, OpensTheGuideInTheMainWindowAndTheView) {
  Front(program_.Window());
  ExpectGuide("main window");
  const EnhancedView view = OpenOn(1);
  Front(view.Window());
  ExpectGuide("enhanced view");
  view.Close();
}

TEST_F(HelpKey, OpensTheGuideInTheFolderDialogs) {
  program_.Command(FrmFindIcon_mnuSaveAll2);
  const FolderChooser chooser(program_);
  Front(chooser.Window());
  ExpectGuide("folder chooser");
  const NewFolderDialog newFolder(program_, chooser);
  Front(newFolder.Window());
  ExpectGuide("new folder");
  newFolder.End(frmDirCreate_CmdCancel);
  chooser.Cancel();
}

TEST_F(HelpKey, OpensTheGuideInTheDialogsOfAnImage) {
  program_.Command(FrmFindIcon_MnuSaveAsBitmap);
  SaveDialog(program_).SaveAs(home_.In("a.jpg"));
  const Dialog jpeg(program_, fSaveJPG_CboSize);
  Front(jpeg.Window());
  ExpectGuide("JPEG");
  jpeg.Press(fSaveJPG_cmdComment);
  const Dialog comment(program_, fComment_txtComment);
  Front(comment.Window());
  ExpectGuide("comment");
  comment.End(fComment_cmdFinish);
  jpeg.End(fSaveJPG_cmdFinish0);
  program_.Command(FrmFindIcon_MnuSaveAsBitmap);
  SaveDialog(program_).SaveAs(home_.In("a.gif"));
  const Dialog gif(program_, FrmConvertGIF_Option1);
  Front(gif.Window());
  ExpectGuide("GIF");
  gif.End(FrmConvertGIF_CmdCancel);
}

TEST_F(HelpKey, OpensTheGuideInTheHotSpotPickerAndTheAboutBox) {
  program_.Command(FrmFindIcon_MnuSaveAsCursor);
  const Dialog hotSpot(program_, FrmHotSpot_PicCursor);
  Front(hotSpot.Window());
  ExpectGuide("hot spot");
  hotSpot.End(FrmHotSpot_CmdCancel);
  program_.Command(FrmFindIcon_MnuAbout);
  const Control about = program_.WaitForStartUpWindow();
  Front(about);
  ExpectGuide("About");
  about.Child(FrmSpash_CmdOk).Press();
}

class ShortcutKeys : public SelectionByHand {
 protected:
  void ShowList() const {
    program_.Item(FrmFindIcon_OptView1).Press();
    ASSERT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
  }
  void FocusOn(int id) const {
    Click(MiddleOf(program_.Item(id).Bounds()));
    ASSERT_TRUE(Eventually([&] { return program_.Focus().Window() == program_.Item(id).Window(); }));
  }
  static bool HasPicture() { return IsClipboardFormatAvailable(CF_BITMAP) != FALSE; }
};

TEST_F(ShortcutKeys, F5ReadsFilesAndFoldersAgainAndKeepsTheChoice) {
  tree_.MakeFile("b.ico", support::IconFileOf(0xFF));
  tree_.MakeFile("c.ico", support::IconFileOf(0xFF));
  Start();
  ASSERT_THAT(FileNames(), ElementsAre("b.ico", "c.ico"));
  program_.Item(FrmFindIcon_File1).Send(LB_SETCURSEL, 1);
  tree_.MakeFile("a.ico", support::IconFileOf(0xFF));
  tree_.MakeFolder("new");
  FocusOn(FrmFindIcon_txtMax);
  PressKey(VK_F5);
  EXPECT_TRUE(Eventually([&] { return FileNames() == std::vector<std::string>{"a.ico", "b.ico", "c.ico"}; }));
  EXPECT_EQ(program_.Item(FrmFindIcon_File1).ListChoice(), 2) << "still c.ico";
  EXPECT_THAT(FolderNames(), Contains("new"));
}

TEST_F(ShortcutKeys, F5ReadsTheDrivesAgain) {
  Start();
  const auto before = program_.Item(FrmFindIcon_Drive1).ComboItems();
  const int chosen = program_.Item(FrmFindIcon_Drive1).ComboChoice();
  const ExtraDrive drive(home_.Path(), "icons");
  PressKey(VK_F5);
  EXPECT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Drive1).ComboItems().size() == before.size() + 1; }));
  EXPECT_EQ(program_.Item(FrmFindIcon_Drive1).ComboChoice(), chosen);
}

TEST_F(ShortcutKeys, F5ReadsTheFoldersOfTheChooserAgain) {
  FindIconFiles(2);
  program_.Command(FrmFindIcon_mnuSaveAll);
  const FolderChooser chooser(program_);
  ASSERT_TRUE(Eventually([&] { return GetForegroundWindow() == chooser.Window().Window(); }));
  tree_.MakeFolder("new");
  PressKey(VK_F5);
  EXPECT_TRUE(Eventually([&] {
    const auto folders = chooser.Folders();
    return std::ranges::find(folders, "new") != folders.end();
  }));
  chooser.Cancel();
}

TEST_F(ShortcutKeys, CtrlCCopiesTheCurrentIconAndCtrlSAsksForItsName) {
  FindIconFiles(3);
  EmptyTheClipboard();
  FocusOn(FrmFindIcon_File1);
  PressKey('C', {VK_CONTROL});
  EXPECT_TRUE(Eventually([] { return HasPicture(); }));
  PressKey('S', {VK_CONTROL});
  SaveDialog(program_).Cancel();
}

TEST_F(ShortcutKeys, TheTextBoxKeepsCtrlCAndCtrlA) {
  FindIconFiles(3);
  ShowList();
  EmptyTheClipboard();
  FocusOn(FrmFindIcon_txtMax);
  program_.Item(FrmFindIcon_txtMax).Send(EM_SETSEL, 0, -1);
  PressKey('C', {VK_CONTROL});
  EXPECT_TRUE(Eventually([] { return IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; }));
  EXPECT_FALSE(HasPicture());
  PressKey('A', {VK_CONTROL});
  WaitForAllInput();
  ExpectRows({0});
}

TEST_F(ShortcutKeys, CtrlASelectsAllRowsOfTheListWhereverTheFocusIs) {
  FindIconFiles(3);
  FocusOn(FrmFindIcon_File1);
  PressKey('A', {VK_CONTROL});
  WaitForAllInput();
  ExpectRows({0});  // the grid has no keys
  ShowList();
  FocusOn(FrmFindIcon_File1);
  PressKey('A', {VK_CONTROL});
  ExpectRows({0, 1, 2});
}

TEST_F(ShortcutKeys, DoNothingWithoutAnIcon) {
  Start();
  EmptyTheClipboard();
  FocusOn(FrmFindIcon_File1);
  PressKey('C', {VK_CONTROL});
  PressKey('S', {VK_CONTROL});
  WaitForAllInput();
  EXPECT_FALSE(HasPicture());
  EXPECT_EQ(program_.CountWindows(), 1);
}

}  // namespace
}  // namespace tarvik::end_to_end
