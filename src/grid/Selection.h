#pragma once

#include <optional>
#include <string>

#include "grid/GridView.h"
#include "grid/HitTest.h"
#include "grid/SearchState.h"
#include "search/icons/IconList.h"

namespace tarvik {

// The interface of the main window that the selection uses, apart from its grid. Members with the same name as in
// SearchWindow do the same, so that one function of the window implements both.
class SelectionView {
 public:
  virtual ~SelectionView() = default;

  // Whether labels number an icon by its index in its own file (mnuIL2) or by its entry (mnuIL1).
  virtual bool NumbersByFile() const = 0;

  virtual void SetInfoText(const std::string& text) = 0;
  virtual void SetStatusText(const std::string& text) = 0;
  virtual void ListChanged() = 0;
};

// The held keys that count as Ctrl (see PictureEvent): Ctrl alone. A click with Ctrl and another key is a plain click.
inline constexpr int ctrlAlone = 2;

// The number in the label of an entry: its own, or with `byFile` its icon's index in its file, counted from 1.
int LabelNumber(const IconListEntry& entry, int number, bool byFile);

// Chooses the current entry and the selection, and keeps rows, frames and texts consistent.
//
// Does nothing while a search runs, nor for an entry that is not in the list, as after a refused search.
class Selection {
 public:
  // All five outlive the selection. `language` is read when a text is chosen.
  Selection(SelectionView& view, GridView& grid, IconList& list, SearchState& state, const std::string& language);

  // Handles a button release on the grid at (x, y), in pixels of PicIcons. Every button acts alike. A plain click
  // selects only the clicked entry; with Ctrl it toggles the entry.
  void PicIcons_MouseUp(int heldKeys, double x, double y);

  // The number of the entry that a click there chooses; nothing if it chooses none.
  std::optional<int> EntryAt(double x, double y) const;

  // Chooses a row in the list view, by its number, with the rules of a click on the entry's cell.
  void ChooseRow(int number, int heldKeys);

  // Selects a range of rows in the list view, from its start to its end, which becomes the current entry. The other
  // rows are deselected unless `keepOthers`. Frames follow, including the first cell's.
  void ChooseRange(int from, int to, bool keepOthers);

  // Selects every entry. The current entry and the texts do not change.
  void ChooseAll();

  // Updates the current entry's label, for example after its numbering was changed.
  void ShowCurrentLabel();

  // Inverts the selection. The current entry and the texts do not change.
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
