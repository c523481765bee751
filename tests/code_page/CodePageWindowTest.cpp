// The main window over real files, in a code page other than UTF-8.

#include <gmock/gmock.h>
#include <windows.h>

#include <string>

#include "code_page/Names.h"
#include "export/FileDialog.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/IconFiles.h"
#include "platform/TemporaryFolder.h"
#include "search/icons/Folders.h"
#include "search/icons/ShellIcons.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using support::Names;

constexpr int nameId = 0x47c;  // in the system's dialogs

class CodePageWindow : public support::FindIconFixture {
 protected:
  void OpenOn(const std::string& folder, const std::string& language) {
    ini.values["FindIcon/Folder"] = folder;
    OpenOver(icons, folders, language);
  }
  std::string Path(int row) const {
    std::wstring text(512, L'\0');
    ListView_GetItemText(Item(FrmFindIcon_Lv), row, 1, text.data(), 512);
    return ToUtf8(text.c_str());
  }

  support::TemporaryFolder tree;
  ShellIcons icons;
  Folders folders;
};

TEST_F(CodePageWindow, FindsShowsAndSavesUnderNamesThatItHolds) {
  const std::string folder = tree.MakeFolder(Names().held);
  const std::string path = tree.MakeFile(Names().held + "\\" + Names().held + ".ico", support::IconFileOf(0xFF));
  OpenOn(folder, "ENG");
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(Caption(), "Brindle Tarvik - " + folder + " - 1 Icons");
  EXPECT_EQ(Path(0), path);
  EXPECT_EQ(GridPixel(10, 10), 0xFFU);
  dialogs.path = tree.In(Names().held + "\\copy.ico");
  Click(FrmFindIcon_mnuSaveAs);
  EXPECT_EQ(icons.CountIcons(dialogs.path), 1);
  EXPECT_TRUE(boxes.Boxes().empty());
}

TEST_F(CodePageWindow, SaysInEachLanguageWhichFilesItLeavesOut) {
  const std::string held = tree.MakeFile("a" + Names().held + ".ico", support::IconFileOf(0xFF));
  const std::string unheld = tree.MakeFile("b" + Names().unheld + ".ico", support::IconFileOf(0xFF));
  tree.MakeFile("c" + Names().unheld + ".ico", support::IconFileOf(0xFF));
  struct Row {
    const char* language;
    const char* text;
  };
  std::size_t shown = 0;
  for (const Row& row :
       {Row{"ENG",
            "Files left out: 2. This version of Windows cannot pass on some characters of their names or of the names "
            "of "
            "their folders. The first one is:\r\n"},
        Row{"CHS", "未查找的文件：2 个。此版本的 Windows 无法处理其名称或所在文件夹名称中的某些字符。第一个是：\r\n"},
        Row{"CHT",
            "未查找的檔案：2 個。此版本的 Windows 無法處理其名稱或所在資料夾名稱中的某些字元。第一個是：\r\n"}}) {
    OpenOn(tree.Path(), row.language);
    Click(FrmFindIcon_CmdFind);
    ASSERT_EQ(boxes.Boxes().size(), ++shown);
    EXPECT_EQ(boxes.Boxes().back().text, row.text + unheld);
    EXPECT_EQ(ListView_GetItemCount(Item(FrmFindIcon_Lv)), 1);
    EXPECT_EQ(Path(0), held);
  }
}

TEST_F(CodePageWindow, SaysInEachLanguageThatANameCannotBeSavedUnder) {
  tree.MakeFile("a.ico", support::IconFileOf(0xFF));
  struct Row {
    const char* language;
    const char* title;
    const char* text;
  };
  std::size_t shown = 0;
  for (const Row& row :
       {Row{"ENG", "Brindle Tarvik - Error",
            "This version of Windows cannot pass on some characters of the name. Choose another name or another "
            "folder:"},
        Row{"CHS", "Brindle Tarvik - 错误", "此版本的 Windows 无法处理名称中的某些字符。请选择其他名称或文件夹："},
        Row{"CHT", "Brindle Tarvik - 錯誤", "此版本的 Windows 無法處理名稱中的某些字元。請選擇其他名稱或資料夾："}}) {
    OpenOn(tree.Path(), row.language);
    Click(FrmFindIcon_CmdFind);
    support::ModalDriver driver;
    driver.On(nameId, [this](HWND dialog) {
      SetDlgItemTextW(dialog, nameId, ToWide(tree.In(Names().unheld + ".ico")).c_str());
      support::Command(dialog, IDOK);
    });
    dialogs.onAskForPath = [&](const FileDialogMode& mode) {
      return AskForFileToSave(window->Window(), mode, row.language);
    };
    Click(FrmFindIcon_mnuSaveAs);
    ASSERT_EQ(boxes.Boxes().size(), ++shown);
    EXPECT_EQ(boxes.Boxes().back().title, row.title);
    EXPECT_EQ(boxes.Boxes().back().text, std::string(row.text) + "\r\n\r\n" + tree.In("??.ico"));
    EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
  }
}

}  // namespace
}  // namespace tarvik
