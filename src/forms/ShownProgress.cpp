#include "forms/ShownProgress.h"

#include <cstdint>

namespace tarvik {
namespace {

TaskBar::State StateOf(Progress::Kind kind) {
  switch (kind) {
    case Progress::Kind::None:
      return TaskBar::State::None;
    case Progress::Kind::Unknown:
      return TaskBar::State::Indeterminate;
    case Progress::Kind::Share:
      return TaskBar::State::Normal;
  }
  return TaskBar::State::None;
}

int Hundredths(const Progress& progress) {
  return progress.total > 0 ? static_cast<int>(std::int64_t{progress.done} * 100 / progress.total) : 0;
}

}  // namespace

void ShownProgress::Set(const Progress& progress) {
  if (bar_ == nullptr) return;
  if (progress_.kind == Progress::Kind::None) begunAt_ = clock_();
  progress_ = progress;
  if (errors_ == 0) Show();
}

Finally ShownProgress::ShowError() {
  if (bar_ == nullptr) return {};
  const bool isEmpty = errors_++ == 0 && shownState_ != TaskBar::State::Normal;
  ShowState(TaskBar::State::Error);
  if (isEmpty) bar_->SetShare(window_, 1, 1);  // an empty bar would show no colour
  return Finally([this] {
    if (--errors_ == 0) Show();
  });
}

void ShownProgress::Show() {
  const bool isDue = progress_.kind != Progress::Kind::None && clock_() - begunAt_ >= delay_;
  ShowState(isDue ? StateOf(progress_.kind) : TaskBar::State::None);
  if (shownState_ != TaskBar::State::Normal || progress_.total <= 0) return;
  const int hundredths = Hundredths(progress_);
  if (hundredths == shownHundredths_) return;
  shownHundredths_ = hundredths;
  bar_->SetShare(window_, progress_.done, progress_.total);
}

void ShownProgress::ShowState(TaskBar::State state) {
  if (state == shownState_) return;
  shownState_ = state;
  shownHundredths_ = -1;
  bar_->SetState(window_, state);
}

}  // namespace tarvik
