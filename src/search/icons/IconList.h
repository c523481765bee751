#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Integer16.h"

namespace tarvik {

// One found icon: where it is, and whether the user selected it.
struct IconListEntry {
  std::string path;       // the source file, UTF-8
  Integer16 index;        // zero-based index in that file; for an animated cursor, the zero-based animation step
  bool selected = false;  // a selected entry is marked: bold and red in the list, framed in the grid
  std::string key{};      // the name of its row: "Row17" for entry 17

  friend bool operator==(const IconListEntry&, const IconListEntry&) = default;
};

// True for a file whose name ends in ".ani", in any case: its entries are steps of one animation.
bool IsAnimatedCursorName(std::string_view path);

// The results of the last search, in the order of discovery. Entries are numbered from 1; rows are only ever appended.
class IconList {
 public:
  void Clear();
  // Appends an entry, not selected.
  void Add(std::string path, Integer16 index);

  int Count() const { return static_cast<int>(entries_.size()); }
  bool Has(int number) const { return number >= 1 && number <= Count(); }
  // The entry with that number, 1 to Count().
  const IconListEntry& Item(int number) const { return entries_.at(static_cast<std::size_t>(number) - 1); }

  void SetSelected(int number, bool selected) { entries_.at(static_cast<std::size_t>(number) - 1).selected = selected; }
  void Select(int number) { SetSelected(number, true); }
  void Deselect(int number) { SetSelected(number, false); }
  bool AnySelected() const;
  int CountSelected() const;

 private:
  std::vector<IconListEntry> entries_;
};

}  // namespace tarvik
