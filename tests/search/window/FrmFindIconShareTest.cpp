// A saved folder on another computer: the program does not read it before the user agrees.

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* share = "\\\\server\\share";
constexpr const char* folder = "\\\\server\\share\\icons";

class FrmFindIconShareTest : public support::FindIconFixture {
 protected:
  FrmFindIconShareTest() {
    ini.values["FindIcon/Folder"] = folder;
    machine.files[folder] = {"a.ico"};
    machine.subFolders[folder] = {std::string(folder) + "\\more"};
    machine.icons[std::string(folder) + "\\a.ico"] = 1;
  }

  void ExpectUnread() const {
    EXPECT_THAT(RowsOf(FrmFindIcon_Dir1), ElementsAre(share, "icons"));
    EXPECT_THAT(RowsOf(FrmFindIcon_File1), IsEmpty());
  }
  void ExpectRead() const {
    EXPECT_THAT(RowsOf(FrmFindIcon_Dir1), ElementsAre(share, "icons", "more"));
    EXPECT_THAT(RowsOf(FrmFindIcon_File1), ElementsAre("a.ico"));
  }
};

TEST_F(FrmFindIconShareTest, IsShownAndNotReadAtTheStart) {
  Open();
  ExpectUnread();
  EXPECT_THAT(machine.patterns, IsEmpty()) << "files were asked for";
  EXPECT_THAT(lookedAt, Not(Contains(folder)));
  EXPECT_EQ(SendMessageW(Item(FrmFindIcon_Drive1), CB_GETCURSEL, 0, 0), CB_ERR);
}

TEST_F(FrmFindIconShareTest, IsNotReadForAnotherFileTypeOrTheEndOfTheProgram) {
  Open();
  Click(FrmFindIcon_ChkFileType0 + 4);
  ExpectUnread();
  window->Unload();
  EXPECT_EQ(ini.values["FindIcon/Folder"], folder);
}

TEST_F(FrmFindIconShareTest, IsReadByASearch) {
  Open();
  Click(FrmFindIcon_CmdFind);
  application.DoEvents();
  EXPECT_EQ(Caption(), std::string("Brindle Tarvik - ") + folder + " - 1 Icons");
  ExpectRead();
}

TEST_F(FrmFindIconShareTest, IsReadByADoubleClickAndByF5) {
  Open();
  SendMessageW(window->Window(), WM_COMMAND, MAKEWPARAM(FrmFindIcon_Dir1, LBN_DBLCLK),
               reinterpret_cast<LPARAM>(Item(FrmFindIcon_Dir1)));
  ExpectRead();
  Open();
  ExpectUnread();
  PostMessageW(Item(FrmFindIcon_CmdFind), WM_KEYDOWN, VK_F5, 1);
  application.DoEvents();
  ExpectRead();
}

TEST_F(FrmFindIconShareTest, IsReadAtTheStartIfTheProgramItselfIsThere) {
  programFolder = folder;
  Open();
  ExpectRead();
}

}  // namespace
}  // namespace tarvik
