// Clicks on the grid and on the list.
#include <algorithm>

#include "model/Model.h"

namespace tarvik::model {
namespace {

constexpr int lastX = 580;

}  // namespace

void Model::ShowCurrentLabel() {
  if (!Answers(current)) return;
  const int number = byFile ? entries.at(static_cast<std::size_t>(current)).index + 1 : current + 1;
  label = words::selected.In(tongue_, std::to_string(number));
}

std::optional<int> Model::EntryAt(int x, int y) const {
  if (isSearching || x < 0 || x > lastX || y < 0 || y > grid.InnerHeight()) return std::nullopt;
  const int index = y / Size().pitch * Size().columns + x / Size().pitch;
  if (index > iconCount - 1 || index + 1 > nextNumber || !Answers(index)) return std::nullopt;
  return index;
}

void Model::ClickGrid(int x, int y, bool ctrlAlone) {
  if (const auto index = EntryAt(x, y))
    Choose(*index, x / Size().pitch * Size().pitch + 1, y / Size().pitch * Size().pitch + 1, ctrlAlone);
}

void Model::Hover(int x, int y) {
  tip = "";
  const auto index = EntryAt(x, y);
  if (!index) return;
  const Entry& entry = entries.at(static_cast<std::size_t>(*index));
  tip = entry.path + words::tipIndex.In(tongue_, std::to_string(entry.index));
}

// Row k is deselected, but the frame that is erased is that of the next cell.
void Model::Choose(int index, int x, int y, bool ctrl) {
  current = index;
  ShowCurrentLabel();
  if (!ctrl) {
    for (int k = 1; k < nextNumber; ++k) {
      grid.Frame(CornerX(k), CornerY(k), Size().frame, false);
      if (Answers(k - 1)) entries.at(static_cast<std::size_t>(k - 1)).selected = false;
    }
    grid.Frame(frameX, frameY, Size().frame, false);
  }
  Entry& entry = entries.at(static_cast<std::size_t>(index));
  entry.selected = !entry.selected;
  frameX = x;
  frameY = y;
  grid.Frame(x, y, Size().frame, entry.selected);
  status = entry.path;
  tip = "";
}

void Model::SetSelected(int row, bool selected) {
  entries.at(static_cast<std::size_t>(row)).selected = selected;
  grid.Frame(CornerX(row), CornerY(row), Size().frame, selected);
}

void Model::ClickRow(int row, bool ctrl, bool shift) {
  if (!Answers(row)) return;
  if (!shift || !anchor) {
    anchor = row;
    if (row < iconCount) Choose(row, CornerX(row), CornerY(row), ctrl);
    return;
  }
  current = row;
  ShowCurrentLabel();
  if (!ctrl) grid.Frame(frameX, frameY, Size().frame, false);
  const auto [first, last] = std::minmax(*anchor, row);
  for (int k = 0; k < static_cast<int>(entries.size()); ++k) {
    const bool inRange = k >= first && k <= last;
    if (inRange || !ctrl) SetSelected(k, inRange);
  }
  frameX = CornerX(row);
  frameY = CornerY(row);
  status = entries.at(static_cast<std::size_t>(row)).path;
  tip = "";
}

void Model::OpenRowMenu(int row) {
  if (row != current && row < iconCount) Choose(row, CornerX(row), CornerY(row), false);
  fronts.push_back(Front::Menu);
}

void Model::SelectAllRows() {
  tip = "";
  for (int k = 0; k < static_cast<int>(entries.size()); ++k) SetSelected(k, true);
}

void Model::Invert() {
  tip = "";
  for (int k = 0; k < static_cast<int>(entries.size()); ++k)
    SetSelected(k, !entries.at(static_cast<std::size_t>(k)).selected);
}

}  // namespace tarvik::model
