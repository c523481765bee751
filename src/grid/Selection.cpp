#include "grid/Selection.h"

#include <algorithm>

#include "grid/SelectionTexts.h"

namespace tarvik {

int LabelNumber(const IconListEntry& entry, int number, bool byFile) {
  return byFile ? entry.index + 1 : number;
}

Selection::Selection(SelectionView& view, GridView& grid, IconList& list, SearchState& state,
                     const std::string& language)
    : view_(view), grid_(grid), list_(list), state_(state), language_(language) {}

// Every button selects, and Ctrl counts only alone (deliberate: oddities 28).
void Selection::PicIcons_MouseUp(int heldKeys, double x, double y) {
  if (const auto cell = AnsweringCellAt(x, y)) Choose(*cell, heldKeys == ctrlAlone);
}

std::optional<int> Selection::EntryAt(double x, double y) const {
  const auto cell = AnsweringCellAt(x, y);
  return cell ? std::optional(cell->index + 1) : std::nullopt;
}

std::optional<HitCell> Selection::AnsweringCellAt(double x, double y) const {
  if (state_.IsSearching) return std::nullopt;
  const auto cell = CellAt(state_.Geometry, x, y, grid_.InnerHeight());
  return cell && Answers(cell->index) ? cell : std::nullopt;
}

void Selection::ChooseRow(int number, int heldKeys) {
  const int index = number - 1;
  if (state_.IsSearching || !Answers(index)) return;
  Choose({index, FrameCorner(state_.Geometry, index)}, heldKeys == ctrlAlone);
}

void Selection::ChooseRange(int from, int to, bool keepOthers) {
  if (state_.IsSearching || !list_.Has(from) || !list_.Has(to)) return;
  const auto [first, last] = std::minmax(from, to);
  MakeCurrent(to - 1);
  if (!keepOthers) DrawFrameAt({state_.FrameX, state_.FrameY}, false);
  for (int number = 1; number <= list_.Count(); ++number) {
    const bool inRange = number >= first && number <= last;
    if (inRange || !keepOthers) SetSelected(number, inRange);
  }
  const Point corner = FrameCorner(state_.Geometry, to - 1);
  state_.FrameX = corner.x;
  state_.FrameY = corner.y;
  view_.ListChanged();
  view_.SetStatusText(list_.Item(to).path);
}

void Selection::ChooseAll() {
  if (state_.IsSearching) return;
  for (int number = 1; number <= list_.Count(); ++number) SetSelected(number, true);
  view_.ListChanged();
}

void Selection::mnuRem_Click() {
  if (state_.IsSearching) return;
  for (int number = 1; number <= list_.Count(); ++number) SetSelected(number, !list_.Item(number).selected);
  view_.ListChanged();
}

bool Selection::Answers(int index) const {
  if (index > state_.IconCount - 1 || index + 1 > state_.NextIconNumber) return false;
  return list_.Has(index + 1);
}

void Selection::Choose(const HitCell& cell, bool ctrl) {
  MakeCurrent(cell.index);
  if (!ctrl) ClearSelection();
  ToggleCurrent(cell.frameCorner);
  view_.ListChanged();
  view_.SetStatusText(list_.Item(cell.index + 1).path);
}

void Selection::MakeCurrent(int index) {
  state_.CurrentIndex = index;
  ShowCurrentLabel();
}

void Selection::ShowCurrentLabel() {
  const int number = state_.CurrentIndex + 1;
  if (!list_.Has(number)) return;
  const int label = LabelNumber(list_.Item(number), number, view_.NumbersByFile());
  const auto text = Compose(selectionTexts::entrySelected, language_, {std::to_string(label)});
  if (text) view_.SetInfoText(*text);
}

// k counts entries from 1 and cells from 0, so the loop deselects entry k but erases the frame of entry k + 1. The
// first cell keeps its frame here, unless it is the current one, and one cell past the last entry is erased
// (deliberate: oddities 29).
void Selection::ClearSelection() {
  for (int k = 1; k < state_.NextIconNumber; ++k) {
    DrawFrameAt(FrameCorner(state_.Geometry, k), false);
    if (list_.Has(k)) list_.Deselect(k);
  }
  DrawFrameAt({state_.FrameX, state_.FrameY}, false);
}

void Selection::ToggleCurrent(Point frameCorner) {
  const int number = state_.CurrentIndex + 1;
  const bool selected = !list_.Item(number).selected;
  state_.FrameX = frameCorner.x;
  state_.FrameY = frameCorner.y;
  DrawFrameAt(frameCorner, selected);
  list_.SetSelected(number, selected);
}

void Selection::SetSelected(int number, bool selected) {
  DrawFrameAt(FrameCorner(state_.Geometry, number - 1), selected);
  list_.SetSelected(number, selected);
}

void Selection::DrawFrameAt(Point corner, bool shown) {
  const int extent = state_.Geometry.FrameExtent;
  grid_.DrawFrame(corner, {corner.x + extent, corner.y + extent}, shown);
}

}  // namespace tarvik
