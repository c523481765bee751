// The main window's search options.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "forms/Controls.h"
#include "search/icons/FilePattern.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

class FrmFindIconOptionsTest : public support::FindIconFixture {
 protected:
  void TickFileType(std::size_t type, bool ticked = true) {
    const int box = searchedTypes.at(type).checkBox;
    CheckDlgButton(window->Window(), box, ticked ? BST_CHECKED : BST_UNCHECKED);
    Click(box);
  }
  void ScrollBy(int id, int request) {
    SendMessageW(window->Window(), WM_VSCROLL, static_cast<WPARAM>(request), reinterpret_cast<LPARAM>(Item(id)));
  }
};

TEST_F(FrmFindIconOptionsTest, RaisesTheLimitByTheUpArrow) {
  Open();
  ScrollBy(FrmFindIcon_udMain, SB_LINEUP);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "310");
  ScrollBy(FrmFindIcon_udMain, SB_PAGEDOWN);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "210");
}

TEST_F(FrmFindIconOptionsTest, GoesOnFromATypedLimit) {
  Open();
  SetText(FrmFindIcon_txtMax, "1000");
  ScrollBy(FrmFindIcon_udMain, SB_LINEUP);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "1010");
  SetText(FrmFindIcon_txtMax, "55");
  ScrollBy(FrmFindIcon_udMain, SB_LINEDOWN);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "45");
}

TEST_F(FrmFindIconOptionsTest, ComesBackIntoItsRangeFromATypedLimitBeyondIt) {
  Open();
  SetText(FrmFindIcon_txtMax, "30000");
  ScrollBy(FrmFindIcon_udMain, SB_LINEUP);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "2400");
  SetText(FrmFindIcon_txtMax, "99999999");
  ScrollBy(FrmFindIcon_udMain, SB_LINEUP);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "2400");
  SetText(FrmFindIcon_txtMax, "-7");
  ScrollBy(FrmFindIcon_udMain, SB_LINEDOWN);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "1");
}

TEST_F(FrmFindIconOptionsTest, LeavesATypedLimitAsItIsTyped) {
  Open();
  for (const std::string typed : {"", "1", "007", "many", "30000"}) {
    SetText(FrmFindIcon_txtMax, typed);
    EXPECT_EQ(Text(FrmFindIcon_txtMax), typed);
  }
  SetText(FrmFindIcon_txtMax, "500");
  SetText(FrmFindIcon_txtMax, "many");
  ScrollBy(FrmFindIcon_udMain, SB_LINEUP);
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "510") << "from the last number";
}

TEST_F(FrmFindIconOptionsTest, TellsItsControlsOfNewColorsAndThemes) {
  Open();
  for (const int id : {FrmFindIcon_Lv, FrmFindIcon_sbMain, FrmFindIcon_Dir1})
    EXPECT_EQ(support::ChangesToldTo(Item(id), window->Window()), support::allChanges) << id;
}

TEST_F(FrmFindIconOptionsTest, SaysInEachLanguageThatADriveIsNotReady) {
  struct Row {
    const char* language;
    const char* title;
    const char* text;
  };
  std::size_t shown = 0;
  for (const Row& row :
       {Row{"ENG", "Brindle Tarvik - Error", "Driver Not Ready!"}, Row{"CHS", "Brindle Tarvik - 错误", "路径无效!"},
        Row{"CHT", "Brindle Tarvik - 錯誤", "路徑無效!"}}) {
    Open(row.language);
    SendMessageW(Item(FrmFindIcon_Drive1), CB_SETCURSEL, 1, 0);
    SendMessageW(window->Window(), WM_COMMAND, MAKEWPARAM(FrmFindIcon_Drive1, CBN_SELCHANGE), 0);
    ASSERT_EQ(boxes.Boxes().size(), ++shown);
    EXPECT_EQ(boxes.Boxes().back().title, row.title);
    EXPECT_EQ(boxes.Boxes().back().text, row.text);
    EXPECT_EQ(boxes.Boxes().back().sign, LoadIconW(nullptr, IDI_INFORMATION));
    EXPECT_EQ(machine.patterns.back(), "*.ico");
  }
}

TEST_F(FrmFindIconOptionsTest, BuildsThePatternFromTheTickedTypes) {
  Open();
  TickFileType(0, false);
  EXPECT_EQ(machine.patterns.back(), "aaa.aaa");
  TickFileType(4);
  TickFileType(5);
  EXPECT_EQ(machine.patterns.back(), "*.dll;*.exe;");
}

// The text of a box is ".dll" and its part of the pattern "*.dll;".
TEST_F(FrmFindIconOptionsTest, HasABoxForEachTypeThatSaysWhatItAddsToThePattern) {
  Open();
  TickFileType(0, false);
  for (std::size_t type = 0; type < searchedTypes.size(); ++type) {
    TickFileType(type);
    EXPECT_EQ(machine.patterns.back(), searchedTypes.at(type).part);
    const std::string shown = Text(searchedTypes.at(type).checkBox);
    EXPECT_EQ(type == allFilesBox ? shown : "*" + shown + ";", searchedTypes.at(type).part);
    TickFileType(type, false);
  }
}

TEST_F(FrmFindIconOptionsTest, TicksTheOthersWithAllFiles) {
  Open();
  TickFileType(6);
  for (const SearchedType& type : searchedTypes) EXPECT_TRUE(window->IsChecked(type.checkBox)) << type.part;
  EXPECT_EQ(machine.patterns.back(), "*.*");
  TickFileType(3, false);
  EXPECT_TRUE(window->IsChecked(FrmFindIcon_ChkFileType3)) << "the box of all files is still ticked";
  TickFileType(6, false);
  EXPECT_EQ(machine.patterns.back(), "*.ico;*.ani;*.icl;*.ocx;*.dll;*.exe;");
}

}  // namespace
}  // namespace tarvik
