#include "search/window/IconListRows.h"

namespace tarvik {
namespace {

constexpr RowMarking plain{false, 0x000000};
constexpr RowMarking marked{true, 0x0000FF};

}  // namespace

std::string IconListCell(const IconList& list, int number, std::size_t column) {
  const IconListEntry& entry = list.Item(number);
  const std::array<std::string, iconListColumns.size()> cells{std::to_string(number), entry.path,
                                                              std::to_string(entry.index)};
  return cells.at(column);
}

RowMarking MarkingOf(const IconListEntry& entry) {
  return entry.selected ? marked : plain;
}

}  // namespace tarvik
