#include "export/FileDialog.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

#include "forms/BoxWatcher.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr int nameId = 0x47c;  // defined by the system

class FileDialogTest : public ::testing::Test {
 protected:
  static std::wstring CurrentFolder() {
    std::array<wchar_t, 1024> folder{};
    GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
    return folder.data();
  }
  // The dialog's result after its user types the name and presses a button.
  std::string Open(const std::string& name, int button) {
    driver.On(nameId, [this, name, button](HWND dialog) {
      title = support::TextOf(dialog);
      SetDlgItemTextW(dialog, nameId, ToWide(name).c_str());
      support::Command(dialog, button);
    });
    return AskForFileToOpen(nullptr, saveAsMode, "CHS");
  }

  support::TemporaryFolder folder;
  support::ModalDriver driver;
  std::string title;
};

TEST_F(FileDialogTest, GivesTheFileToOpen) {
  const std::string path = folder.MakeFile("图标.ico");
  const std::wstring current = CurrentFolder();
  EXPECT_EQ(Open(path, IDOK), path);
  EXPECT_EQ(title, "Brindle Tarvik - 另存为");
  EXPECT_EQ(CurrentFolder(), current);
}

TEST_F(FileDialogTest, GivesNothingWhereItIsCancelled) {
  EXPECT_EQ(Open(folder.MakeFile("a.ico"), IDCANCEL), "");
}

TEST_F(FileDialogTest, OpensNoFileThatIsNotThere) {
  const std::string path = folder.In("none.ico");
  const support::BoxWatcher boxes;
  driver.On(nameId, [path](HWND dialog) {
    SetDlgItemTextW(dialog, nameId, ToWide(path).c_str());
    support::Command(dialog, IDOK);
  });
  driver.On(nameId, [](HWND dialog) { support::Command(dialog, IDCANCEL); });
  EXPECT_EQ(AskForFileToOpen(nullptr, saveAsMode, "ENG"), "");
  EXPECT_EQ(boxes.Boxes().size(), 1U) << "says that it is not there";
}

}  // namespace
}  // namespace tarvik
