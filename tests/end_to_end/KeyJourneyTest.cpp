// From the start of the program to its end by the keyboard alone, once in each language. No mouse is used, and no
// message is sent to a window: every step is a key press.

#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "driver/Dialogs.h"
#include "driver/SaveDialog.h"
#include "driver/SeenFiles.h"
#include "end_to_end/ViewByHand.h"
#include "platform/Display.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

struct KeyTongue {
  const char* code;
  const char* folder;
  const char* newFolder;
  const char* file;
  WORD create;  // the letter of the button that makes a folder
  friend void PrintTo(const KeyTongue& tongue, std::ostream* out) { *out << tongue.code; }
};

class KeyJourney : public ViewByHand, public ::testing::WithParamInterface<KeyTongue> {
 protected:
  void SetUp() override {
    // The dpi that the display should have, if it is a display for these tests.
    if (const char* const asked = std::getenv("TARVIK_TEST_DOTS"); asked != nullptr) {
      ASSERT_EQ(std::to_string(DotsOfDisplay()), asked);
    }
    tree_.MakeFolder(tongue_.folder);
    tree_.MakeFolder(tongue_.folder + std::string("\\2"));
    tree_.MakeFile(tongue_.folder + std::string("\\a.ico"), support::IconFileOf(0xFF));
    CopyHundredIcons(In(tongue_.folder + std::string("\\2\\hundred.dll")));
    fs::copy(BuiltFile(TARVIK_GUIDE), fs::path(ToWide(home_.In("guide"))), fs::copy_options::recursive);
    out_ = home_.MakeFolder("out");
  }

  int FocusedId() const { return GetDlgCtrlID(program_.Focus().Window()); }
  // Presses Tab until the control has the focus.
  void GoTo(int id) const {
    for (int step = 0; step < 30 && FocusedId() != id; ++step) {
      const Control before = program_.Focus();
      PressKey(VK_TAB);
      ASSERT_TRUE(Eventually([&] { return program_.Focus().Window() != before.Window(); })) << id;
    }
    ASSERT_EQ(FocusedId(), id);
  }
  void TickByKey(int id) const {
    GoTo(id);
    const Control box = program_.Item(id);
    ASSERT_FALSE(box.IsChecked());
    PressKey(VK_SPACE);
    EXPECT_TRUE(Eventually([&] { return box.IsChecked(); })) << id;
  }
  // Opens a menu by its letter and chooses an item, and one of its sub-menu, by their positions, counted from 0 without
  // separators; `below` is -1 if there is no sub-menu.
  void Choose(WORD letter, int position, int below = -1) const {
    PressKey(letter, {VK_MENU});
    ASSERT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); })) << letter;
    PressKey(VK_DOWN, {}, position);
    if (below >= 0) {
      PressKey(VK_RIGHT);
      PressKey(VK_DOWN, {}, below);
    }
    PressKey(VK_RETURN);
  }
  void WaitForFront(const Control& window) const {
    ASSERT_TRUE(Eventually([&] { return GetForegroundWindow() == window.Window(); }));
  }
  void WaitUntilBack() const {
    ASSERT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
    WaitForFront(program_.Window());
  }
  // Types a name into the system's dialog, whose name box has the focus.
  void TypeName(const std::string& name) const {
    const SaveDialog dialog(program_);
    WaitForFront(dialog.Window());
    const std::string path = out_ + "\\" + tongue_.file + name;
    ASSERT_TRUE(Eventually([&] {
      PressKey('A', {VK_CONTROL});
      TypeText(path);
      return Eventually([&] { return dialog.Name() == path; }, lostAfter);
    })) << dialog.Name();
    PressKey(VK_RETURN);
  }
  void ExpectSaved(const std::string& name, const std::string& status) const {
    const fs::path file = fs::path(ToWide(out_)) / ToWide(tongue_.file + name);
    EXPECT_TRUE(Eventually([&] { return fs::exists(file) && fs::file_size(file) > 0 && Status() == status; })) << name;
    WaitUntilBack();
  }

  void ChooseFolder() const {
    GoTo(FrmFindIcon_Drive1);
    PressKey('R');
    const std::vector<std::string> below{"R:\\", tongue_.folder};
    ASSERT_TRUE(Eventually([&] { return FolderNames() == below; }));
    PressKey(VK_TAB);
    ASSERT_TRUE(Eventually([&] { return FocusedId() == FrmFindIcon_Dir1; }));
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    ASSERT_TRUE(Eventually([&] { return FileNames() == std::vector<std::string>{"a.ico"}; }));
  }
  void Search() const {
    TickByKey(FrmFindIcon_ChkFileType4);
    TickByKey(FrmFindIcon_chkSubDir);
    GoTo(FrmFindIcon_txtMax);
    PressKey(VK_HOME);
    PressKey(VK_END, {VK_SHIFT});
    const Control box = program_.Item(FrmFindIcon_txtMax);
    const LRESULT whole = MAKELRESULT(0, box.Text().size());
    ASSERT_TRUE(Eventually([&] { return box.Send(EM_GETSEL) == whole; }));
    TypeText("200");
    ASSERT_TRUE(Eventually([&] { return box.Text() == "200"; })) << box.Text();
    PressKey(VK_RETURN);
    ASSERT_TRUE(Eventually([&] { return List().RowCount() == 101 && IsEnabled(FrmFindIcon_CmdFind); }));
  }
  void SelectInTheList() const {
    Choose('V', 1);
    ASSERT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
    GoTo(FrmFindIcon_Lv);
    PressKey(VK_DOWN, {}, 2);
    PressKey(VK_DOWN, {VK_SHIFT});
    ExpectRows({2, 3});
  }
  void LookAtOneIcon() const {
    PressKey(VK_RETURN);
    const EnhancedView view(program_);
    WaitForFront(view.Window());
    EXPECT_TRUE(Eventually([&] { return view.Status().ends_with("hundred.dll - 2"); })) << view.Status();
    PressKey(VK_SPACE, {}, 2);
    EXPECT_TRUE(Eventually([&] { return view.Status().ends_with("hundred.dll - 3"); })) << view.Status();
    PressKey(VK_DOWN);
    EXPECT_TRUE(Eventually([&] { return view.ZoomList().ComboChoice() == 0; }));
    PressKey(VK_TAB);
    PressKey(VK_RIGHT, {}, 4);
    PressKey(VK_RETURN);
    EXPECT_TRUE(Eventually([&] { return view.ShowIsOn(); }));
    PressKey(VK_RIGHT);
    PressKey(VK_RETURN);
    EXPECT_TRUE(Eventually([&] { return view.ShowIsOff(); }));
    PressKey(VK_HOME);
    PressKey(VK_RETURN);
    EXPECT_TRUE(Eventually([&] { return view.Status().ends_with("a.ico - 0"); })) << view.Status();
    PressKey(VK_END);
    PressKey(VK_RETURN);
    ASSERT_TRUE(Eventually([&] { return !view.IsOpen(); }));
    WaitUntilBack();
  }
  void SaveEachFormat() const {
    const std::string status = Status();
    PressKey('S', {VK_CONTROL});
    TypeName(".ico");
    ExpectSaved(".ico", status);
    Choose('F', 2);
    TypeName(".bmp");
    ExpectSaved(".bmp", status);
    Choose('F', 2);
    TypeName(".jpg");
    PressInDialog(fSaveJPG_CboSize, VK_RETURN);
    ExpectSaved(".jpg", status);
    Choose('F', 2);
    TypeName(".gif");
    PressInDialog(FrmConvertGIF_Option1, VK_RETURN);
    ExpectSaved(".gif", status);
    Choose('F', 3);
    PressInDialog(FrmHotSpot_PicCursor, VK_RETURN);
    TypeName(".cur");
    ExpectSaved(".cur", status);
  }
  void PressInDialog(int control, WORD key, HeldKeys held = {}) const {
    const Dialog dialog(program_, control);
    WaitForFront(dialog.Window());
    PressKey(key, held);
  }
  void SaveTheSelectedIcons() const {
    const std::string status = Status();
    Choose('F', 4, 0);
    const FolderChooser chooser(program_);
    WaitForFront(chooser.Window());
    PressKey(tongue_.create, {VK_MENU});
    const Dialog newFolder(program_, frmDirCreate_txt);
    WaitForFront(newFolder.Window());
    const Control name = newFolder.Item(frmDirCreate_txt);
    ASSERT_TRUE(Eventually([&] {
      PressKey('A', {VK_CONTROL});
      PressKey(VK_HOME);
      PressKey(VK_END, {VK_SHIFT});
      TypeText(tongue_.newFolder);
      return Eventually([&] { return name.Text() == tongue_.newFolder; }, lostAfter);
    })) << name.Text();
    PressKey(VK_RETURN);
    const std::string folder = std::string("R:\\") + tongue_.folder + "\\" + tongue_.newFolder;
    ASSERT_TRUE(Eventually([&] { return chooser.Path() == folder; })) << chooser.Path();
    WaitForFront(chooser.Window());
    PressKey('O', {VK_MENU});
    WaitUntilBack();
    // The window accepts no keys until the last file is written and its status is restored.
    EXPECT_TRUE(Eventually([&] { return fs::exists(ToWide(folder + "\\Icon 2.ico")) && Status() == status; }));
    EXPECT_TRUE(fs::exists(ToWide(folder + "\\Icon 1.ico")));
    EXPECT_FALSE(fs::exists(ToWide(folder + "\\Icon 3.ico")));
  }
  void CopyAndRead() const {
    EmptyTheClipboard();
    PressKey('C', {VK_CONTROL});
    EXPECT_TRUE(Eventually([] { return IsClipboardFormatAvailable(CF_BITMAP) != FALSE; }));
    const std::string page = home_.In("page.txt");
    const WebPageReader reader(page);
    PressKey(VK_F1);
    EXPECT_TRUE(Eventually([&] { return support::ReadAll(page).find("guide-") != std::string::npos; }, shortly));
    program_.BringToFront();  // from the program that shows the guide
  }

  const KeyTongue& tongue_ = GetParam();
  const ExtraDrive drive_{tree_.Path(), "icons"};  // R:
  std::string out_;
};

TEST_P(KeyJourney, FromTheStartToTheEndWithoutAMouse) {
  const LanguageValue language(tongue_.code);
  Start();
  MovePointer({0, 0});
  ChooseFolder();
  Search();
  SelectInTheList();
  LookAtOneIcon();
  SaveEachFormat();
  SaveTheSelectedIcons();
  CopyAndRead();
  Choose('F', 7);
  EXPECT_EQ(program_.WaitForEnd(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Languages, KeyJourney,
                         ::testing::Values(KeyTongue{"ENG", "icons", "saved", "flower", 'E'},
                                           KeyTongue{"CHS", "图标", "保存", "花", 'R'},
                                           KeyTongue{"CHT", "圖示", "儲存", "花", 'R'}),
                         [](const auto& row) { return std::string(row.param.code); });

}  // namespace
}  // namespace tarvik::end_to_end
