#include "view/ViewStepping.h"

#include <utility>

#include "base/RuntimeError.h"
#include "view/ViewTexts.h"

namespace tarvik {
namespace {

template <typename Step>
void SkipErrors(Step step) {
  try {
    step();
  } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): stepping goes on with the next step
  }
}

}  // namespace

ViewStepping::ViewStepping(EnhancedViewHost& host, ViewDisplay display) : host_(host), display_(std::move(display)) {}

void ViewStepping::Begin() {
  currentEntry_ = host_.CurrentIndex();
}

void ViewStepping::ShowFirst() {
  currentEntry_ = 1;
  ShowEntry();
}

void ViewStepping::ShowLast() {
  currentEntry_ = host_.EntryCount();
  ShowEntry();
}

void ViewStepping::ShowNext() {
  if (currentEntry_ == host_.EntryCount()) currentEntry_ = 1;
  SkipErrors([this] { currentEntry_ += 1; });
  ShowEntryAndSkipErrors();
}

void ViewStepping::ShowPrevious() {
  SkipErrors([this] {
    if (currentEntry_ == 1) currentEntry_ = host_.EntryCount();
  });
  SkipErrors([this] { currentEntry_ -= 1; });
  ShowEntryAndSkipErrors();
}

void ViewStepping::UpdateStatus(int number) {
  display_.showStatusText("");
  if (const IconListEntry* entry = host_.Entry(number)) display_.showStatusText(SourceText(*entry));
}

void ViewStepping::Render() {
  if (host_.RenderEntry(currentEntry_)) display_.showPicture();
}

void ViewStepping::ShowEntry() {
  Render();
  UpdateStatus(currentEntry_);
}

void ViewStepping::ShowEntryAndSkipErrors() {
  SkipErrors([this] { Render(); });
  SkipErrors([this] { UpdateStatus(currentEntry_); });
}

}  // namespace tarvik
