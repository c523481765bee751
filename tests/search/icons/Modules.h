#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tarvik::support {

// Modules of 16-bit Windows ("NE") that hold icons and nothing else, written byte by byte: current linkers no longer
// make them. The modules that the tests of damaged files start from are in damaged_files/Libraries.h.

using ModuleBytes = std::vector<std::byte>;

// A picture as a group describes it, and its data.
struct ModulePicture {
  int width = 32;  // 256 is written as 0
  int height = 32;
  int bits = 4;
  ModuleBytes data;
};

struct ModuleIcon {
  std::vector<ModulePicture> pictures;
  std::string name = {};  // if empty, it has a number
};

struct ModuleLayout {
  unsigned shift = 4;
  bool groupsFirst = false;      // in the table; otherwise the pictures come first
  bool otherResources = false;   // of other types, with numbers and names, before, between and after them
  bool sharedData = false;       // equal pictures share one place in the file
  bool overlappingData = false;  // each length reaches into the next resource
  std::string residentName = "ICONS";
};

// The bytes of such a module. Pictures are numbered from 1 in the order of the icons.
ModuleBytes MakeModule(std::span<const ModuleIcon> icons, const ModuleLayout& layout = {});

// A bitmap in an icon's format, all zeros except its header and `mark`, which is its first colour or pixel byte.
ModuleBytes PlainBitmap(int width, int height, int bits, std::uint8_t mark = 0);

// That many icons of one picture of 16 pixels each, marked 1, 2, 3 ...
std::vector<ModuleIcon> PlainIcons(int count);

// The offsets of a made module's new header and of its table of resources.
inline constexpr std::size_t newHeaderOfModule = 0x80;
inline constexpr std::size_t tableOfModule = newHeaderOfModule + 0x40;

}  // namespace tarvik::support
