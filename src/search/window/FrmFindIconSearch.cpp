// The Find button, and the SearchWindow side of the main window.

#include <windows.h>

#include <string>

#include "base/Finally.h"
#include "forms/FocusKept.h"
#include "forms/MessageBox.h"
#include "forms/MousePointer.h"
#include "resource.h"
#include "search/window/FrmFindIcon.h"
#include "search/window/IconListRows.h"

namespace tarvik {
namespace {

// Menu items that need an entry to act on.
constexpr int entryItems[] = {
    FrmFindIcon_mnuSaveAs,   FrmFindIcon_MnuSaveAsBitmap, FrmFindIcon_MnuSaveAsCursor, FrmFindIcon_mnuSaveSel,
    FrmFindIcon_mnuSaveAll,  FrmFindIcon_mnuSaveSel2,     FrmFindIcon_mnuSaveAll2,     FrmFindIcon_mnuSaveSel3,
    FrmFindIcon_mnuSaveAll3, FrmFindIcon_mnuCopy,         FrmFindIcon_mnuRem,
};

int IdOf(SearchControl control) {
  switch (control) {
    case SearchControl::CmdFind:
      return FrmFindIcon_CmdFind;
    case SearchControl::CmdOk:
      return FrmFindIcon_CmdOk;
    case SearchControl::CmdClose:
      return FrmFindIcon_CmdClose;
    case SearchControl::mnuFile:
      return FrmFindIcon_mnuFile;
    case SearchControl::mnuEdit:
      return FrmFindIcon_mnuEdit;
  }
  return 0;
}

}  // namespace

void FrmFindIcon::CmdFind_Click() {
  if (state_.IsSearching) return;
  // The walk moves both lists through every folder; they show the folder again when it ends.
  const ShownFolders::Held held = folders_.HoldForWalk();
  // The button is disabled during the search, and a disabled control that has the focus would swallow every key.
  const FocusKept focus(Window());
  // The last texts are shown at the end, also if an error ends the search.
  const Finally lastTexts([this] { ShowLastTexts(); });
  const Finally inTurn = dependencies_.icons.InTurn();
  driver_.CmdFind_Click();
}

void FrmFindIcon::CloseEnhancedView() {
  if (view_) view_->Unload();
}

void FrmFindIcon::Enable(SearchControl control, bool enabled) {
  EnableItem(IdOf(control), enabled);
}

std::string FrmFindIcon::txtMax() const {
  return ItemText(FrmFindIcon_txtMax);
}

void FrmFindIcon::SetCaption(const std::string& text) {
  caption_.Set(text);
  if (!state_.IsSearching) caption_.Flush();
}

void FrmFindIcon::SetStatusText(const std::string& text) {
  status_.Set(text);
  if (!state_.IsSearching) status_.Flush();
}

void FrmFindIcon::ShowLastTexts() {
  caption_.Flush();
  status_.Flush();
}

void FrmFindIcon::SetInfoText(const std::string& text) {
  SetItemText(FrmFindIcon_lblInfo, text);
}

void FrmFindIcon::ShowInformation(const std::string& text) {
  dependencies_.icons.LetGo();
  ShowLastTexts();
  tarvik::ShowMessage(Window(), text, productTitle, MessageSign::Information);
}

void FrmFindIcon::ClearListView() {
  gridTip_.Say({});
  std::vector<ReportList::Column> columns;
  columns.reserve(iconListColumns.size());
  for (const IconListColumn& column : iconListColumns) columns.push_back({column.header, column.width, column.grows});
  lv_.Clear(columns);
  UpdateSaveMenus();
}

void FrmFindIcon::ListChanged() {
  gridTip_.Say({});
  lv_.SetRowCount(list_.Count());
  ShowSelectionInList();
  const auto item = CurrentItem();
  grid_.TellCurrentItem(item && item->selected);
  UpdateSaveMenus();
}

void FrmFindIcon::DoEvents() {
  dependencies_.icons.LetGo();
  // Adding rows to a hidden list would cost a search of many folders more than the search itself.
  if ((GetWindowLongW(lv_.Window(), GWL_STYLE) & WS_VISIBLE) != 0) lv_.GrowTo(list_.Count());
  caption_.ShowIfDue();
  status_.ShowIfDue();
  TheApplication().DoEvents();
  if (!IsLoaded()) throw GivenUp();
}

Finally FrmFindIcon::ShowHourglass() {
  return tarvik::ShowHourglass();
}

void FrmFindIcon::UpdateSaveMenus() {
  for (const int item : entryItems) EnableItem(item, list_.Count() > 0);
}

}  // namespace tarvik
