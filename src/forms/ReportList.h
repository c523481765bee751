#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Handles.h"

namespace tarvik {

// A report list that holds nothing itself: it asks for each cell when it draws it. Rows are counted from 0.
class ReportList {
 public:
  struct Column {
    std::string_view title;  // UTF-8
    int width;               // pixels
  };

  // What a row shows, UTF-8, and whether it is marked: bold and red.
  std::function<std::string(int row, int column)> CellText;
  std::function<bool(int row)> IsMarked;

  void Attach(HWND listView);
  HWND Window() const { return window_; }

  // Removes rows and columns, then makes the columns.
  void Clear(std::span<const Column> columns);
  // Shows that many rows and draws them anew.
  void SetRowCount(int rows);
  // Draws what is visible anew.
  void Refresh();

  // The control's own selection, which follows the list's.
  void SetSelected(int row, bool selected);
  bool IsSelected(int row) const;
  // Gives a row the focus and scrolls it into sight; no row for -1.
  void SetFocused(int row);
  int Focused() const;

  // Answers the control's questions for texts and looks; the notification's result.
  LRESULT Notify(NMHDR& header);

 private:
  LRESULT Draw(NMLVCUSTOMDRAW& draw);
  void FillCell(NMLVDISPINFOW& info);

  HWND window_ = nullptr;
  int columns_ = 0;
  FontHandle bold_;
  std::wstring cell_;  // the text last asked for; the control reads it after Notify returns
};

}  // namespace tarvik
