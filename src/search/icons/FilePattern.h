#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "resource.h"

namespace tarvik {

// A file type that can be ticked: its check box (an id of resource.h), and the part that it adds to the pattern.
struct SearchedType {
  int checkBox;
  std::string_view part;
};

// The types in the order of their boxes. The last one means all files.
inline constexpr auto searchedTypes = std::to_array<SearchedType>({
    {FrmFindIcon_ChkFileType0, "*.ico;"},
    {FrmFindIcon_ChkFileType1, "*.ani;"},
    {FrmFindIcon_ChkFileType2, "*.icl;"},
    {FrmFindIcon_ChkFileType3, "*.ocx;"},
    {FrmFindIcon_ChkFileType4, "*.dll;"},
    {FrmFindIcon_ChkFileType5, "*.exe;"},
    {FrmFindIcon_ChkFileType6, "*.*"},
});
inline constexpr std::size_t allFilesBox = searchedTypes.size() - 1;

// The lowest and the highest id of their boxes. No other control has an id between them.
inline constexpr int minTypeBox = std::ranges::min(searchedTypes, {}, &SearchedType::checkBox).checkBox;
inline constexpr int maxTypeBox = std::ranges::max(searchedTypes, {}, &SearchedType::checkBox).checkBox;
static_assert(maxTypeBox - minTypeBox + 1 == static_cast<int>(searchedTypes.size()));

inline constexpr std::string_view allFilesPattern = searchedTypes[allFilesBox].part;
inline constexpr std::string_view noFilesPattern = "aaa.aaa";  // matches one name (deliberate: oddities 15)

// Which boxes are ticked, in their order.
using FileTypeChecks = std::array<bool, searchedTypes.size()>;

// The boxes after one of them was clicked: "all files" ticks the others too, so none of them can be unticked meanwhile
// (deliberate: oddities 16).
FileTypeChecks WithAllFilesRule(FileTypeChecks checked);

// The box of the type of a file with that name; the box of all files if no other type matches.
std::size_t FileTypeBoxOf(std::string_view name);

// The pattern of the ticked boxes: "*.*" with "all files", otherwise the concatenated parts ("*.dll;*.exe;"), or
// "aaa.aaa" if none is ticked.
std::string BuildPattern(const FileTypeChecks& checked);

// Returns true if the file name matches any part of the pattern. Parts are split at ";" and empty ones match nothing;
// "*" matches any run of characters and "?" exactly one; "*.*" matches every name, also one without a dot. Both texts
// are UTF-8. Only the letters A to Z are compared without case, which is enough for the built patterns; other
// characters match only themselves. Takes at most name times pattern steps.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace tarvik
