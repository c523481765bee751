#include "forms/FolderLists.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "base/Finally.h"
#include "base/FolderPath.h"
#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

LRESULT Send(HWND window, UINT message, std::size_t wParam = 0, LPARAM lParam = 0) {
  return SendMessageW(window, message, wParam, lParam);
}

// The scroll position of a list: its first visible row and the chosen one, each identified by its text.
class ListPosition {
 public:
  ListPosition(HWND list, const std::vector<std::string>& rows)
      : list_(list), top_(Row(rows, LB_GETTOPINDEX)), chosen_(Row(rows, LB_GETCURSEL)) {}

  // Restores the position in the list, filled with these rows, as far as the rows still exist.
  void Restore(const std::vector<std::string>& rows) const {
    Find(rows, chosen_, LB_SETCURSEL);
    Find(rows, top_, LB_SETTOPINDEX);
  }

 private:
  std::string Row(const std::vector<std::string>& rows, UINT message) const {
    const auto row = static_cast<std::size_t>(Send(list_, message));
    return row < rows.size() ? rows[row] : std::string();
  }
  void Find(const std::vector<std::string>& rows, const std::string& row, UINT message) const {
    const auto found = std::ranges::find(rows, row);
    if (found != rows.end()) Send(list_, message, static_cast<std::size_t>(found - rows.begin()));
  }

  HWND list_;
  std::string top_;
  std::string chosen_;
};

// Fills a long list without painting each row; painting resumes when the returned object is destroyed.
Finally StopRedraw(HWND window) {
  Send(window, WM_SETREDRAW, FALSE);
  return Finally([window] {
    Send(window, WM_SETREDRAW, TRUE);
    InvalidateRect(window, nullptr, TRUE);
  });
}

// Sets the horizontal scroll range of a list box to its longest row. Rows are measured in the list's font as they are
// added.
class RowWidths {
 public:
  explicit RowWidths(HWND list)
      : list_(list), dc_(list), font_(dc_.get(), reinterpret_cast<HGDIOBJ>(Send(list, WM_GETFONT))) {}

  // Adds a text that begins `left` pixels from the left.
  void Add(const std::string& text, int left) {
    const std::wstring wide = ToWide(text);
    SIZE size{};
    GetTextExtentPoint32W(dc_.get(), wide.c_str(), static_cast<int>(wide.size()), &size);
    widest_ = std::max<int>(widest_, left + size.cx);
  }

  // Also scrolls back to the left end.
  void Apply() const {
    const int margin = GetSystemMetrics(SM_CXEDGE) * 2;  // so that the last letter does not touch the edge
    Send(list_, WM_HSCROLL, SB_LEFT);
    const int extent = widest_ + margin;
    Send(list_, LB_SETHORIZONTALEXTENT, static_cast<std::size_t>(extent));
  }

 private:
  HWND list_;
  WindowDc dc_;
  SelectedObject font_;
  int widest_ = 0;
};

void AddRow(HWND window, UINT message, const std::string& text) {
  Send(window, message, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

// The row height of an owner-drawn list: that of its font's letters and a quarter more. By default the list would use
// the system font instead of its own.
int RowHeight(HWND list) {
  const WindowDc dc(list);
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(list, WM_GETFONT, 0, 0)));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc.get(), &metrics);
  return metrics.tmHeight * 5 / 4;
}

// Draws a folder's pictogram as high as the row: the tab, the body, and for an open folder the raised flap. Its lengths
// are those of a row of 16 pixels, the height at 96 dpi; in a higher row they grow with it.
void DrawFolder(HDC dc, RECT bounds, bool open) {
  const auto length = [height = bounds.bottom - bounds.top](int pixels) { return MulDiv(pixels, height, 16); };
  const BrushHandle body(CreateSolidBrush(RGB(255, 214, 102)));
  const BrushHandle flap(CreateSolidBrush(RGB(255, 238, 180)));
  const PenHandle outline(CreatePen(PS_SOLID, 1, RGB(150, 110, 20)));
  const SelectedObject pen(dc, outline.get());
  const SelectedObject brush(dc, body.get());
  const int left = bounds.left + length(1);
  const int right = bounds.left + length(13);
  const int top = bounds.top + length(2);
  const int bottom = bounds.bottom - length(2);
  const POINT outlinePoints[] = {{left, bottom},
                                 {left, top},
                                 {left + length(4), top},
                                 {left + length(5), top + length(1)},
                                 {right - length(2), top + length(1)},
                                 {right - length(2), bottom}};
  Polygon(dc, outlinePoints, static_cast<int>(std::size(outlinePoints)));
  if (!open) return;
  const SelectedObject light(dc, flap.get());
  const POINT flapPoints[] = {
      {left, bottom}, {left + length(3), top + length(4)}, {right, top + length(4)}, {right - length(2), bottom}};
  Polygon(dc, flapPoints, static_cast<int>(std::size(flapPoints)));
}

}  // namespace

void DriveListBox::Attach(HWND comboBox, std::function<std::vector<Drive>()> list) {
  window_ = comboBox;
  list_ = std::move(list);
  Refresh();
}

std::string DriveListBox::Root() const {
  const LRESULT chosen = Send(window_, CB_GETCURSEL);
  return chosen == CB_ERR ? std::string() : drives_[static_cast<std::size_t>(chosen)].root;
}

void DriveListBox::ChooseDriveOf(const std::string& path) {
  const std::vector<std::string> chain = FolderChain(path);
  const auto drive = std::ranges::find(drives_, chain.empty() ? std::string() : chain.front(), &Drive::root);
  const auto row = drive == drives_.end() ? -1 : drive - drives_.begin();
  Send(window_, CB_SETCURSEL, static_cast<std::size_t>(row));
}

void DriveListBox::Refresh() {
  const std::string chosen = Root();
  drives_ = list_();
  Send(window_, CB_RESETCONTENT);
  for (const Drive& drive : drives_) AddRow(window_, CB_ADDSTRING, drive.text);
  if (!chosen.empty()) ChooseDriveOf(chosen);
}

void DirListBox::Attach(HWND listBox, ListFolders list, std::function<void()> change) {
  window_ = listBox;
  list_ = std::move(list);
  change_ = std::move(change);
  SetWindowSubclass(window_, Procedure, 0, 0);
  Send(window_, LB_SETITEMHEIGHT, 0, RowHeight(window_));
}

void DirListBox::SetPath(const std::string& folder) {
  if (folder == path_) return;
  path_ = folder;
  if (!held_) Refresh();
  change_();
}

std::vector<std::string> DirListBox::Rows() const {
  std::vector<std::string> rows = FolderChain(path_);
  for (std::string& folder : list_(path_)) rows.push_back(std::move(folder));
  return rows;
}

void DirListBox::Show(std::vector<std::string> rows) {
  shown_ = std::move(rows);
  current_ = static_cast<int>(FolderChain(path_).size()) - 1;
  shownPath_ = path_;

  const Finally redraws = StopRedraw(window_);
  Send(window_, LB_RESETCONTENT);
  RowWidths widths(window_);
  const auto height = static_cast<int>(Send(window_, LB_GETITEMHEIGHT));
  for (int row = 0; const std::string& folder : shown_) {
    const std::string name = FolderName(folder);
    AddRow(window_, LB_ADDSTRING, name);
    widths.Add(name, TextLeft(row++, height));
  }
  widths.Apply();
  Send(window_, LB_SETCURSEL, static_cast<std::size_t>(current_));
  // The ancestors above and as many sub-folders as fit below.
  Send(window_, LB_SETTOPINDEX, static_cast<std::size_t>(std::max(0, current_ - 2)));
}

Finally DirListBox::Hold() {
  held_ = true;
  return Finally([this] {
    held_ = false;
    Reread();
  });
}

void DirListBox::Reread() {
  std::vector<std::string> rows = Rows();
  if (shownPath_ == path_ && shown_ == rows) return;
  const ListPosition position(window_, shown_);
  const bool isSame = shownPath_ == path_;
  Show(std::move(rows));
  if (isSame) position.Restore(shown_);
}

void DirListBox::OpenChosen() {
  const LRESULT chosen = Send(window_, LB_GETCURSEL);
  if (chosen == LB_ERR || static_cast<std::size_t>(chosen) >= shown_.size()) return;
  SetPath(std::string(shown_[static_cast<std::size_t>(chosen)]));
}

// The picture is a quarter wider than the row is high.
int DirListBox::TextLeft(int row, int rowHeight) const {
  return std::min(row, current_ + 1) * rowHeight / 2 + rowHeight * 5 / 4;
}

void DirListBox::Draw(const DRAWITEMSTRUCT& item) const {
  const bool chosen = (item.itemState & ODS_SELECTED) != 0;
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(chosen ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  const int row = static_cast<int>(item.itemID);
  if (row >= 0 && static_cast<std::size_t>(row) < shown_.size()) {
    const int height = item.rcItem.bottom - item.rcItem.top;
    RECT bounds = item.rcItem;
    RECT picture = bounds;
    bounds.left += TextLeft(row, height);
    picture.left = bounds.left - height * 5 / 4;
    DrawFolder(item.hDC, picture, row <= current_);
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(chosen ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    DrawTextW(item.hDC, ToWide(FolderName(shown_[static_cast<std::size_t>(row)])).c_str(), -1, &bounds,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
  }
  if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &item.rcItem);
}

LRESULT CALLBACK DirListBox::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                       DWORD_PTR /*data*/) {
  // Enter opens a folder instead of pressing the window's default button.
  const bool asksForEnter = message == WM_GETDLGCODE && lParam != 0 &&
                            reinterpret_cast<const MSG*>(lParam)->message == WM_KEYDOWN && wParam == VK_RETURN;
  if (asksForEnter) return DLGC_WANTMESSAGE;
  if (message == WM_KEYDOWN && wParam == VK_RETURN) {
    // Sent as a double click, so that the form's handler boundary applies.
    SendMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), LBN_DBLCLK),
                 reinterpret_cast<LPARAM>(window));
    return 0;
  }
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, Procedure, 0);
  return DefSubclassProc(window, message, wParam, lParam);
}

void FileListBox::Attach(HWND listBox, ListFiles list) {
  window_ = listBox;
  list_ = std::move(list);
}

void FileListBox::SetPath(const std::string& folder) {
  path_ = folder;
  Update();
}

void FileListBox::SetPattern(const std::string& pattern) {
  pattern_ = pattern;
  Update();
}

Finally FileListBox::Hold() {
  held_ = true;
  return Finally([this] {
    held_ = false;
    Reread();
  });
}

void FileListBox::Reread() {
  std::vector<std::string> names = Names();
  const bool isSame = shownPath_ == path_ && shownPattern_ == pattern_;
  if (isSame && shown_ == names) return;
  const ListPosition position(window_, shown_);
  Show(std::move(names));
  if (isSame) position.Restore(shown_);
}

void FileListBox::Update() {
  if (!held_ && (shownPath_ != path_ || shownPattern_ != pattern_)) Refresh();
}

void FileListBox::Show(std::vector<std::string> names) {
  shownPath_ = path_;
  shownPattern_ = pattern_;
  const Finally redraws = StopRedraw(window_);
  Send(window_, LB_RESETCONTENT);
  shown_ = std::move(names);
  RowWidths widths(window_);
  for (const std::string& name : shown_) {
    AddRow(window_, LB_ADDSTRING, name);
    widths.Add(name, 0);
  }
  widths.Apply();
}

}  // namespace tarvik
