#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace tarvik::end_to_end {

// A window or control of another process. Texts are UTF-8. Every query is a message that the other process answers; it
// waits as long as that process is busy, and throws std::runtime_error if there is no answer at all.
class Control {
 public:
  Control() = default;
  explicit Control(HWND window) : window_(window) {}

  HWND Window() const { return window_; }
  explicit operator bool() const { return window_ != nullptr; }

  std::string Text() const;
  void SetText(const std::string& text) const;
  bool IsEnabled() const { return IsWindowEnabled(window_) != 0; }
  bool IsVisible() const { return IsWindowVisible(window_) != 0; }
  // Its rectangle on the screen, in pixels: the whole window, and the client area.
  RECT Bounds() const;
  RECT Inside() const;

  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  void Post(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  // The descendant control with that id; Child throws std::runtime_error if there is none.
  std::optional<Control> FindChild(int id) const;
  Control Child(int id) const;

  // Buttons and boxes. A press is posted: its handler may take long or open a window.
  void Press() const { Post(BM_CLICK); }
  bool IsChecked() const { return Send(BM_GETCHECK) == BST_CHECKED; }

  // Drop-down lists. The parent is notified of a choice as of a user's choice.
  std::vector<std::string> ComboItems() const { return Items(CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT); }
  int ComboChoice() const { return static_cast<int>(Send(CB_GETCURSEL)); }
  void ChooseComboItem(int index) const;
  // The same, without waiting for the parent's handler: it may open a window.
  void PostComboChoice(int index) const;

  // List boxes.
  std::vector<std::string> ListItems() const { return Items(LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT); }
  int ListChoice() const { return static_cast<int>(Send(LB_GETCURSEL)); }
  // The middle of a row on the screen; the row is scrolled into view.
  POINT ListRowMiddle(int index) const;

  // Scroll bars that are controls.
  SCROLLINFO Scroll() const;

 private:
  std::vector<std::string> Items(UINT count, UINT length, UINT text) const;

  HWND window_ = nullptr;
};

// A report list of another process. Rows and columns are counted from 0.
class ReportView {
 public:
  explicit ReportView(Control control) : control_(control) {}

  int RowCount() const;
  std::string Cell(int row, int column) const;
  // All cells of a row, and all of a column.
  std::vector<std::string> Row(int row) const;
  std::vector<std::string> CellsOf(int column) const;
  bool IsSelected(int row) const;
  // The row's rectangle on the screen.
  RECT RowBounds(int row) const;

  struct Column {
    std::string title;
    int width;
    friend bool operator==(const Column&, const Column&) = default;
  };
  std::vector<Column> Columns() const;

 private:
  // The cells of one column in those rows.
  std::vector<std::string> Cells(int firstRow, int endRow, int column) const;

  Control control_;
};

// A toolbar of another process. Buttons are identified by their command ids.
class ToolbarView {
 public:
  explicit ToolbarView(Control control) : control_(control) {}

  // The button's rectangle on the screen.
  RECT ButtonBounds(int button) const;
  bool IsEnabled(int button) const;
  // The button's text, which is its tooltip.
  std::string ButtonText(int button) const;

 private:
  Control control_;
};

// The text of a status bar's panel, counted from 0.
std::string StatusText(Control statusBar, int panel);

}  // namespace tarvik::end_to_end
