#include "forms/ReportList.h"

#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr COLORREF red = RGB(255, 0, 0);

FontHandle BoldFontOf(HWND window) {
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
  font.lfWeight = FW_BOLD;
  return FontHandle(CreateFontIndirectW(&font));
}

}  // namespace

void ReportList::Attach(HWND listView) {
  window_ = listView;
  columns_ = 0;
  bold_ = BoldFontOf(window_);
  ListView_SetExtendedListViewStyle(window_, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
}

void ReportList::Clear(std::span<const Column> columns) {
  SetRowCount(0);
  for (; columns_ > 0; --columns_) ListView_DeleteColumn(window_, columns_ - 1);
  for (const Column& column : columns) {
    std::wstring title = ToWide(column.title);
    LVCOLUMNW definition{};
    definition.mask = LVCF_TEXT | LVCF_WIDTH;
    definition.cx = column.width;
    definition.pszText = title.data();
    SendMessageW(window_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(columns_++), reinterpret_cast<LPARAM>(&definition));
  }
}

void ReportList::SetRowCount(int rows) {
  ListView_SetItemCountEx(window_, rows, LVSICF_NOSCROLL);
}

void ReportList::Refresh() {
  InvalidateRect(window_, nullptr, FALSE);
}

void ReportList::SetSelected(int row, bool selected) {
  ListView_SetItemState(window_, row, selected ? static_cast<UINT>(LVIS_SELECTED) : 0U, LVIS_SELECTED);
}

bool ReportList::IsSelected(int row) const {
  return ListView_GetItemState(window_, row, LVIS_SELECTED) != 0;
}

void ReportList::SetFocused(int row) {
  ListView_SetItemState(window_, row, row < 0 ? 0U : static_cast<UINT>(LVIS_FOCUSED), LVIS_FOCUSED);
  if (row >= 0) ListView_EnsureVisible(window_, row, FALSE);
}

int ReportList::Focused() const {
  return ListView_GetNextItem(window_, -1, LVNI_FOCUSED);
}

LRESULT ReportList::Notify(NMHDR& header) {
  if (header.code == LVN_GETDISPINFOW) FillCell(reinterpret_cast<NMLVDISPINFOW&>(header));
  if (header.code == NM_CUSTOMDRAW) return Draw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
  return 0;
}

void ReportList::FillCell(NMLVDISPINFOW& info) {
  if ((info.item.mask & LVIF_TEXT) == 0) return;
  cell_ = ToWide(CellText(info.item.iItem, info.item.iSubItem));
  info.item.pszText = cell_.data();
}

LRESULT ReportList::Draw(NMLVCUSTOMDRAW& draw) {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  if (!IsMarked(static_cast<int>(draw.nmcd.dwItemSpec))) return CDRF_DODEFAULT;
  // Bold red is the visible selection; the control's own highlight would hide the colour.
  draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
  draw.clrText = red;
  SelectObject(draw.nmcd.hdc, bold_.get());
  return CDRF_NEWFONT;
}

}  // namespace tarvik
