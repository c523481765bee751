// Input that arrives while a search runs.

#include <gmock/gmock.h>

#include "driver/Input.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {
namespace {

using support::IconFileOf;

class Busy : public EndToEnd {
 protected:
  static constexpr int folders = 60;

  // A tree of folders in which a search processes the waiting messages many times.
  void StartOnManyFolders() {
    for (int i = 0; i < folders; ++i) {
      const std::string folder = "folder" + std::to_string(100 + i);
      tree_.MakeFolder(folder);
      tree_.MakeFile(folder + "\\a.ico", IconFileOf(0xFF));
    }
    Start({}, true);
  }

  void ExpectTheSearchWentOn() {
    // If the close had only been delayed, it would be done before this answer.
    ASSERT_TRUE(program_.IsRunning());
    EXPECT_EQ(List().RowCount(), folders);
    EXPECT_EQ(Status(), std::to_string(folders) + " Icons Added. Double click an icon for enhanced view.");
  }
};

TEST_F(Busy, TheWindowDoesNotCloseWhenAskedTo) {
  StartOnManyFolders();
  BehindFind([&] { program_.Window().Post(WM_CLOSE); });
  ExpectTheSearchWentOn();
}

TEST_F(Busy, TheWindowDoesNotCloseByItsSystemMenu) {
  StartOnManyFolders();
  BehindFind([&] { program_.Window().Post(WM_SYSCOMMAND, SC_CLOSE); });
  ExpectTheSearchWentOn();
}

TEST_F(Busy, TheWindowDoesNotCloseByAltF4) {
  StartOnManyFolders();
  // An open drop-down list would receive the keys.
  Click(MiddleOf(program_.Item(FrmFindIcon_File1).Bounds()));
  BehindFind([&] { PressKey(VK_F4, {VK_MENU}); });
  ExpectTheSearchWentOn();
  PressKey(VK_F4, {VK_MENU});
  EXPECT_EQ(program_.WaitForEnd(), 0U);
}

TEST_F(Busy, TheWindowDoesNotCloseByItsCloseBox) {
  StartOnManyFolders();
  const RECT window = program_.Window().Bounds();
  const POINT closeBox{window.right - GetSystemMetrics(SM_CXSIZE) / 2 - GetSystemMetrics(SM_CXFRAME),
                       window.top + GetSystemMetrics(SM_CYFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
  BehindFind([&] { Click(closeBox); });
  ExpectTheSearchWentOn();
  // The program handles that click only after the search. A click elsewhere keeps the next one from being taken for the
  // second half of a double click.
  Click(MiddleOf(program_.Item(FrmFindIcon_File1).Bounds()));
  // After the search the same place closes the window, so it was the close box.
  Click(closeBox);
  EXPECT_EQ(program_.WaitForEnd(), 0U);
}

TEST_F(Busy, TheWindowDoesNotCloseByItsCommands) {
  StartOnManyFolders();
  BehindFind([&] {
    program_.Command(FrmFindIcon_mnuExit);
    program_.Command(FrmFindIcon_CmdClose);
    program_.Command(FrmFindIcon_CmdOk);
    program_.Command(IDCANCEL);
  });
  ExpectTheSearchWentOn();
}

TEST_F(Busy, TheButtonsThatCouldDisturbAreDisabled) {
  StartOnManyFolders();
  BeforeItLists([&] {
    EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdFind));
    EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdOk));
    EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdClose));
    EXPECT_TRUE(IsEnabled(FrmFindIcon_chkSubDir));
    EXPECT_TRUE(IsEnabled(FrmFindIcon_CboIconSize));
  });
  ExpectTheSearchWentOn();
}

TEST_F(Busy, ASecondSearchDoesNotStartInsideTheFirst) {
  StartOnManyFolders();
  BehindFind([&] {
    program_.Command(FrmFindIcon_CmdFind);
    program_.Command(FrmFindIcon_mnuStart);
    PressKey(VK_RETURN);
  });
  ExpectTheSearchWentOn();
}

TEST_F(Busy, OpeningAFolderDoesNotLeadTheSearchAstray) {
  StartOnManyFolders();
  const POINT row = program_.Item(FrmFindIcon_Dir1).ListRowMiddle(0);
  BehindFind([&] { DoubleClick(row); });
  ExpectTheSearchWentOn();
}

TEST_F(Busy, ChoosingADriveDoesNotLeadTheSearchAstray) {
  StartOnManyFolders();
  const Control drives = program_.Item(FrmFindIcon_Drive1);
  // Both messages are posted: the program does not answer.
  BehindFind([&] {
    drives.Post(CB_SETCURSEL, 1);
    program_.Window().Post(WM_COMMAND, MAKEWPARAM(FrmFindIcon_Drive1, CBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(drives.Window()));
  });
  ExpectTheSearchWentOn();
}

}  // namespace
}  // namespace tarvik::end_to_end
