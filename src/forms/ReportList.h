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

// A report list that holds nothing itself: it asks for each cell when it draws it. Rows are counted from 0. Enter on a
// row does not press the window's default button but sends NM_RETURN. A cell too narrow for its text shows it in a tool
// tip when the pointer rests on it.
class ReportList {
 public:
  struct Column {
    std::string_view title;  // UTF-8
    int width;               // pixels, which the display enlarges
  };

  // How a row is written.
  struct Look {
    bool bold = false;
    COLORREF color = 0;
  };

  // What a row shows, UTF-8, and how it is written.
  std::function<std::string(int row, int column)> cellText;
  std::function<Look(int row)> lookOf;

  // What the user chose: a row with its keys.
  struct Choice {
    int row = -1;     // -1 for a point below the last row
    int anchor = -1;  // where a range with Shift began
    bool shift = false;
    bool ctrl = false;
    bool asked = false;  // a right click on one of several selected rows, which stay selected
  };
  // Runs after the user chose; it decides what is selected and sets it by SetSelection.
  std::function<void(const Choice& choice)> choose;

  void Attach(HWND listView);
  HWND Window() const { return window_; }

  // Removes rows and columns, then makes the columns.
  void Clear(std::span<const Column> columns);
  // Shows that many rows and draws them anew.
  void SetRowCount(int rows);
  // The same for rows that are only added to: those already there are left alone.
  void GrowTo(int rows);
  // Draws what is visible anew.
  void Refresh();

  // Selects the rows that `isSelected` names, and no other.
  void SetSelection(const std::function<bool(int row)>& isSelected);

  // The row that the keys act on, -1 for none; SetFocusedRow has ranges with Shift begin there.
  int FocusedRow() const;
  void SetFocusedRow(int row);
  // The row at a point of the screen, -1 for none.
  int RowAt(POINT point) const;
  // Where a menu for that row opens, on the screen. The row is scrolled into sight.
  POINT MenuCorner(int row) const;

  // Answers the control's questions for texts and looks, and watches for choices; the notification's result.
  LRESULT Notify(NMHDR& header);
  // Runs choose for a choice that Notify saw. The form calls it on choiceMessage, which the control's notifications
  // lead to once for each choice, after the control is done with it.
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
  FontHandle bold_;
  bool settingSelection_ = false;
  bool choicePending_ = false;
  Choice choice_;
  PictureTip tip_;
  std::wstring cell_;  // the text last asked for; the control reads it after Notify returns
};

}  // namespace tarvik
