// Files and folders dropped on the main window.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "platform/DroppedBlock.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

class FrmFindIconDropTest : public support::FindIconFixture {
 protected:
  FrmFindIconDropTest() { drives = {{"C:\\", "c: [SYSTEM]"}, {"D:\\", "d:"}, {"E:\\", "e:"}}; }

  // Drops these, as the shell does.
  void Drop(const std::vector<std::string>& paths) {
    PostMessageW(window->Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(Block(paths)), 0);
    application.DoEvents();
  }
  static HGLOBAL Block(const std::vector<std::string>& paths) {
    const std::vector<std::byte> block = support::DroppedBlock(paths);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, block.size());
    std::memcpy(GlobalLock(memory), block.data(), block.size());
    GlobalUnlock(memory);
    return memory;
  }
  int Drive() const { return static_cast<int>(SendMessageW(Item(FrmFindIcon_Drive1), CB_GETCURSEL, 0, 0)); }
  std::string TickedTypes() const {
    std::string ticked;
    for (int id = FrmFindIcon_ChkFileType0; id <= FrmFindIcon_ChkFileType6; ++id)
      ticked += window->IsChecked(id) ? 'x' : '-';
    return ticked;
  }
};

using Names = std::vector<std::string>;

TEST_F(FrmFindIconDropTest, SaysToTheSystemThatItTakesFiles) {
  Open();
  EXPECT_NE(GetWindowLongPtrW(window->Window(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
}

TEST_F(FrmFindIconDropTest, OpensADroppedFolderAndChoosesItsDrive) {
  Open();
  machine.subFolders["E:\\pictures\\图标"] = {"E:\\pictures\\图标\\old"};
  machine.files["E:\\pictures\\图标"] = {"a.ico", "b.ico"};
  Drop({"E:\\pictures\\图标"});
  EXPECT_EQ(window->Dir1Path(), "E:\\pictures\\图标");
  EXPECT_EQ(RowsOf(FrmFindIcon_Dir1), (Names{"E:\\", "pictures", "图标", "old"}));
  EXPECT_EQ(RowsOf(FrmFindIcon_File1), (Names{"a.ico", "b.ico"}));
  EXPECT_EQ(Drive(), 2);
  EXPECT_EQ(TickedTypes(), "x------");
}

TEST_F(FrmFindIconDropTest, OpensTheRootOfADrive) {
  Open();
  Drop({"E:\\"});
  EXPECT_EQ(window->Dir1Path(), "E:\\");
  EXPECT_EQ(Drive(), 2);
}

TEST_F(FrmFindIconDropTest, OpensAFolderOfAnyDepth) {
  Open();
  std::string folder = "E:";
  for (int depth = 0; depth < 100; ++depth) folder += "\\folder";
  Drop({folder});
  EXPECT_EQ(window->Dir1Path(), folder);
}

TEST_F(FrmFindIconDropTest, OpensTheFolderOfADroppedFileAndTicksItsType) {
  struct Row {
    const char* name;
    const char* ticked;
    const char* pattern;
  };
  for (const Row& row : {Row{"a.ico", "x------", "*.ico;"}, Row{"a.ANI", "xx-----", "*.ico;*.ani;"},
                         Row{"a.icl", "x-x----", "*.ico;*.icl;"}, Row{"a.ocx", "x--x---", "*.ico;*.ocx;"},
                         Row{"a.dll", "x---x--", "*.ico;*.dll;"}, Row{"a.exe", "x----x-", "*.ico;*.exe;"},
                         Row{"notes.txt", "xxxxxxx", "*.*"}}) {
    Open();
    machine.files["E:\\tools"] = {row.name};
    Drop({std::string("E:\\tools\\") + row.name});
    EXPECT_EQ(window->Dir1Path(), "E:\\tools") << row.name;
    EXPECT_EQ(RowsOf(FrmFindIcon_File1), Names{row.name});
    EXPECT_EQ(Drive(), 2) << row.name;
    EXPECT_EQ(TickedTypes(), row.ticked) << row.name;
    EXPECT_EQ(machine.patterns.back(), row.pattern) << row.name;
  }
}

TEST_F(FrmFindIconDropTest, FindsTheIconsOfADroppedFile) {
  Open();
  machine.files["E:\\tools"] = {"a.exe"};
  machine.icons["E:\\tools\\a.exe"] = 3;
  Drop({"E:\\tools\\a.exe"});
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(Caption(), "Brindle Tarvik - E:\\tools - 3 Icons");
}

TEST_F(FrmFindIconDropTest, TakesTheFirstOfSeveralAndNothingOfNone) {
  Open();
  Drop({"E:\\tools\\a.dll", "C:\\other", "C:\\icons\\a.exe"});
  EXPECT_EQ(window->Dir1Path(), "E:\\tools");
  EXPECT_EQ(TickedTypes(), "x---x--");
  Drop({});
  EXPECT_EQ(window->Dir1Path(), "E:\\tools");
  EXPECT_TRUE(boxes.Boxes().empty());
}

TEST_F(FrmFindIconDropTest, OpensAShareWithoutADrive) {
  Open();
  machine.files["\\\\server\\share"] = {"a.ico"};
  machine.icons["\\\\server\\share\\a.ico"] = 1;
  Drop({"\\\\server\\share\\"});
  EXPECT_EQ(RowsOf(FrmFindIcon_Dir1), Names{"\\\\server\\share"});
  EXPECT_EQ(RowsOf(FrmFindIcon_File1), Names{"a.ico"});
  EXPECT_EQ(Drive(), -1);
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(Caption(), "Brindle Tarvik - \\\\server\\share - 1 Icons");
  Drop({"\\\\server\\share\\icons\\b.dll"});
  EXPECT_EQ(RowsOf(FrmFindIcon_Dir1), (Names{"\\\\server\\share", "icons"}));
}

TEST_F(FrmFindIconDropTest, ListsADriveAndAFileThatAreNew) {
  Open();
  Drop({"C:\\icons"});
  EXPECT_EQ(RowsOf(FrmFindIcon_File1), Names{"some.dll"});
  machine.files["C:\\icons"] = {"new.ico", "some.dll"};
  Drop({"C:\\icons\\new.ico"});
  EXPECT_EQ(RowsOf(FrmFindIcon_File1), (Names{"new.ico", "some.dll"}));
  drives.push_back({"F:\\", "f: [STICK]"});
  Drop({"F:\\"});
  EXPECT_EQ(Drive(), 3);
}

TEST_F(FrmFindIconDropTest, SaysInEachLanguageThatAFolderCannotBeRead) {
  struct Row {
    const char* language;
    const char* title;
    const char* text;
  };
  std::size_t shown = 0;
  for (const Row& row : {Row{"ENG", "Brindle Tarvik - Error", "The folder cannot be read:\r\nD:\\private"},
                         Row{"CHS", "Brindle Tarvik - 错误", "无法读取文件夹：\r\nD:\\private"},
                         Row{"CHT", "Brindle Tarvik - 錯誤", "無法讀取資料夾：\r\nD:\\private"}}) {
    Open(row.language);
    Drop({"D:\\private\\a.exe"});
    ASSERT_EQ(boxes.Boxes().size(), ++shown);
    EXPECT_EQ(boxes.Boxes().back().title, row.title);
    EXPECT_EQ(boxes.Boxes().back().text, row.text);
    EXPECT_EQ(window->Dir1Path(), "C:\\icons");
    EXPECT_EQ(TickedTypes(), "x------");
  }
}

TEST_F(FrmFindIconDropTest, RefusesADropWhileItSearchesOrSavesOrADialogIsOverIt) {
  Open();
  machine.icons["C:\\icons\\some.dll"] = 3;
  PostMessageW(window->Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(Block({"E:\\tools"})), 0);
  Click(FrmFindIcon_CmdFind);  // processes it in its middle
  EXPECT_EQ(Caption(), "Brindle Tarvik - C:\\icons - 3 Icons");
  EXPECT_EQ(window->Dir1Path(), "C:\\icons");

  bool asked = false;
  dialogs.onShowDir = [&] {
    asked = true;
    Drop({"E:\\tools"});
  };
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_TRUE(asked);
  EXPECT_EQ(window->Dir1Path(), "C:\\icons");

  EnableWindow(window->Window(), FALSE);
  Drop({"E:\\tools"});
  EXPECT_EQ(window->Dir1Path(), "C:\\icons");
  EnableWindow(window->Window(), TRUE);
  Drop({"E:\\tools"});
  EXPECT_EQ(window->Dir1Path(), "E:\\tools");
}

}  // namespace
}  // namespace tarvik
