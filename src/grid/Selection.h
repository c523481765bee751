#pragma once

#include <optional>
#include <string>

#include "grid/GridView.h"
#include "grid/HitTest.h"
#include "grid/SearchState.h"
#include "search/icons/IconList.h"

namespace tarvik {

// The main window as the selection sees it, apart from its grid. The members named as in SearchWindow do the same as
// there, so that one function of the window serves both.
class SelectionView {
 public:
  virtual ~SelectionView() = default;

  // Whether labels number an icon by its index in its own file (mnuIL2) or by its entry (mnuIL1).
  virtual bool NumbersByFile() const = 0;

  virtual void SetInfoText(const std::string& text) = 0;
  virtual void SetStatusText(const std::string& text) = 0;
  virtual void ListChanged() = 0;
};

// The held keys that count as Ctrl (see PictureEvent): Ctrl alone. With another key beside it a click is a plain one.
inline constexpr int ctrlAlone = 2;

// The number that the label shows for an entry: its own, or with `byFile` its icon's index in its file,
// counted from 1.
int LabelNumber(const IconListEntry& entry, int number, bool byFile);

// Chooses the current entry and the selection, and keeps rows, frames and texts in step.
//
// Does nothing while a search runs, nor for an entry that the list does not hold, as after a refused search.
class Selection {
 public:
  // All five outlive the selection. `language` is read when a text is chosen.
  Selection(SelectionView& view, GridView& grid, IconList& list, SearchState& state, const std::string& language);

  // A button released on the grid at (x, y), in pixels of PicIcons. Every button acts alike. A plain click
  // leaves the clicked entry selected alone; with Ctrl it adds the entry or takes it out.
  void PicIcons_MouseUp(int heldKeys, double x, double y);

  // The number of the entry that a click there chooses; nothing if it chooses none.
  std::optional<int> EntryAt(double x, double y) const;

  // A row chosen in the list view, by its number: the rule of a click on the entry's cell.
  void ChooseRow(int number, int heldKeys);

  // A range of rows in the list view, from where it was begun to where it now ends, which becomes the current
  // entry. The other rows are deselected unless `keepOthers`. Frames follow, the first cell's too.
  void ChooseRange(int from, int to, bool keepOthers);

  // Selects every entry. The current entry and the texts stay.
  void ChooseAll();

  // Shows the current entry's label anew, as after the choice of its numbering changed.
  void ShowCurrentLabel();

  // Selects what is not selected and the reverse. The current entry and the texts stay.
  void mnuRem_Click();

 private:
  std::optional<HitCell> AnsweringCellAt(double x, double y) const;
  bool Answers(int index) const;
  void Choose(const HitCell& cell, bool ctrl);
  void MakeCurrent(int index);
  void ClearSelection();
  void ToggleCurrent(Point frameCorner);
  void SetSelected(int number, bool selected);
  void DrawFrameAt(Point corner, bool shown);

  SelectionView& view_;
  GridView& grid_;
  IconList& list_;
  SearchState& state_;
  const std::string& language_;
};

}  // namespace tarvik
