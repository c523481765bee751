#include "search/window/FrmFindIcon.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "search/window/FindIconFixture.h"
#include "search/window/FrmFindIconTexts.h"

namespace tarvik {
namespace {

using support::FindIconFixture;

class FrmFindIconTest : public FindIconFixture {
 protected:
  bool IsTicked(int id) const { return window->IsChecked(id); }
  void ChooseSize(int size) {
    SendMessageW(Item(FrmFindIcon_CboIconSize), CB_SETCURSEL, static_cast<WPARAM>(size), 0);
    SendMessageW(window->Window(), WM_COMMAND, MAKEWPARAM(FrmFindIcon_CboIconSize, CBN_SELCHANGE), 0);
  }
  void ScrollBy(int id, int request) {
    SendMessageW(window->Window(), WM_VSCROLL, static_cast<WPARAM>(request), reinterpret_cast<LPARAM>(Item(id)));
  }
};

TEST_F(FrmFindIconTest, OpensWithTheChoicesOfAFirstStart) {
  Open();
  EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdOk));
  EXPECT_EQ(Text(FrmFindIcon_txtMax), "300");
  EXPECT_EQ(Text(FrmFindIcon_CboIconSize), "32 x 32");
  EXPECT_TRUE(IsTicked(FrmFindIcon_ChkFileType0));
  EXPECT_FALSE(IsTicked(FrmFindIcon_ChkFileType0 + 4));
  EXPECT_EQ(machine.patterns.back(), "*.ico");
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
  EXPECT_EQ(Status(), "Click the Start button to start search");
  EXPECT_FALSE(IsEnabled(FrmFindIcon_Vsb));
  EXPECT_FALSE(IsEnabled(FrmFindIcon_mnuRem));
}

// The help menu's items were once disabled for good; no test noticed, because each sent the commands itself.
TEST_F(FrmFindIconTest, OffersEveryMenuItemThatNeedsNoIconsFromTheStart) {
  Open();
  for (const int item :
       {FrmFindIcon_mnuStart, FrmFindIcon_mnuExit, FrmFindIcon_mnuShowLabel, FrmFindIcon_mnuIL1, FrmFindIcon_mnuIL2,
        FrmFindIcon_mnuViewopt0, FrmFindIcon_mnuViewopt1, FrmFindIcon_MnuContent, FrmFindIcon_MnuAbout}) {
    EXPECT_TRUE(IsEnabled(item)) << item;
  }
}

TEST_F(FrmFindIconTest, ShowsThatMemoryIsOutAndStaysUsable) {
  class Exhausted final : public IconSource {
   public:
    int CountIcons(const std::string& /*path*/) override { throw std::bad_alloc(); }
    std::unique_ptr<ExtractedIcon> Extract(const std::string& /*path*/, int /*index*/) override { return nullptr; }
  } exhausted;
  for (const auto& [language, text] : {std::pair{"ENG", "Out of memory"}, {"CHS", "内存不足"}, {"CHT", "記憶體不足"}}) {
    OpenOver(exhausted, machine, language);
    Find(3);
    ASSERT_FALSE(boxes.Boxes().empty());
    EXPECT_EQ(boxes.Boxes().back().text, text);
    EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
  }
}

TEST_F(FrmFindIconTest, ShowsAnyExceptionAndStaysUsable) {
  class Failing final : public IconSource {
   public:
    int CountIcons(const std::string& /*path*/) override {
      if (failure) failure();
      return 1;
    }
    std::unique_ptr<ExtractedIcon> Extract(const std::string& /*path*/, int /*index*/) override { return nullptr; }
    std::function<void()> failure;
  } icons;
  const auto tooLong = [] { throw std::length_error("too long"); };
  const auto broken = [] { throw std::runtime_error("no thread"); };
  const std::tuple<const char*, std::function<void()>, const char*> rows[] = {
      {"ENG", tooLong, "Out of memory"},
      {"ENG", broken, "Unexpected error:\r\n\r\nno thread"},
      {"CHS", broken, "意外错误：\r\n\r\nno thread"},
      {"CHT", broken, "未預期的錯誤：\r\n\r\nno thread"}};
  for (const auto& [language, failure, text] : rows) {
    icons.failure = failure;
    OpenOver(icons, machine, language);
    Find(1);
    ASSERT_FALSE(boxes.Boxes().empty());
    EXPECT_EQ(boxes.Boxes().back().text, text);
    EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind) && IsEnabled(FrmFindIcon_CmdClose));
    icons.failure = nullptr;
    Find(1);
    EXPECT_EQ(ListView_GetItemCount(Item(FrmFindIcon_Lv)), 1) << "the next search works";
  }
}

TEST_F(FrmFindIconTest, ShowsItsTextsInEachLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    Open(language);
    for (const FormText& row : findIconTexts) {
      const std::string expected(*Pick(row.text, language));
      const std::string shown = row.id == formCaption     ? Caption()
                                : Item(row.id) != nullptr ? Text(row.id)
                                                          : window->TheMenu().Text(row.id);
      EXPECT_EQ(shown, expected) << language << ' ' << row.id;
    }
  }
}

TEST_F(FrmFindIconTest, KeepsItsDesignTextsForAnUnknownCode) {
  Open("XYZ");
  EXPECT_EQ(Caption(), "Find Icons");
  EXPECT_EQ(Text(FrmFindIcon_OptView0), "Show Icon");
  EXPECT_EQ(window->TheMenu().Text(FrmFindIcon_mnuBatch), "&Batch Save As Icon");
}

// A menu's items from the top without separators; each level of sub-menus is indented by one more blank.
void AddItems(HMENU menu, const std::string& indent, std::vector<std::string>& lines) {
  for (int position = 0; position < GetMenuItemCount(menu); ++position) {
    std::array<wchar_t, 128> text{};
    GetMenuStringW(menu, static_cast<UINT>(position), text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
    if (text[0] == L'\0') continue;
    lines.push_back(indent + ToUtf8(text.data()));
    if (const HMENU below = GetSubMenu(menu, position)) AddItems(below, indent + ' ', lines);
  }
}

TEST_F(FrmFindIconTest, HasItsMenusInOrder) {
  Open("XYZ");
  std::vector<std::string> lines;
  AddItems(GetMenu(window->Window()), "", lines);
  EXPECT_EQ(lines, (std::vector<std::string>{"&File",
                                             " &Find Icon",
                                             " &Save As",
                                             " Save As &Image",
                                             " Save As Curso&r",
                                             " &Batch Save As Icon",
                                             "  &Save Selected Icons",
                                             "  &Save All Icons In List",
                                             " &Batch Save As Image",
                                             "  &Save Selected Icons",
                                             "  &Save All Icons In List",
                                             " &Batch Save As Cursor",
                                             "  &Save Selected Icons",
                                             "  &Save All Icons In List",
                                             " &Close",
                                             "&Edit",
                                             " &Copy",
                                             " &Invert Selection",
                                             "&Options",
                                             " &Display Labels",
                                             " &Icon Labels",
                                             "  &Continuous Naming",
                                             "  &With Respect To File",
                                             "&View",
                                             " Show Icon",
                                             " Show List",
                                             "&Help",
                                             " &Contents",
                                             " &About..."}));
}

TEST_F(FrmFindIconTest, SetsTheLimitThatGoesWithASize) {
  struct Row {
    int size;
    const char* limit;
    const char* highest;
  };
  Open();
  for (const Row& row : {Row{0, "400", "4000"}, {1, "300", "2400"}, {2, "150", "1800"}, {3, "100", "1200"}}) {
    ChooseSize(row.size);
    EXPECT_EQ(Text(FrmFindIcon_txtMax), row.limit);
    ScrollBy(FrmFindIcon_udMain, SB_TOP);
    EXPECT_EQ(Text(FrmFindIcon_txtMax), row.highest);
    ScrollBy(FrmFindIcon_udMain, SB_BOTTOM);
    EXPECT_EQ(Text(FrmFindIcon_txtMax), "1");
  }
}

TEST_F(FrmFindIconTest, MagnifiesEachSizeToTheSameSquare) {
  struct Row {
    int size;
    int magnification;
  };
  Open();
  Find(2);
  for (const Row& row : {Row{0, 24}, {1, 12}, {2, 8}, {3, 6}}) {
    ChooseSize(row.size);
    EXPECT_EQ(state.Magnification, row.magnification);
    EXPECT_TRUE(window->Captured().RenderEntry(2));
    const Surface& magnified = window->Captured().PicMain();
    EXPECT_EQ(magnified.Width(), 385);
    EXPECT_EQ(magnified.Height(), 385);
    EXPECT_EQ(magnified.Pixel(383, 383), support::SmallMachine::ColorOf(1));
    EXPECT_EQ(magnified.Pixel(384, 384), white);
  }
}

TEST_F(FrmFindIconTest, AppliesTheSizeChosenAfterASearchToClicksAndCapturesAtOnce) {
  Open();
  Find(20);
  ChooseSize(3);
  EXPECT_EQ(GridPixel(3, 41), support::SmallMachine::ColorOf(15)) << "the grid stays as it was drawn";
  ReleaseOnGrid(3 + 2 * 70, 10);
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 3 Selected.");
  EXPECT_TRUE(window->Captured().RenderEntry(3));
  ASSERT_EQ(window->Captured().Surfaces().Composed().Width(), 64);
  EXPECT_EQ(window->Captured().Surfaces().Composed().Pixel(63, 63), support::SmallMachine::ColorOf(2));
}

TEST_F(FrmFindIconTest, ListsWhatASearchFound) {
  Open();
  Find(20);
  EXPECT_EQ(ListView_GetItemCount(Item(FrmFindIcon_Lv)), 20);
  EXPECT_EQ(Caption(), "Brindle Tarvik - C:\\icons - 20 Icons");
  EXPECT_EQ(Status(), "20 Icons Added. Double click an icon for enhanced view.");
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdOk));
  EXPECT_TRUE(IsEnabled(FrmFindIcon_mnuRem));
  EXPECT_TRUE(IsRowSelected(1));
  EXPECT_FALSE(IsRowSelected(2));
}

TEST_F(FrmFindIconTest, DrawsTheSixteenthIconBelowTheFirst) {
  Open();
  Find(20);
  EXPECT_EQ(GridPixel(3, 41), support::SmallMachine::ColorOf(15));
  EXPECT_EQ(GridPixel(2, 41), white);
  EXPECT_EQ(GridPixel(34, 72), support::SmallMachine::ColorOf(15));
  EXPECT_EQ(GridPixel(35, 73), white);
}

TEST_F(FrmFindIconTest, FramesTheFirstIconAfterASearch) {
  Open();
  Find(3);
  EXPECT_EQ(GridPixel(1, 1), black);
  EXPECT_EQ(GridPixel(37, 37), black);
  EXPECT_EQ(GridPixel(38, 37), white);
  EXPECT_EQ(GridPixel(2, 2), white);
}

// As when the system gets another theme.
TEST_F(FrmFindIconTest, PaintsItsGridAgainIfTheWholeWindowIsInvalid) {
  Open();
  Find(3);
  ASSERT_EQ(GridPixel(1, 1), black);
  RedrawWindow(window->Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
  EXPECT_EQ(GridPixel(1, 1), black);
  EXPECT_EQ(GridPixel(2, 2), white);
  EXPECT_EQ(GridPixel(3, 3), support::SmallMachine::ColorOf(0));
}

TEST_F(FrmFindIconTest, ScrollsFromTheSixthRowOn) {
  Open();
  Find(75);
  EXPECT_FALSE(IsEnabled(FrmFindIcon_Vsb));
  RECT grid;
  GetClientRect(Grid(), &grid);
  EXPECT_EQ(grid.bottom, 190);
  Find(90);
  EXPECT_TRUE(IsEnabled(FrmFindIcon_Vsb));
  GetClientRect(Grid(), &grid);
  EXPECT_EQ(grid.bottom, 228);
  ScrollBy(FrmFindIcon_Vsb, SB_BOTTOM);
  POINT corner{0, 0};
  MapWindowPoints(Grid(), Item(FrmFindIcon_PicFrame), &corner, 1);
  EXPECT_EQ(corner.y, -38);
}

TEST_F(FrmFindIconTest, RefusesASearchWithoutIcons) {
  Open();
  Find(0);
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "Brindle Tarvik");
  EXPECT_EQ(boxes.Boxes()[0].text, "C:\\icons ... contains no icons.");
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdClose));
  EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdOk));
  EXPECT_FALSE(IsEnabled(FrmFindIcon_mnuFile));
  EXPECT_FALSE(IsEnabled(FrmFindIcon_mnuEdit));
}

TEST_F(FrmFindIconTest, ShowsARunTimeErrorAndStaysUsable) {
  struct Row {
    const char* language;
    const char* limit;
    const char* title;
    const char* text;
  };
  constexpr Row rows[] = {
      {"ENG", "many", "Brindle Tarvik - Error", "Type mismatch"},
      {"ENG", "99999", "Brindle Tarvik - Error", "Overflow"},
      {"CHS", "many", "Brindle Tarvik - 错误", "类型不匹配"},
      {"CHS", "99999", "Brindle Tarvik - 错误", "溢出"},
      {"CHT", "many", "Brindle Tarvik - 錯誤", "型態不符合"},
      {"CHT", "99999", "Brindle Tarvik - 錯誤", "溢位"},
  };
  for (const Row& row : rows) {
    Open(row.language);
    SetText(FrmFindIcon_txtMax, row.limit);
    Find(3);
    ASSERT_FALSE(boxes.Boxes().empty());
    EXPECT_EQ(boxes.Boxes().back().title, row.title);
    EXPECT_EQ(boxes.Boxes().back().text, row.text);
    EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
    SetText(FrmFindIcon_txtMax, "300");
    Find(3);
    EXPECT_EQ(ListView_GetItemCount(Item(FrmFindIcon_Lv)), 3) << "the next search works";
  }
}

TEST_F(FrmFindIconTest, SaysAtWhichFileThereAreTooManyIcons) {
  const std::pair<const char*, const char*> rows[] = {{"ENG", "Overflow"}, {"CHS", "溢出"}, {"CHT", "溢位"}};
  for (const auto& [language, text] : rows) {
    Open(language);
    Find(32768);
    ASSERT_FALSE(boxes.Boxes().empty());
    EXPECT_EQ(boxes.Boxes().back().text, std::string(text) + "\r\nC:\\icons\\some.dll");
  }
}

TEST_F(FrmFindIconTest, ShowsTheListInPlaceOfTheGrid) {
  Open();
  Click(FrmFindIcon_mnuViewopt1);
  EXPECT_TRUE(IsWindowVisible(Item(FrmFindIcon_Lv)));
  EXPECT_FALSE(IsWindowVisible(Item(FrmFindIcon_PicFrame)));
  EXPECT_TRUE(IsTicked(FrmFindIcon_OptView1));
  EXPECT_TRUE(window->TheMenu().IsChecked(FrmFindIcon_mnuViewopt1));
  EXPECT_FALSE(window->TheMenu().IsChecked(FrmFindIcon_mnuViewopt0));
  Click(FrmFindIcon_OptView0);
  EXPECT_FALSE(IsWindowVisible(Item(FrmFindIcon_Lv)));
  EXPECT_TRUE(IsWindowVisible(Item(FrmFindIcon_PicFrame)));
  EXPECT_TRUE(window->TheMenu().IsChecked(FrmFindIcon_mnuViewopt0));
}

TEST_F(FrmFindIconTest, KeepsFolderAndSubFolderChoice) {
  machine.subFolders["C:\\icons"] = {"C:\\icons\\small"};
  Open();
  window->SetChecked(FrmFindIcon_chkSubDir, true);
  SendMessageW(Item(FrmFindIcon_Dir1), LB_SETCURSEL, 2, 0);
  SendMessageW(window->Window(), WM_COMMAND, MAKEWPARAM(FrmFindIcon_Dir1, LBN_DBLCLK), 0);
  Click(FrmFindIcon_CmdClose);
  EXPECT_FALSE(window->IsLoaded());
  EXPECT_EQ(ini.values["FindIcon/Folder"], "C:\\icons\\small");
  EXPECT_EQ(ini.values["FindIcon/Subdir"], "True");
}

TEST_F(FrmFindIconTest, OpensTheProgramsFolderWhereTheSavedOneIsGone) {
  ini.values["FindIcon/Folder"] = "D:\\gone";
  Open();
  Click(FrmFindIcon_CmdClose);
  EXPECT_EQ(ini.values["FindIcon/Folder"], "C:\\program");
}

TEST_F(FrmFindIconTest, ReadsTheSubFolderChoiceInAnyCaseButOnlyTrue) {
  for (const auto& [value, ticked] : std::map<std::string, bool>{{"TRUE", true}, {"true", true}, {"yes", false}}) {
    ini.values["FindIcon/Subdir"] = value;
    Open();
    EXPECT_EQ(IsTicked(FrmFindIcon_chkSubDir), ticked) << value;
  }
}

// This once ended the program.
TEST_F(FrmFindIconTest, HandsNothingOverWithoutAnEntry) {
  Open();
  Click(FrmFindIcon_CmdOk);
  EXPECT_TRUE(window->IsLoaded());
  EXPECT_TRUE(state.ChoiceCancelled);
}

TEST_F(FrmFindIconTest, HandsTheCurrentEntryOver) {
  Open();
  Find(5);
  ReleaseOnGrid(3 + 2 * 38, 10);
  Click(FrmFindIcon_CmdOk);
  EXPECT_EQ(state.ChosenIconPath, "C:\\icons\\some.dll");
  EXPECT_EQ(state.ChosenIconIndex, 2);
  EXPECT_FALSE(state.ChoiceCancelled);
  EXPECT_FALSE(window->IsLoaded());
}

}  // namespace
}  // namespace tarvik
