#pragma once

#include <string>
#include <vector>

#include "support/TestRaster.h"
#include "view/EnhancedViewHost.h"

namespace tarvik::support {

// A main window's list in memory: entry n comes from "C:\icons\n.dll" and has the index 10 x n.
class FakeHost : public EnhancedViewHost {
 public:
  explicit FakeHost(int count, Integer16 currentIndex = 0) : currentIndex_(currentIndex) {
    for (int number = 1; number <= count; ++number) {
      entries_.push_back({"C:\\icons\\" + std::to_string(number) + ".dll", number * 10 % 1000});
    }
  }

  bool RenderEntry(int number) override {
    asked.push_back(number);
    if (failing) throw OverflowError();
    return Entry(number) != nullptr && Draw(number);
  }
  const PixelView& PicIcon() const override { return picIcon_; }
  int EntryCount() const override { return static_cast<int>(entries_.size()); }
  const IconListEntry* Entry(int number) const override {
    const bool stands = number >= 1 && number <= EntryCount();
    return stands ? &entries_.at(static_cast<std::size_t>(number) - 1) : nullptr;
  }
  Integer16 CurrentIndex() const override { return currentIndex_; }
  bool ViewOpen() const override { return viewOpen; }
  void SetViewOpen(bool open) override { viewOpen = open; }

  std::vector<int> asked;  // the requested entries, in order
  bool failing = false;    // rendering throws
  bool viewOpen = false;

 protected:
  virtual bool Draw(int /*number*/) { return true; }

 private:
  std::vector<IconListEntry> entries_;
  Integer16 currentIndex_;
  TestRaster picIcon_{32, 32};
};

}  // namespace tarvik::support
