#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "search/icons/IconList.h"

namespace tarvik {

// A column of the icon list in its report view. The headers are Chinese in every interface language (deliberate:
// oddities 24).
struct IconListColumn {
  std::string_view header;
  int width = 0;       // in pixels at the window's first size
  bool grows = false;  // takes the width that a larger window gives the list
};

inline constexpr std::array<IconListColumn, 3> iconListColumns{{
    {"序号", 40},             // the entry's number
    {"文件路径", 460, true},  // its file
    {"图标索引", 80},         // its index in that file
}};

// The text of a column in the row of the entry with that number (1 to the list's Count()).
std::string IconListCell(const IconList& list, int number, std::size_t column);

// How a row looks: bold and red (0x00BBGGRR) while its entry is selected, plain and black otherwise.
struct RowMarking {
  bool bold = false;
  std::uint32_t color = 0;
  friend bool operator==(const RowMarking&, const RowMarking&) = default;
};

RowMarking MarkingOf(const IconListEntry& entry);

}  // namespace tarvik
