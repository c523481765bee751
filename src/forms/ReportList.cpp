#include "forms/ReportList.h"

#include <windowsx.h>

#include <exception>
#include <utility>

#include "platform/Display.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

FontHandle BoldFontOf(HWND window) {
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
  font.lfWeight = FW_BOLD;
  return FontHandle(CreateFontIndirectW(&font));
}

// After these messages another row can be under the pointer.
bool Scrolls(UINT message) {
  return message == WM_VSCROLL || message == WM_HSCROLL || message == WM_MOUSEWHEEL || message == WM_KEYDOWN;
}

}  // namespace

void ReportList::Attach(HWND listView) {
  window_ = listView;
  columns_ = 0;
  growing_ = -1;
  extraWidth_ = 0;
  anchor_ = -1;
  bold_ = BoldFontOf(window_);
  ListView_SetExtendedListViewStyle(window_, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  SetWindowSubclass(window_, Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
  tip_.Attach(window_);
}

LRESULT CALLBACK ReportList::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                       DWORD_PTR data) {
  const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
  auto& list = *reinterpret_cast<ReportList*>(data);
  if (message == WM_MOUSEMOVE) list.SayWhatIsCut({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  if (Scrolls(message)) list.tip_.Say({});
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, Procedure, 0);
  if (message != WM_GETDLGCODE || lParam == 0) return answer;
  const MSG& key = *reinterpret_cast<const MSG*>(lParam);
  return key.message == WM_KEYDOWN && key.wParam == VK_RETURN ? answer | DLGC_WANTMESSAGE : answer;
}

// Nothing may be thrown through the system; if memory runs out, there is no tip.
void ReportList::SayWhatIsCut(POINT pointer) noexcept {
  try {
    tip_.Say(tip_.Wrap(CutTextAt(pointer)));
  } catch (const std::exception&) {
    return;
  }
}

std::string ReportList::CutTextAt(POINT pointer) const {
  LVHITTESTINFO hit{};
  hit.pt = pointer;
  if (ListView_SubItemHitTest(window_, &hit) < 0 || hit.iItem < 0) return {};
  RECT cell{};
  ListView_GetSubItemRect(window_, hit.iItem, hit.iSubItem, LVIR_LABEL, &cell);
  RECT inside{};
  GetClientRect(window_, &inside);
  RECT seen{};
  IntersectRect(&seen, &cell, &inside);
  const std::string text = cellText(hit.iItem, hit.iSubItem);
  const int margins = 6 * GetSystemMetrics(SM_CXEDGE);  // the control's padding on both sides of a text
  return TextWidth(hit.iItem, text) + margins > seen.right - seen.left ? text : std::string();
}

int ReportList::TextWidth(int row, const std::string& text) const {
  const WindowDc dc(window_);
  auto* const plain = reinterpret_cast<HGDIOBJ>(SendMessageW(window_, WM_GETFONT, 0, 0));
  const SelectedObject font(dc.get(), lookOf(row).bold ? bold_.get() : plain);
  const std::wstring wide = ToWide(text);
  SIZE size{};
  GetTextExtentPoint32W(dc.get(), wide.c_str(), static_cast<int>(wide.size()), &size);
  return size.cx;
}

void ReportList::Clear(std::span<const Column> columns) {
  tip_.Say({});
  SetRowCount(0);
  for (; columns_ > 0; --columns_) ListView_DeleteColumn(window_, columns_ - 1);
  growing_ = -1;
  const DisplayScale scale = ScaleOfDisplay();
  for (const Column& column : columns) {
    std::wstring title = ToWide(column.title);
    LVCOLUMNW definition{};
    definition.mask = LVCF_TEXT | LVCF_WIDTH;
    definition.cx = scale.ToDisplay(column.width);
    if (column.grows) {
      growing_ = columns_;
      growingWidth_ = std::exchange(definition.cx, definition.cx + extraWidth_);
    }
    definition.pszText = title.data();
    SendMessageW(window_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(columns_++), reinterpret_cast<LPARAM>(&definition));
  }
}

void ReportList::SetExtraWidth(int width) {
  const int former = std::exchange(extraWidth_, width);
  if (growing_ < 0 || former == width) return;
  if (ListView_GetColumnWidth(window_, growing_) != growingWidth_ + former) {
    growing_ = -1;  // the user has changed it
  } else {
    ListView_SetColumnWidth(window_, growing_, growingWidth_ + width);
  }
}

void ReportList::SetRowCount(int rows) {
  ListView_SetItemCountEx(window_, rows, LVSICF_NOSCROLL);
}

void ReportList::GrowTo(int rows) {
  if (rows == ListView_GetItemCount(window_)) return;
  ListView_SetItemCountEx(window_, rows, LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
}

void ReportList::Refresh() {
  InvalidateRect(window_, nullptr, FALSE);
}

void ReportList::SetSelection(const std::function<bool(int row)>& isSelected) {
  settingSelection_ = true;
  const int rows = ListView_GetItemCount(window_);
  // Asking for the next selected row takes one message for each of these, not one for each row. Under Wine every
  // message to a subclassed control costs several server calls.
  int shown = ListView_GetNextItem(window_, -1, LVNI_SELECTED);
  for (int row = 0; row < rows; ++row) {
    const bool wasSelected = row == shown;
    if (wasSelected) shown = ListView_GetNextItem(window_, row, LVNI_SELECTED);
    const bool selected = isSelected(row);
    if (selected == wasSelected) continue;
    ListView_SetItemState(window_, row, selected ? static_cast<UINT>(LVIS_SELECTED) : 0U, LVIS_SELECTED);
  }
  settingSelection_ = false;
  Refresh();
}

int ReportList::FocusedRow() const {
  return ListView_GetNextItem(window_, -1, LVNI_FOCUSED);
}

void ReportList::SetFocusedRow(int row) {
  settingSelection_ = true;
  ListView_SetItemState(window_, row, LVIS_FOCUSED, LVIS_FOCUSED);
  ListView_SetSelectionMark(window_, row);
  anchor_ = row;
  settingSelection_ = false;
  ListView_EnsureVisible(window_, row, FALSE);
}

int ReportList::RowAt(POINT point) const {
  LVHITTESTINFO hit{};
  hit.pt = point;
  ScreenToClient(window_, &hit.pt);
  return ListView_HitTest(window_, &hit);
}

POINT ReportList::MenuCorner(int row) const {
  ListView_EnsureVisible(window_, row, FALSE);
  RECT bounds{};
  ListView_GetItemRect(window_, row, &bounds, LVIR_LABEL);
  POINT corner{bounds.left, bounds.bottom};
  ClientToScreen(window_, &corner);
  return corner;
}

LRESULT ReportList::Notify(NMHDR& header) {
  if (header.code == LVN_GETDISPINFOW) FillCell(reinterpret_cast<NMLVDISPINFOW&>(header));
  if (header.code == NM_CUSTOMDRAW) return Draw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
  if (!settingSelection_) Watch(header);
  return 0;
}

void ReportList::Watch(const NMHDR& header) {
  switch (header.code) {
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
      if (((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0) Note();
      break;
    }
    case LVN_ODSTATECHANGED:
      Note();
      break;
    case NM_CLICK:
    case NM_RCLICK:
      // A plain click on the only selected row sends no LVN_ITEMCHANGED, and Wine's control does not report a range of
      // one row, so the click itself is noted. With Ctrl alone the control always sends one; a row must not be toggled
      // twice.
      if (GetKeyState(VK_CONTROL) >= 0 || GetKeyState(VK_SHIFT) < 0) Note();
      choice_.asked = header.code == NM_RCLICK && ListView_GetSelectedCount(window_) > 1;
      break;
    default:
      break;
  }
}

// One choice can send many notifications; it is reported once, with the keys of the first.
void ReportList::Note() {
  if (choicePending_) return;
  choicePending_ = true;
  choice_.shift = GetKeyState(VK_SHIFT) < 0;
  choice_.ctrl = GetKeyState(VK_CONTROL) < 0;
  choice_.asked = false;
  PostMessageW(GetParent(window_), choiceMessage, 0, 0);
}

void ReportList::TellChoice() {
  if (!choicePending_) return;
  choicePending_ = false;
  const bool nothingSelected = ListView_GetSelectedCount(window_) == 0;
  choice_.row = nothingSelected && !choice_.ctrl ? -1 : ListView_GetNextItem(window_, -1, LVNI_FOCUSED);
  // With Ctrl and Shift together Wine's control can move its own mark to the row that was clicked.
  if (!choice_.shift) anchor_ = ListView_GetSelectionMark(window_);
  choice_.anchor = anchor_;
  choose(choice_);
}

void ReportList::FillCell(NMLVDISPINFOW& info) {
  if ((info.item.mask & LVIF_TEXT) == 0) return;
  cell_ = ToWide(cellText(info.item.iItem, info.item.iSubItem));
  info.item.pszText = cell_.data();
}

LRESULT ReportList::Draw(NMLVCUSTOMDRAW& draw) {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const Look look = lookOf(static_cast<int>(draw.nmcd.dwItemSpec));
  if (!look.bold) return CDRF_DODEFAULT;
  // A bold row marks the selection; the control's own highlight would hide its colour.
  draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
  draw.clrText = look.color;
  SelectObject(draw.nmcd.hdc, bold_.get());
  return CDRF_NEWFONT;
}

}  // namespace tarvik
