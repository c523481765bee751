// What the main window shows while a search runs, and how the search leaves it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;

// The machine, with something that happens each time a file's icons are counted, once in each pass, and each time an
// icon is taken.
class WatchedMachine final : public IconSource {
 public:
  explicit WatchedMachine(testing::SmallMachine& machine) : machine_(machine) {}

  int CountIcons(const std::string& path) override {
    if (onCount) onCount();
    return machine_.CountIcons(path);
  }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    if (onExtract) onExtract();
    return machine_.Extract(path, index);
  }

  std::function<void()> onCount;
  std::function<void()> onExtract;

 private:
  testing::SmallMachine& machine_;
};

// All device contexts that the system still has to give.
class AllDeviceContexts {
 public:
  AllDeviceContexts() {
    while (const HDC dc = CreateCompatibleDC(nullptr)) contexts_.emplace_back(dc);
  }

 private:
  std::vector<MemoryDc> contexts_;
};

class FrmFindIconSearchTest : public testing::FindIconFixture {
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
  // A turn of the wheel over the middle of the grid, in 120ths of a notch.
  void TurnWheel(int delta) {
    RECT place;
    GetWindowRect(Item(FrmFindIcon_PicFrame), &place);
    PostMessageW(Item(FrmFindIcon_CmdFind), WM_MOUSEWHEEL, static_cast<WPARAM>(delta) << 16U,
                 MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2));
    application.DoEvents();
  }
  int RowCount() const { return ListView_GetItemCount(Item(FrmFindIcon_Lv)); }
  std::vector<std::string> Rows(int id) const {
    std::vector<std::string> rows;
    const auto count = static_cast<int>(SendMessageW(Item(id), LB_GETCOUNT, 0, 0));
    for (int row = 0; row < count; ++row) {
      std::wstring text(260, L'\0');
      SendMessageW(Item(id), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
      rows.push_back(ToUtf8(text.c_str()));
    }
    return rows;
  }

  WatchedMachine watched{machine};
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

// The counting pass, the longer of the two, showed the arrow.
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

// They appeared all at the end.
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

// The button took the keyboard back from wherever the user had put it.
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

// They showed the folder as it was when it was opened.
TEST_F(FrmFindIconSearchTest, ShowsInTheListsWhatItFound) {
  Open();
  ASSERT_EQ(Rows(FrmFindIcon_File1), std::vector<std::string>{"some.dll"});
  machine.files["C:\\icons"] = {"new.dll", "some.dll"};
  machine.subFolders["C:\\icons"] = {"C:\\icons\\new"};
  Find(3);
  EXPECT_EQ(Rows(FrmFindIcon_File1), (std::vector<std::string>{"new.dll", "some.dll"}));
  EXPECT_EQ(Rows(FrmFindIcon_Dir1).back(), "new");
}

// The size was remembered although there was no memory for it, and the next search took the grid for sized.
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
  EXPECT_EQ(GridPixel(3, 3 + 5 * 38), testing::SmallMachine::ColorOf(75));
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

}  // namespace
}  // namespace tarvik
