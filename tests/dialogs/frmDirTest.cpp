#include "dialogs/frmDir.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "base/FolderPath.h"
#include "dialogs/FolderDialogTexts.h"
#include "forms/BoxWatcher.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "resource.h"

namespace tarvik {
namespace {

using support::Command;
using support::TextOf;

class frmDirTest : public ::testing::Test {
 protected:
  frmDirTest() {
    state.CurrentLanguage = "ENG";
    state.SaveExtension = ".ICO";
    application.onRuntimeError = [](Form& /*form*/, const RuntimeError& /*error*/) { ADD_FAILURE(); };
    owner = CreateWindowW(L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr,
                          nullptr);
    subFolders["C:\\work"] = {"C:\\work\\a", "C:\\work\\b"};
  }
  ~frmDirTest() override { DestroyWindow(owner); }

  // Shows the dialog, which is operated by the steps queued before. Returns the dialog's result.
  std::string Show() {
    const std::string answer = form.ShowDir(owner);
    EXPECT_TRUE(driver.IsDone());
    EXPECT_TRUE(IsWindowEnabled(owner));
    return answer;
  }
  void OnDir(support::ModalDriver::Step step) { driver.On(frmDir_dirMain, std::move(step)); }
  void OnCreate(support::ModalDriver::Step step) { driver.On(frmDirCreate_txt, std::move(step)); }
  static support::ModalDriver::Step Press(int id) {
    return [id](HWND window) { Command(window, id); };
  }

  Application application{GetModuleHandleW(nullptr)};
  ProgramState state;
  HWND owner = nullptr;
  std::string initialFolder = "C:\\work";
  std::map<std::string, std::vector<std::string>> subFolders;
  std::vector<std::string> made;  // the folders that the new-folder dialog asked to make
  bool canMake = true;
  std::vector<DriveListBox::Drive> drives{{"C:\\", "c: [SYSTEM]"}, {"D:\\", "d:"}};
  support::ModalDriver driver;
  support::BoxWatcher boxes;
  frmDir form{application,
              state,
              {[this] { return drives; }, [this](const std::string& folder) { return subFolders[folder]; },
               [this](const std::string& path) -> std::optional<std::string> {
                 made.push_back(path);
                 if (!canMake) return std::nullopt;
                 subFolders[ParentFolder(path)].push_back(path);
                 return path;
               },
               [this] { return initialFolder; }}};
};

TEST_F(frmDirTest, OpensAtTheMainWindowsFolder) {
  OnDir([this](HWND window) {
    EXPECT_EQ(TextOf(window, frmDir_lblDir), "C:\\work");
    EXPECT_EQ(TextOf(window, frmDir_drvMain), "c: [SYSTEM]");
    EXPECT_FALSE(IsWindowEnabled(owner));
    Command(window, frmDir_CmdOk);
  });
  EXPECT_EQ(Show(), "C:\\work");
}

TEST_F(frmDirTest, ShowsItsTextsInEachLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    state.CurrentLanguage = language;
    OnDir([&](HWND window) {
      for (const FormText& row : frmDirTexts)
        EXPECT_EQ(row.id == formCaption ? TextOf(window) : TextOf(window, row.id), *Pick(row.text, language));
      Command(window, frmDir_CmdCancel);
    });
    Show();
  }
}

TEST_F(frmDirTest, HidesTheTypesForIconsAndCursors) {
  for (const std::string extension : {".ICO", ".CUR", ".cur"}) {
    state.SaveExtension = extension;
    OnDir([](HWND window) {
      EXPECT_FALSE(IsWindowVisible(GetDlgItem(window, frmDir_CboFileType)));
      Command(window, frmDir_CmdOk);
    });
    Show();
    EXPECT_EQ(state.SaveExtension, extension);
  }
}

TEST_F(frmDirTest, HoldsTheTypesTwiceAfterLoadingAndOnceMoreAfterEachChoice) {
  state.SaveExtension = ".bmp";
  OnDir([this](HWND window) {
    EXPECT_TRUE(IsWindowVisible(GetDlgItem(window, frmDir_CboFileType)));
    EXPECT_EQ(support::RowCount(window, frmDir_CboFileType), 18);
    EXPECT_EQ(support::ChosenRow(window, frmDir_CboFileType), 0);
    EXPECT_EQ(support::RowText(window, frmDir_CboFileType, 2), "JPG Files (*.jpg)");
    EXPECT_EQ(support::RowText(window, frmDir_CboFileType, 9 + 8), "EMF Files (*.emf)");
    support::ChooseRow(window, frmDir_CboFileType, 2);
    EXPECT_EQ(state.SaveExtension, ".jpg");
    EXPECT_EQ(support::RowCount(window, frmDir_CboFileType), 27);
    support::ChooseRow(window, frmDir_CboFileType, 8);
    EXPECT_EQ(state.SaveExtension, ".emf");
    support::ChooseRow(window, frmDir_CboFileType, 9);
    EXPECT_EQ(state.SaveExtension, ".emf") << "only the first nine name an extension";
    EXPECT_EQ(support::RowCount(window, frmDir_CboFileType), 45);
    Command(window, frmDir_CmdOk);
  });
  Show();
  EXPECT_EQ(state.SaveExtension, ".emf");
}

TEST_F(frmDirTest, StartsWithBitmapsWhateverWasChosenLast) {
  state.SaveExtension = ".jpg";
  OnDir(Press(frmDir_CmdOk));
  Show();
  EXPECT_EQ(state.SaveExtension, ".bmp");
}

TEST_F(frmDirTest, FollowsTheFolderThatIsOpened) {
  OnDir([](HWND window) {
    support::OpenRow(window, frmDir_dirMain, 3);  // C:\, work, a, b
    EXPECT_EQ(TextOf(window, frmDir_lblDir), "C:\\work\\b");
    SendMessageW(GetDlgItem(window, frmDir_dirMain), LB_SETCURSEL, 0, 0);
    SendMessageW(GetDlgItem(window, frmDir_dirMain), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(TextOf(window, frmDir_lblDir), "C:\\");
    Command(window, frmDir_CmdOk);
  });
  EXPECT_EQ(Show(), "C:\\");
}

TEST_F(frmDirTest, MovesToTheChosenDrive) {
  OnDir([](HWND window) {
    support::ChooseRow(window, frmDir_drvMain, 1);
    EXPECT_EQ(TextOf(window, frmDir_lblDir), "D:\\");
    Command(window, frmDir_CmdOk);
  });
  EXPECT_EQ(Show(), "D:\\");
}

TEST_F(frmDirTest, ReturnsNothingWhereItIsCancelled) {
  for (const int id : {frmDir_CmdCancel, IDCANCEL}) {
    OnDir(Press(id));
    EXPECT_EQ(Show(), "");
  }
}

TEST_F(frmDirTest, ReturnsTheFolderLastShownWhereItIsClosed) {
  OnDir([](HWND window) { PostMessageW(window, WM_CLOSE, 0, 0); });
  EXPECT_EQ(Show(), "C:\\work");
  OnDir([](HWND window) {
    support::OpenRow(window, frmDir_dirMain, 2);
    PostMessageW(window, WM_CLOSE, 0, 0);
  });
  EXPECT_EQ(Show(), "C:\\work\\a");
}

TEST_F(frmDirTest, ChoosesTheFolderThatIsCreated) {
  OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
  OnCreate([](HWND window) {
    EXPECT_EQ(TextOf(window), "Create In C:\\work");
    EXPECT_EQ(TextOf(window, frmDirCreate_txt), "New Folder");
    support::SetText(window, frmDirCreate_txt, "新");
    Command(window, frmDirCreate_CmdOk);
  });
  OnDir([](HWND window) {
    EXPECT_EQ(TextOf(window, frmDir_lblDir), "C:\\work\\新");
    Command(window, frmDir_CmdOk);
  });
  EXPECT_EQ(Show(), "C:\\work\\新");
  EXPECT_EQ(made, std::vector<std::string>{"C:\\work\\新"});
}

TEST_F(frmDirTest, ShowsTheFoldersThatCameMeanwhileWhereNoneWasCreated) {
  OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
  OnCreate([this](HWND window) {
    subFolders["C:\\work"].emplace_back("C:\\work\\c");
    Command(window, frmDirCreate_CmdCancel);
  });
  OnDir([](HWND window) {
    const HWND list = GetDlgItem(window, frmDir_dirMain);
    EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 5) << "the drive, the folder, a, b and c";
    EXPECT_NE(SendMessageW(list, LB_FINDSTRINGEXACT, 0, reinterpret_cast<LPARAM>(L"c")), LB_ERR);
    EXPECT_EQ(TextOf(window, frmDir_lblDir), "C:\\work");
    Command(window, frmDir_CmdOk);
  });
  EXPECT_EQ(Show(), "C:\\work");
}

TEST_F(frmDirTest, SelectsTheWholeNameEachTimeThatItsBoxGainsTheFocus) {
  OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
  OnCreate([](HWND window) {
    const HWND name = GetDlgItem(window, frmDirCreate_txt);
    for (const char* text : {"abc", "一二三四五"}) {
      support::SetText(window, frmDirCreate_txt, text);
      SetFocus(GetDlgItem(window, frmDirCreate_CmdCancel));
      SendMessageW(name, EM_SETSEL, 2, 2);
      SetFocus(name);
      EXPECT_EQ(SendMessageW(name, EM_GETSEL, 0, 0), MAKELRESULT(0, ToWide(text).size())) << text;
    }
    Command(window, frmDirCreate_CmdCancel);
  });
  OnDir(Press(frmDir_CmdCancel));
  Show();
}

TEST_F(frmDirTest, TakesAnOpenNewFolderDialogWithItWhereItIsClosed) {
  for (int round = 0; round < 2; ++round) {
    OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
    OnCreate([this](HWND) { PostMessageW(form.Window(), WM_CLOSE, 0, 0); });
    EXPECT_EQ(Show(), "C:\\work");
  }
  EXPECT_TRUE(made.empty());
  application.Run();  // returns because no form is left
}

TEST_F(frmDirTest, DoublesNoBackslashBehindADriveRoot) {
  initialFolder = "C:\\";
  OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
  OnCreate(Press(frmDirCreate_CmdOk));
  OnDir(Press(frmDir_CmdOk));
  EXPECT_EQ(Show(), "C:\\New Folder");
}

TEST_F(frmDirTest, CreatesNothingWhereThatIsCancelled) {
  OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
  OnCreate(Press(frmDirCreate_CmdCancel));
  OnDir(Press(frmDir_CmdOk));
  EXPECT_EQ(Show(), "C:\\work");
  EXPECT_TRUE(made.empty());
}

TEST_F(frmDirTest, NamesTheNewFolderInEachLanguage) {
  struct Row {
    const char* language;
    const char* caption;
    const char* name;
    const char* label;
    const char* ok;
    const char* cancel;
  };
  for (const Row& row : {Row{"CHS", "在C:\\work中创建子文件夹", "新建文件夹", "文件夹:", "创建(&R)", "取消(&C)"},
                         {"CHT", "在C:\\work中創建子文件夾", "新建文件夾", "文件夾:", "創建(&R)", "取消(&C)"},
                         {"ENG", "Create In C:\\work", "New Folder", "Folder:", "Cr&eate", "&Cancel"}}) {
    state.CurrentLanguage = row.language;
    OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
    OnCreate([&row](HWND window) {
      EXPECT_EQ(TextOf(window), row.caption);
      EXPECT_EQ(TextOf(window, frmDirCreate_txt), row.name);
      EXPECT_EQ(TextOf(window, frmDirCreate_lblCaption), row.label);
      EXPECT_EQ(TextOf(window, frmDirCreate_CmdOk), row.ok);
      EXPECT_EQ(TextOf(window, frmDirCreate_CmdCancel), row.cancel);
      DWORD start = 99;
      DWORD end = 0;
      SendMessageW(GetDlgItem(window, frmDirCreate_txt), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                   reinterpret_cast<LPARAM>(&end));
      EXPECT_EQ(start, 0U);
      EXPECT_EQ(end, ToWide(row.name).size()) << "the name is selected";
      Command(window, frmDirCreate_CmdCancel);
    });
    OnDir(Press(frmDir_CmdCancel));
    Show();
  }
}

TEST_F(frmDirTest, StaysOpenWithTheTypedNameWhereAFolderCannotBeCreated) {
  struct Row {
    const char* language;
    const char* title;
    const char* text;
  };
  canMake = false;
  for (const Row& row :
       {Row{"ENG", "Cannot Create",
            "Unable to create folder. Please check that whether the name you entered is valid and contains no invalid "
            "characters"},
        {"CHS", "创建失败", "无法创建文件夹. 文件夹名称不能包括以下字符:\r\n\\/:*?\"<>|"},
        {"CHT", "創建失敗", "無法創建文件夾. 檔夾名稱不能包括以下字元:\r\n\\/:*?\"<>|"}}) {
    state.CurrentLanguage = row.language;
    OnDir([](HWND window) { PostMessageW(window, WM_COMMAND, frmDir_cmdCreate, 0); });
    OnCreate([](HWND window) {
      support::SetText(window, frmDirCreate_txt, "a:b");
      PostMessageW(window, WM_COMMAND, frmDirCreate_CmdOk, 0);
    });
    OnCreate([&](HWND window) {
      EXPECT_EQ(boxes.Boxes().back().title, row.title);
      EXPECT_EQ(boxes.Boxes().back().text, row.text);
      EXPECT_EQ(boxes.Boxes().back().sign, LoadIconW(nullptr, IDI_ERROR));
      EXPECT_EQ(TextOf(window, frmDirCreate_txt), "a:b");
      Command(window, frmDirCreate_CmdCancel);
    });
    OnDir(Press(frmDir_CmdOk));
    EXPECT_EQ(Show(), "C:\\work");
    EXPECT_EQ(made.back(), "C:\\work\\a:b");
  }
}

}  // namespace
}  // namespace tarvik
