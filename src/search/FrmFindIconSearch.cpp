// The main window as a search sees it.

#include <windows.h>

#include <string>

#include "forms/MessageBox.h"
#include "forms/MousePointer.h"
#include "platform/Handles.h"
#include "resource.h"
#include "search/FrmFindIcon.h"
#include "search/IconListRows.h"

namespace tarvik {
namespace {

// What needs an entry to act on.
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

void FrmFindIcon::CloseEnhancedView() {
  if (view_) view_->Unload();
}

void FrmFindIcon::Enable(SearchControl control, bool enabled) {
  EnableItem(IdOf(control), enabled);
}

bool FrmFindIcon::chkSubDir() const {
  return IsChecked(FrmFindIcon_chkSubDir);
}

std::string FrmFindIcon::txtMax() const {
  return ItemText(FrmFindIcon_txtMax);
}

int FrmFindIcon::udMainUpperEnd() const {
  return state_.Geometry.HighestLimit;
}

std::string FrmFindIcon::Dir1Path() const {
  return dir1_.Path();
}

void FrmFindIcon::SetDir1Path(const std::string& folder) {
  dir1_.SetPath(folder);
}

std::vector<std::string> FrmFindIcon::Dir1SubFolders() {
  return dir1_.SubFolders();
}

std::string FrmFindIcon::File1Path() const {
  return file1_.Path();
}

void FrmFindIcon::SetFile1Path(const std::string& folder) {
  file1_.SetPath(folder);
}

std::vector<std::string> FrmFindIcon::File1Names() {
  return file1_.Names();
}

void FrmFindIcon::SetCaption(const std::string& text) {
  caption_.Set(text);
  if (!state_.IsSearching) caption_.Flush();
}

void FrmFindIcon::SetStatusText(const std::string& text) {
  status_.Set(text);
  if (!state_.IsSearching) status_.Flush();
}

void FrmFindIcon::ShowProgress() {
  caption_.Flush();
  status_.Flush();
}

void FrmFindIcon::SetInfoText(const std::string& text) {
  SetItemText(FrmFindIcon_lblInfo, text);
}

void FrmFindIcon::ShowInformation(const std::string& text) {
  ShowProgress();
  tarvik::ShowMessage(Window(), text, productTitle, MessageSign::Information);
}

void FrmFindIcon::ClearListView() {
  std::vector<ReportList::Column> columns;
  columns.reserve(iconListColumns.size());
  for (const IconListColumn& column : iconListColumns) columns.push_back({column.Header, column.Width});
  lv_.Clear(columns);
  UpdateSaveMenus();
}

void FrmFindIcon::ListChanged() {
  // The rows of a search show together when it ends.
  if (state_.IsSearching) return;
  lv_.SetRowCount(list_.Count());
  ShowSelectionInList();
  UpdateSaveMenus();
}

void FrmFindIcon::ClearGrid() {
  grid_.Clear(white);
  picIcons_.Refresh();
}

void FrmFindIcon::SizeGrid(const GridExtent& extent) {
  // Asked once for each folder of a search, and nearly always for the same.
  if (shownExtent_ == extent && vsb_.SmallStep() == state_.Geometry.CellPitch) return;
  grid_.Resize(grid_.Width(), extent.height, white);
  SetWindowPos(picIcons_.Window(), nullptr, 0, 0, grid_.Width(), grid_.Height(),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  vsb_.SetRange({0, extent.scrollMaximum, state_.Geometry.CellPitch, viewportHeight}, viewportHeight);
  EnableItem(FrmFindIcon_Vsb, extent.scrolls);
  Vsb_Change();  // a smaller range may have moved the value
  shownExtent_ = extent;
}

void FrmFindIcon::ScrollGridToTop() {
  vsb_.SetValue(0);
  Vsb_Change();
}

DrawSurface& FrmFindIcon::Grid() {
  return grid_;
}

DrawSurface& FrmFindIcon::OwnSurface() {
  return ownSurface_;
}

void FrmFindIcon::DrawFrame(Point corner, Point farCorner, bool shown) {
  const Selected pen(grid_.Dc(), GetStockObject(shown ? BLACK_PEN : WHITE_PEN));
  const Selected brush(grid_.Dc(), GetStockObject(NULL_BRUSH));
  // The far corner belongs to the frame; GDI leaves its own last row and column out.
  Rectangle(grid_.Dc(), corner.x, corner.y, farCorner.x + 1, farCorner.y + 1);
  const RECT place{corner.x, corner.y, farCorner.x + 1, farCorner.y + 1};
  InvalidateRect(picIcons_.Window(), &place, FALSE);
}

void FrmFindIcon::KeepGridPicture() {
  picIcons_.Refresh();
}

void FrmFindIcon::DoEvents() {
  caption_.ShowIfDue();
  status_.ShowIfDue();
  TheApplication().DoEvents();
}

std::shared_ptr<void> FrmFindIcon::ShowHourglass() {
  return std::make_shared<Hourglass>();
}

void FrmFindIcon::UpdateSaveMenus() {
  for (const int item : entryItems) EnableItem(item, list_.Count() > 0);
}

}  // namespace tarvik
