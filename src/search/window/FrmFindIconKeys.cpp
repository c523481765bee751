// The main window's keys, apart from those of its menus and controls, and the list view's context menu.

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>

#include "forms/PictureBox.h"
#include "resource.h"
#include "search/window/FrmFindIcon.h"
#include "search/window/ShortcutKeys.h"

namespace tarvik {
namespace {

// The items of the File and Edit menus that act on chosen rows; 0 is a separator.
constexpr auto rowItems = std::to_array<int>({
    FrmFindIcon_mnuSaveAs,
    FrmFindIcon_MnuSaveAsBitmap,
    FrmFindIcon_MnuSaveAsCursor,
    0,
    FrmFindIcon_mnuBatch,
    FrmFindIcon_mnuBatch2,
    FrmFindIcon_mnuBatch3,
    0,
    FrmFindIcon_mnuCopy,
    FrmFindIcon_mnuRem,
});

bool IsInput(UINT message) {
  return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
         (message >= WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
}

bool IsTextBox(HWND control) {
  return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
}

}  // namespace

bool FrmFindIcon::PreviewMessage(const MSG& message) {
  if (isSaving_ && IsInput(message.message)) return true;
  if (message.message == WM_KEYDOWN && Form_KeyDown(message)) return true;
  // The wheel scrolls the control under the pointer, wherever the focus is.
  if (!grid_.OnWheel(message)) return false;
  gridTip_.Say({});
  return true;
}

bool FrmFindIcon::Form_KeyDown(const MSG& message) {
  const ShortcutKey* key = FindShortcut(static_cast<int>(message.wParam), HeldKeys());
  if (key == nullptr || (key->leftToText && IsTextBox(message.hwnd))) return false;
  if (key->menu != 0 && (!TheMenu().IsEnabled(key->menu) || !TheMenu().IsEnabled(key->command))) return true;
  // Sent to the window, so that a run-time error meets the boundary that every handler has.
  SendMessageW(Window(), WM_COMMAND, static_cast<WPARAM>(key->command), 0);
  return true;
}

// Not while files are written: showing the guide would serve messages.
void FrmFindIcon::OnHelp() {
  if (Form_QueryEndSession()) MnuContent_Click();
}

void FrmFindIcon::Reread() {
  if (!state_.IsSearching) folders_.Reread();  // the walk owns the folder lists
}

void FrmFindIcon::SelectAll() {
  if (IsWindowVisible(lv_.Window()) == FALSE) return;
  lv_.TellChoice();
  selection_.ChooseAll();
}

// Enter acts as a double click: a row that has the focus but is not chosen is chosen first.
void FrmFindIcon::OpenFocusedRow() {
  lv_.TellChoice();
  ChooseIfNotCurrent(lv_.FocusedRow());
  PicIcons_DblClick();
}

void FrmFindIcon::ChooseIfNotCurrent(int row) {
  if (!list_.Has(row + 1) || row == state_.CurrentIndex) return;
  selection_.ChooseRow(row + 1, 0);
}

bool FrmFindIcon::OnContextMenu(HWND control, std::optional<POINT> point) {
  if (control != lv_.Window()) return false;
  lv_.TellChoice();
  const int row = point ? lv_.RowAt(*point) : lv_.FocusedRow();
  const bool offered = TheMenu().IsEnabled(FrmFindIcon_mnuFile) && TheMenu().IsEnabled(FrmFindIcon_mnuEdit);
  if (isSaving_ || !offered || !list_.Has(row + 1)) return true;
  ChooseIfNotCurrent(row);
  const int command = TheMenu().Choose(rowItems, point.value_or(lv_.MenuCorner(row)));
  if (command != 0 && IsLoaded()) SendMessageW(Window(), WM_COMMAND, static_cast<WPARAM>(command), 0);
  return true;
}

}  // namespace tarvik
