// What the main window shows while a search runs, and its state afterwards.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::SizeIs;

// Uses up all device contexts of the system.
class AllDeviceContexts {
 public:
  AllDeviceContexts() {
    while (const HDC dc = CreateCompatibleDC(nullptr)) contexts_.emplace_back(dc);
  }

 private:
  std::vector<MemoryDc> contexts_;
};

class FrmFindIconSearchTest : public support::FindIconFixture {
 protected:
  void OpenWatched() { OpenOver(watched, machine); }
  void ScrollGridBy(int request) const {
    SendMessageW(window->Window(), WM_VSCROLL, static_cast<WPARAM>(request),
                 reinterpret_cast<LPARAM>(Item(FrmFindIcon_Vsb)));
  }
  int ScrolledPixels() const {
    POINT corner{0, 0};
    MapWindowPoints(Grid(), Item(FrmFindIcon_PicFrame), &corner, 1);
    return -corner.y;
  }
  // Turns the wheel over the middle of the grid, in 120ths of a notch.
  void TurnWheel(int delta) {
    RECT bounds;
    GetWindowRect(Item(FrmFindIcon_PicFrame), &bounds);
    PostMessageW(Item(FrmFindIcon_CmdFind), WM_MOUSEWHEEL, static_cast<WPARAM>(delta) << 16U,
                 MAKELPARAM((bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2));
    application.DoEvents();
  }
  int RowCount() const { return ListView_GetItemCount(Item(FrmFindIcon_Lv)); }

  support::WatchedMachine watched{machine};
};

TEST_F(FrmFindIconSearchTest, DisablesWhatCouldDisturbASearchFromItsFirstFileToItsLast) {
  constexpr int controls[] = {FrmFindIcon_CmdFind, FrmFindIcon_CmdOk, FrmFindIcon_CmdClose, FrmFindIcon_mnuFile,
                              FrmFindIcon_mnuEdit};
  int looks = 0;
  OpenWatched();
  watched.onCount = watched.onExtract = [&] {
    ++looks;
    for (const int id : controls) EXPECT_FALSE(IsEnabled(id)) << id;
  };
  for (int search = 0; search < 2; ++search) {
    Find(3);
    EXPECT_EQ(looks, 5) << "counted, counted again and three icons";
    looks = 0;
    for (const int id : controls) EXPECT_TRUE(IsEnabled(id)) << id;
  }
}

// In the counting pass, the longer of the two, the pointer was once the arrow.
TEST_F(FrmFindIconSearchTest, ShowsTheHourglassOverBothPasses) {
  std::vector<HCURSOR> pointers;
  OpenWatched();
  SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  watched.onCount = [&] { pointers.push_back(GetCursor()); };
  Find(3);
  EXPECT_THAT(pointers, SizeIs(2));
  EXPECT_THAT(pointers, Each(LoadCursorW(nullptr, IDC_WAIT)));
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
  Find(0);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

// The rows once all appeared at the end.
TEST_F(FrmFindIconSearchTest, ShowsTheRowsAddedSoFarAtEachYield) {
  machine.subFolders["C:\\icons"] = {"C:\\icons\\a", "C:\\icons\\b"};
  for (const char* folder : {"C:\\icons\\a", "C:\\icons\\b"}) {
    machine.files[folder] = {"more.dll"};
    machine.icons[std::string(folder) + "\\more.dll"] = 4;
  }
  OpenWatched();
  Click(FrmFindIcon_mnuViewopt1);
  window->SetChecked(FrmFindIcon_chkSubDir, true);
  std::vector<int> rows;
  watched.onCount = [&] { rows.push_back(RowCount()); };
  Find(3);
  EXPECT_THAT(rows, ElementsAre(0, 0, 0, 0, 3, 7)) << "three files counted, then listed";
  EXPECT_EQ(RowCount(), 11);
}

// The button once took the focus back from the control that the user had chosen.
TEST_F(FrmFindIconSearchTest, LeavesTheFocusWhereTheUserMovedIt) {
  OpenWatched();
  SetFocus(Item(FrmFindIcon_CmdFind));
  Find(3);
  EXPECT_EQ(GetFocus(), Item(FrmFindIcon_CmdFind));
  watched.onCount = [&] { SetFocus(Item(FrmFindIcon_txtMax)); };
  Find(3);
  EXPECT_EQ(GetFocus(), Item(FrmFindIcon_txtMax));
}

TEST_F(FrmFindIconSearchTest, PassesTheFocusOnFromAScrollBarThatItDisables) {
  Open();
  Find(90);
  SetFocus(Item(FrmFindIcon_Vsb));
  Find(3);
  EXPECT_FALSE(IsEnabled(FrmFindIcon_Vsb));
  EXPECT_NE(GetFocus(), Item(FrmFindIcon_Vsb));
  EXPECT_TRUE(IsChild(window->Window(), GetFocus()));
  EXPECT_TRUE(IsWindowEnabled(GetFocus()));
}

// Windows counts the focus on an option button as a click on it. So a search once changed back to the view whose button
// the user had clicked before.
TEST_F(FrmFindIconSearchTest, MovesTheFocusToTheButtonOfTheViewThatIsChosenInTheMenu) {
  Open();
  for (const int list : {1, 0, 1}) {
    SetFocus(Item(FrmFindIcon_OptView0 + 1 - list));
    Click(FrmFindIcon_mnuViewopt0 + list);
    EXPECT_EQ(GetFocus(), Item(FrmFindIcon_OptView0 + list));
    Find(3);
    EXPECT_EQ(GetFocus(), Item(FrmFindIcon_OptView0 + list));
    EXPECT_EQ(IsWindowVisible(Item(FrmFindIcon_Lv)), list);
  }
}

TEST_F(FrmFindIconSearchTest, GivesTheFocusToTheButtonOfTheViewThatIsChosenMeanwhile) {
  OpenWatched();
  Click(FrmFindIcon_OptView0);
  SetFocus(Item(FrmFindIcon_OptView0));
  watched.onCount = [&] { Click(FrmFindIcon_mnuViewopt1); };
  Find(3);
  EXPECT_EQ(GetFocus(), Item(FrmFindIcon_OptView1));
  EXPECT_TRUE(IsWindowVisible(Item(FrmFindIcon_Lv)));
}

TEST_F(FrmFindIconSearchTest, LeavesTheFocusThatIsNotOnAButtonOfTheViews) {
  Open();
  SetFocus(Item(FrmFindIcon_txtMax));
  Click(FrmFindIcon_mnuViewopt1);
  EXPECT_EQ(GetFocus(), Item(FrmFindIcon_txtMax));
}

// The lists once showed the folder as it was when it was opened.
TEST_F(FrmFindIconSearchTest, ShowsInTheListsWhatItFound) {
  Open();
  ASSERT_EQ(RowsOf(FrmFindIcon_File1), std::vector<std::string>{"some.dll"});
  machine.files["C:\\icons"] = {"new.dll", "some.dll"};
  machine.subFolders["C:\\icons"] = {"C:\\icons\\new"};
  Find(3);
  EXPECT_EQ(RowsOf(FrmFindIcon_File1), (std::vector<std::string>{"new.dll", "some.dll"}));
  EXPECT_EQ(RowsOf(FrmFindIcon_Dir1).back(), "new");
}

// If its box is unticked in a sub-folder, the search leaves the list of files there, and the two lists show different
// folders from then on.
TEST_F(FrmFindIconSearchTest, BeginsAtTheFilesShownWithoutSubFoldersAndAtTheFolderShownWithThem) {
  machine.subFolders["C:\\icons"] = {"C:\\icons\\a"};
  machine.files["C:\\icons\\a"] = {"more.dll"};
  machine.icons["C:\\icons\\a\\more.dll"] = 4;
  OpenWatched();
  window->SetChecked(FrmFindIcon_chkSubDir, true);
  // Served where the search yields next: in the sub-folder.
  watched.onExtract = [&] {
    PostMessageW(Item(FrmFindIcon_chkSubDir), BM_CLICK, 0, 0);
    watched.onExtract = nullptr;
  };
  Find(3);
  ASSERT_FALSE(window->IsChecked(FrmFindIcon_chkSubDir));
  ASSERT_EQ(RowsOf(FrmFindIcon_File1), std::vector<std::string>{"more.dll"});
  ASSERT_EQ(RowsOf(FrmFindIcon_Dir1).back(), "a");

  Find(3);
  EXPECT_EQ(Caption(), "Brindle Tarvik - C:\\icons - 4 Icons");
  EXPECT_EQ(RowCount(), 4);
  machine.icons["C:\\icons\\a\\more.dll"] = 0;
  Find(3);
  ASSERT_THAT(boxes.Boxes(), SizeIs(1));
  EXPECT_EQ(boxes.Boxes()[0].text, "C:\\icons\\a ... contains no icons.");
  window->SetChecked(FrmFindIcon_chkSubDir, true);
  Find(3);
  EXPECT_EQ(Caption(), "Brindle Tarvik - C:\\icons - 3 Icons");
  EXPECT_EQ(RowCount(), 3);
}

// Two folders deep the list of folders shows the one between.
TEST_F(FrmFindIconSearchTest, IsGivenUpWhenTheSessionEndsAndKeepsItsFirstFolder) {
  machine.subFolders["C:\\icons"] = {"C:\\icons\\a"};
  machine.subFolders["C:\\icons\\a"] = {"C:\\icons\\a\\b"};
  for (const char* folder : {"C:\\icons\\a", "C:\\icons\\a\\b"}) {
    machine.files[folder] = {"more.dll"};
    machine.icons[std::string(folder) + "\\more.dll"] = 1;
  }
  OpenWatched();
  window->SetChecked(FrmFindIcon_chkSubDir, true);
  int extracted = 0;
  watched.onExtract = [&] {
    EXPECT_EQ(SendMessageW(window->Window(), WM_QUERYENDSESSION, 0, 0), TRUE);
    if (++extracted == 2) PostMessageW(window->Window(), WM_ENDSESSION, TRUE, 0);
  };
  int errors = 0;  // a message would end by itself with the session
  application.onRuntimeError = [&](Form& /*form*/, const RuntimeError& /*error*/) { ++errors; };
  Find(1);
  MSG quit;
  EXPECT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_FALSE(window->IsLoaded());
  EXPECT_EQ(extracted, 2);
  EXPECT_EQ(errors, 0);
  EXPECT_EQ(ini.values["FindIcon/Folder"], "C:\\icons");
}

TEST_F(FrmFindIconSearchTest, ClearsTheFormerListIfCountingEndsWithAnError) {
  OpenWatched();
  Find(3);
  ASSERT_EQ(RowCount(), 3);
  int errors = 0;
  application.onRuntimeError = [&](Form& /*form*/, const RuntimeError& /*error*/) { ++errors; };
  watched.onCount = [] { throw std::bad_alloc(); };
  Find(3);
  EXPECT_EQ(errors, 1);
  EXPECT_EQ(RowCount(), 0);
}

// The size was once remembered although there was no memory for the bitmap, and the next search believed that the grid
// already had it.
TEST_F(FrmFindIconSearchTest, SizesTheGridAgainAfterItCouldNot) {
  OpenWatched();
  Find(20);
  std::optional<AllDeviceContexts> hoard;
  watched.onCount = [&] { hoard.emplace(); };
  application.onRuntimeError = [&](Form& /*form*/, const RuntimeError& /*error*/) { hoard.reset(); };
  Find(90);
  EXPECT_EQ(RowCount(), 0) << "there was memory";
  EXPECT_FALSE(hoard);
  watched.onCount = nullptr;
  Find(90);
  EXPECT_EQ(RowCount(), 90);
  EXPECT_TRUE(IsEnabled(FrmFindIcon_Vsb));
  ScrollGridBy(SB_BOTTOM);
  EXPECT_EQ(ScrolledPixels(), 38);
  EXPECT_EQ(GridPixel(3, 3 + 5 * 38), support::SmallMachine::ColorOf(75));
}

TEST_F(FrmFindIconSearchTest, ScrollsAsManyRowsForANotchAsTheSystemSays) {
  UINT former = 0;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &former, 0);
  Open();
  Find(300);
  for (const auto& [lines, pixels] :
       {std::pair{1U, 38}, {3U, 114}, {UINT{WHEEL_PAGESCROLL}, viewportHeight}, {0U, 0}}) {
    SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, lines, nullptr, 0);
    ScrollGridBy(SB_TOP);
    TurnWheel(-WHEEL_DELTA);
    EXPECT_EQ(ScrolledPixels(), pixels) << lines;
  }
  SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, former, nullptr, 0);
}

// The texts of title and status bar while a search of one folder with two files runs.
struct TextsOfASearch {
  std::string language;
  std::vector<std::string> titles;  // as each file is counted, in both passes
  std::vector<std::string> status;  // as the folder is read, each file counted and listed, and File1 read at the end
  friend void PrintTo(const TextsOfASearch& texts, std::ostream* out) { *out << texts.language; }
};

class SearchProgress : public FrmFindIconSearchTest, public ::testing::WithParamInterface<TextsOfASearch> {};

TEST_P(SearchProgress, IsToldInTheTitleAndTheStatusBar) {
  std::vector<std::string> titles;
  std::vector<std::string> status;
  machine.files["C:\\icons"] = {"more.dll", "some.dll"};
  machine.icons["C:\\icons\\more.dll"] = 2;
  OpenOver(watched, machine, GetParam().language);
  // Each folder and file takes long enough that the text about the next one is shown at once.
  constexpr DWORD longerThanATextStays = 60;  // milliseconds
  const std::string statusBefore = Status();
  const auto look = [&] {
    if (const std::string now = Status(); now != statusBefore) status.push_back(now);
    Sleep(longerThanATextStays);
  };
  machine.onFiles = look;
  watched.onCount = [&] {
    titles.push_back(Caption());
    look();
  };
  Find(3);
  machine.onFiles = nullptr;
  EXPECT_THAT(titles, ElementsAreArray(GetParam().titles));
  EXPECT_THAT(status, ElementsAreArray(GetParam().status));
}

INSTANTIATE_TEST_SUITE_P(
    Languages, SearchProgress,
    ::testing::Values(TextsOfASearch{"ENG",
                                     {"Brindle Tarvik", "Brindle Tarvik - C:\\icons - 2 Icons",
                                      "Brindle Tarvik - C:\\icons - 5 Icons", "Brindle Tarvik - C:\\icons - 5 Icons"},
                                     {"Wait..., Searching C:\\icons", "Adding 1th icon to list",
                                      "Adding 3th icon to list",
                                      "5 Icons Added. Double click an icon for enhanced view."}},
                      TextsOfASearch{"CHS",
                                     {"布林德图标搜索", "Brindle Tarvik - C:\\icons - 2 个图标",
                                      "Brindle Tarvik - C:\\icons - 5 个图标", "Brindle Tarvik - C:\\icons - 5 个图标"},
                                     {"请稍候..., 正在查找中 C:\\icons", "正添加No.1到列表中", "正添加No.3到列表中",
                                      "5个图标被加入列表.双击图标可以浏览."}},
                      TextsOfASearch{"CHT",
                                     {"布林德圖示搜尋", "Brindle Tarvik - C:\\icons - 2 個圖示",
                                      "Brindle Tarvik - C:\\icons - 5 個圖示", "Brindle Tarvik - C:\\icons - 5 個圖示"},
                                     {"请稍候..., 正在查找中 C:\\icons", "正添加No.1到列表中", "正添加No.3到列表中",
                                      "5個圖示被加入列表.雙擊圖示可以流覽."}}),
    [](const auto& instance) { return instance.param.language; });

}  // namespace
}  // namespace tarvik
