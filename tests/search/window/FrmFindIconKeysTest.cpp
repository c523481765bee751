// The context menu of the icon list's rows, and F1.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

class FrmFindIconKeysTest : public support::FindIconFixture {
 protected:
  // Each item of a menu and of its sub-menus: its id, text and state.
  using Items = std::vector<std::string>;
  static Items ItemsOf(HMENU menu) {
    Items items;
    for (int position = 0; position < GetMenuItemCount(menu); ++position) {
      std::array<wchar_t, 128> text{};
      MENUITEMINFOW item{};
      item.cbSize = sizeof item;
      item.fMask = MIIM_ID | MIIM_STRING | MIIM_STATE | MIIM_SUBMENU;
      item.dwTypeData = text.data();
      item.cch = static_cast<UINT>(text.size());
      GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item);
      items.push_back(Describe(static_cast<int>(item.wID), ToUtf8(text.data()), (item.fState & MFS_DISABLED) == 0));
      if (item.hSubMenu == nullptr) continue;
      for (std::string& below : ItemsOf(item.hSubMenu)) items.push_back(std::move(below));
    }
    return items;
  }
  static std::string Describe(int id, const std::string& text, bool enabled) {
    return std::to_string(id) + " " + text + (enabled ? "" : " (disabled)");
  }
  // The item as the menu bar shows it.
  std::string InBar(int id) const { return Describe(id, window->TheMenu().Text(id), window->TheMenu().IsEnabled(id)); }
  // Opens the menu of the focused row and closes it. Returns its items.
  Items RowMenu() {
    static Items seen;
    seen.clear();
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) {
      const HWND shown = FindWindowW(L"#32768", nullptr);
      if (shown == nullptr) return;
      constexpr UINT getMenu = 0x01E1;  // MN_GETHMENU
      seen = ItemsOf(reinterpret_cast<HMENU>(SendMessageW(shown, getMenu, 0, 0)));
      EndMenu();
    });
    SendMessageW(window->Window(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Item(FrmFindIcon_Lv)), -1);
    KillTimer(nullptr, timer);
    return seen;
  }
};

TEST_F(FrmFindIconKeysTest, OffersForARowWhatItsMenusOffer) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    Open(language);
    Find(3);
    Click(FrmFindIcon_OptView1);
    const std::string line = Describe(0, "", true);
    const Items expected{InBar(FrmFindIcon_mnuSaveAs),       InBar(FrmFindIcon_MnuSaveAsBitmap),
                         InBar(FrmFindIcon_MnuSaveAsCursor), line,
                         InBar(FrmFindIcon_mnuBatch),        InBar(FrmFindIcon_mnuSaveSel),
                         InBar(FrmFindIcon_mnuSaveAll),      InBar(FrmFindIcon_mnuBatch2),
                         InBar(FrmFindIcon_mnuSaveSel2),     InBar(FrmFindIcon_mnuSaveAll2),
                         InBar(FrmFindIcon_mnuBatch3),       InBar(FrmFindIcon_mnuSaveSel3),
                         InBar(FrmFindIcon_mnuSaveAll3),     line,
                         InBar(FrmFindIcon_mnuCopy),         InBar(FrmFindIcon_mnuRem)};
    EXPECT_EQ(RowMenu(), expected) << language;
    EXPECT_EQ(InBar(FrmFindIcon_mnuSaveAs).find("disabled"), std::string::npos);
    window.reset();
  }
}

TEST_F(FrmFindIconKeysTest, OffersNothingForAListWithoutRows) {
  Open();
  Click(FrmFindIcon_OptView1);
  EXPECT_EQ(RowMenu(), Items());
}

TEST_F(FrmFindIconKeysTest, OpensTheGuideByF1AndNotWhileItSaves) {
  Open();
  Find(3);
  HELPINFO help{};
  help.cbSize = sizeof help;
  const auto ask = [&] { SendMessageW(window->Window(), WM_HELP, 0, reinterpret_cast<LPARAM>(&help)); };
  ask();
  EXPECT_EQ(guideShown, 1);
  dialogs.onShowDir = ask;
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(guideShown, 1);
}

}  // namespace
}  // namespace tarvik
