#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "forms/PictureTip.h"
#include "platform/Handles.h"

namespace tarvik {

// A virtual report list: it stores nothing and requests each cell's text when it draws it. Rows are counted from 0.
// Enter on a row does not press the window's default button but sends NM_RETURN. A cell too narrow for its text shows
// it in a tool tip when the pointer rests on it, a long one in several lines.
class ReportList {
 public:
  struct Column {
    std::string_view title;  // UTF-8
    int width;               // pixels at 96 dpi
    bool grows = false;      // wider by the extra width of SetExtraWidth; at most one column is
  };

  // The style of a row.
  struct Look {
    bool bold = false;
    COLORREF color = 0;
  };

  // The text of a cell, UTF-8, and the style of its row.
  std::function<std::string(int row, int column)> cellText;
  std::function<Look(int row)> lookOf;

  // The user's choice: a row and the held keys.
  struct Choice {
    int row = -1;     // -1 for a point below the last row
    int anchor = -1;  // the start of a range with Shift
    bool shift = false;
    bool ctrl = false;
    bool asked = false;  // a right click on one of several selected rows, which stay selected
  };
  // Runs after the user chose; decides what is selected and sets it by SetSelection.
  std::function<void(const Choice& choice)> choose;

  void Attach(HWND listView);
  HWND Window() const { return window_; }

  // Removes all rows and columns, then creates these columns.
  void Clear(std::span<const Column> columns);
  // The list is wider than at first by so many display pixels, which the growing column takes, now and after Clear. A
  // column whose width the user changed keeps it.
  void SetExtraWidth(int width);
  // Sets the number of rows and redraws them.
  void SetRowCount(int rows);
  // The same if rows are only appended: existing rows are not redrawn.
  void GrowTo(int rows);
  // Redraws the visible rows.
  void Refresh();

  // Selects exactly the rows for which `isSelected` returns true.
  void SetSelection(const std::function<bool(int row)>& isSelected);

  // The row with the keyboard focus, -1 for none; after SetFocusedRow it is in view, and ranges with Shift start there.
  int FocusedRow() const;
  void SetFocusedRow(int row);
  // The row at a point of the screen, -1 for none.
  int RowAt(POINT point) const;
  // The screen position at which a menu for that row opens. The row is scrolled into view.
  POINT MenuCorner(int row) const;

  // Handles the control's notifications: returns texts and styles, and notes choices. Returns the notification's
  // result.
  LRESULT Notify(NMHDR& header);
  // Runs choose for a choice that Notify noted. The form calls it on choiceMessage, which is posted once for each
  // choice, so that the control has finished handling it.
  static constexpr UINT choiceMessage = WM_APP + 2;
  void TellChoice();

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);

  void SayWhatIsCut(POINT pointer) noexcept;
  std::string CutTextAt(POINT pointer) const;
  int TextWidth(int row, const std::string& text) const;

  LRESULT Draw(NMLVCUSTOMDRAW& draw);
  void Watch(const NMHDR& header);
  void Note();
  void FillCell(NMLVDISPINFOW& info);

  HWND window_ = nullptr;
  int columns_ = 0;
  int growing_ = -1;      // the column that grows, -1 for none
  int growingWidth_ = 0;  // of that column without the extra width, in display pixels
  int extraWidth_ = 0;
  FontHandle bold_;
  int anchor_ = -1;  // the row from which Shift extends the selection, -1 for none
  bool settingSelection_ = false;
  bool choicePending_ = false;
  Choice choice_;
  PictureTip tip_;
  std::wstring cell_;  // the text last requested; the control reads it after Notify returns
};

}  // namespace tarvik
