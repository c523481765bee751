// The calls to the main window's controls that a search makes for each folder, and a click for each row.

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>

#include "base/NonCopyable.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

// Changes a scroll bar or moves a window.
bool IsChange(UINT message) {
  return message == SBM_SETSCROLLINFO || message == SBM_SETPOS || message == WM_WINDOWPOSCHANGING;
}

// Asks a list view, or changes it.
bool IsOfListView(UINT message) {
  return message >= LVM_FIRST && message < LVM_FIRST + 0x100;
}

// Counts such messages to a window.
class ChangeCounter : NonCopyable {
 public:
  using Counts = bool (*)(UINT message);

  explicit ChangeCounter(HWND window, Counts counts = IsChange) : window_(window), counts_(counts) {
    SetWindowSubclass(window_, Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
  }
  ~ChangeCounter() { RemoveWindowSubclass(window_, Procedure, 0); }

  int Count() const { return count_; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                    DWORD_PTR data) {
    auto& counter = *reinterpret_cast<ChangeCounter*>(data);
    if (counter.counts_(message)) ++counter.count_;
    return DefSubclassProc(window, message, wParam, lParam);
  }

  HWND window_;
  Counts counts_;
  int count_ = 0;
};

class FrmFindIconCostTest : public support::FindIconFixture {
 protected:
  // That many folders of one file each, below the one in which the search starts.
  void OpenOverFolders(int count) {
    for (int i = 0; i < count; ++i) {
      const std::string folder = "C:\\icons\\" + std::to_string(i);
      machine.subFolders["C:\\icons"].push_back(folder);
      machine.files[folder] = {"more.dll"};
      machine.icons[folder + "\\more.dll"] = 100;
    }
    Open();
    window->SetChecked(FrmFindIcon_chkSubDir, true);
  }
  void PostScroll(int request) const {
    PostMessageW(window->Window(), WM_VSCROLL, static_cast<WPARAM>(request),
                 reinterpret_cast<LPARAM>(Item(FrmFindIcon_Vsb)));
  }
  int GridTop() const {
    POINT corner{0, 0};
    MapWindowPoints(Grid(), Item(FrmFindIcon_PicFrame), &corner, 1);
    return corner.y;
  }
};

// A click once asked for the state of each row.
TEST_F(FrmFindIconCostTest, AClickInALongListAsksItForFewOfItsRows) {
  Open();
  Find(200);
  const ChangeCounter list(Item(FrmFindIcon_Lv), IsOfListView);
  ReleaseOnGrid(3 + 4 * 38, 10);
  EXPECT_TRUE(IsRowSelected(5));
  EXPECT_LT(list.Count(), 20);
}

// The scroll bar was once drawn again for each folder, which took longer than the folder's icons.
TEST_F(FrmFindIconCostTest, AFolderLeavesAGridAloneThatIsSizedAndAtItsTop) {
  OpenOverFolders(5);
  Find(30);
  const ChangeCounter bar(Item(FrmFindIcon_Vsb));
  const ChangeCounter picture(Grid());
  Find(30);
  EXPECT_EQ(bar.Count(), 0);
  EXPECT_EQ(picture.Count(), 0);
}

TEST_F(FrmFindIconCostTest, AFolderScrollsAGridToItsTopThatWasScrolledWhileTheSearchYielded) {
  OpenOverFolders(1);
  Find(30);
  const ChangeCounter picture(Grid());
  PostScroll(SB_BOTTOM);  // processed in the first of two folders
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(picture.Count(), 2) << "down and up";
  EXPECT_EQ(GridTop(), 0);
  EXPECT_EQ(GetScrollPos(Item(FrmFindIcon_Vsb), SB_CTL), 0);
}

}  // namespace
}  // namespace tarvik
