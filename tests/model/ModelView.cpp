// The enhanced view.
#include <string>

#include "model/Model.h"

namespace tarvik::model {
namespace {

constexpr int firstZoom = 5;

}  // namespace

// The icon of a row as its file contains it now.
Capture Model::Rendered(int row) const {
  const Entry& entry = entries.at(static_cast<std::size_t>(row));
  const auto file = disk_->Find(entry.path);
  if (!file || entry.index >= file->icons) return CaptureOf(nullptr, Size().size);
  const IconLook look{file->id, entry.index};
  return CaptureOf(&look, Size().size);
}

void Model::OpenView() {
  if (isSearching || entries.empty()) return;
  view = {};
  view.entry = current;
  view.picture = Rendered(current).composed;
  const Entry& entry = entries.at(static_cast<std::size_t>(current));
  view.status = entry.path + " - " + std::to_string(entry.index);
  view.zoom = firstZoom;
  view.width = kept.viewWidth;
  view.height = kept.viewHeight;
  fronts.push_back(Front::View);
  Zoom(-1);
}

void Model::CloseView() {
  kept.viewWidth = view.width;
  kept.viewHeight = view.height;
  fronts.pop_back();
}

// For a number outside the list the picture stays and the text is cleared.
void Model::ShowEntry() {
  view.status.clear();
  if (!Answers(view.entry - 1)) return;
  view.picture = Rendered(view.entry - 1).composed;
  const Entry& entry = entries.at(static_cast<std::size_t>(view.entry - 1));
  view.status = entry.path + " - " + std::to_string(entry.index);
}

void Model::First() {
  view.showRuns = false;
  view.entry = 1;
  ShowEntry();
}

void Model::Last() {
  view.showRuns = false;
  view.entry = static_cast<int>(entries.size());
  ShowEntry();
}

void Model::Step(int by) {
  view.showRuns = false;
  const int count = static_cast<int>(entries.size());
  if (by > 0 && view.entry == count) {
    view.entry = 1;
  } else if (by < 0 && view.entry == 1) {
    view.entry = count;
  }
  view.entry += by;
  ShowEntry();
}

void Model::Tick() {
  if (!view.showRuns) return;
  Step(1);
  view.showRuns = true;
}

void Model::Zoom(int row) {
  view.zoomRow = row;
  view.zoom = row < 0 ? firstZoom : row + 1;
  const std::string side = std::to_string(view.zoom * Size().size);
  view.title = words::viewTitle.In(tongue_, side, side);
}

void Model::ResizeView(int width, int height) {
  view.width = width;
  view.height = height;
}

}  // namespace tarvik::model
