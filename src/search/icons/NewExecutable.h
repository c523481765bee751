#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "base/ByteSource.h"
#include "search/icons/IconGroup.h"

namespace tarvik {

// A module of 16-bit Windows (a "New Executable"): a program, a library, or a library of icons and nothing else.
// Windows has not taken icons out of such files since Vista, so the program reads their table of resources itself.
//
// The format, as Microsoft's "Executable-File Header Format" (Windows 3.1) describes it. All numbers are little-endian:
//   - the DOS header: "MZ"; at 0x3C, in four bytes, where the new header is;
//   - the new header: "NE"; at 0x24 and 0x26 where, from its own start, the tables of resources and of resident names
//     are. The second follows the first, so no table of resources has more than 64 KB;
//   - the table of resources: a shift, by which places and lengths in it are moved to the left; then, for each type,
//     its number (0 ends the table), how many resources there are, and four bytes that mean nothing in a file; and for
//     each of them its place in the file, its length, flags, its number, and again four bytes. Types and resources that
//     have a number have the highest bit set in it; without that bit, it says where the name is.
// A group of icons (type 14) names its pictures (type 3) by number.
//
// Whatever the file says, nothing is read beyond its end or beyond what the table names. Where the table is damaged, it
// ends.
class NewExecutable {
 public:
  // A module without icons.
  NewExecutable() = default;
  // Reads the table of a file; one that is no such module has no icons.
  NewExecutable(ByteSource& file, std::uint64_t fileSize);

  // How many icons there are: the groups, in the order of the table. None if there are no pictures.
  int IconCount() const { return pictures_.empty() ? 0 : static_cast<int>(groups_.size()); }

  // The best matching picture of an icon, to be passed to the system: see ChoosePicture. `index` is zero-based. Empty
  // if there is no such icon, or its picture is incomplete.
  std::vector<std::byte> Picture(ByteSource& file, int index, const IconWish& wish) const;

 private:
  // The position of a resource in the file; all of it lies inside.
  struct Extent {
    std::uint64_t place;
    std::uint64_t size;
  };

  void ReadTable(const std::vector<std::byte>& table, std::uint64_t fileSize);
  void Note(std::uint32_t type, std::uint32_t id, const Extent& extent);

  std::vector<Extent> groups_;
  bool hasAllGroups_ = true;                            // whether all of the table's groups so far are there
  std::unordered_map<std::uint32_t, Extent> pictures_;  // by number, including the bit that marks a number
};

}  // namespace tarvik
