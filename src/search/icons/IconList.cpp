#include "search/icons/IconList.h"

#include <algorithm>
#include <utility>

#include "base/AsciiCase.h"

namespace tarvik {

bool IsAnimatedCursorName(std::string_view path) {
  constexpr std::string_view ending = ".ani";
  if (path.size() < ending.size()) return false;
  return std::ranges::equal(path.substr(path.size() - ending.size()), ending, {}, LowerAscii);
}

void IconList::Clear() {
  entries_.clear();
}

void IconList::Add(std::string path, Integer16 index) {
  entries_.push_back({std::move(path), index, false, "Row" + std::to_string(Count() + 1)});
}

bool IconList::AnySelected() const {
  return std::ranges::any_of(entries_, &IconListEntry::selected);
}

int IconList::CountSelected() const {
  return static_cast<int>(std::ranges::count(entries_, true, &IconListEntry::selected));
}

}  // namespace tarvik
