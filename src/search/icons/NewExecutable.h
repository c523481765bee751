#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "base/ByteSource.h"
#include "search/icons/IconGroup.h"

namespace tarvik {

// A module of 16-bit Windows (a "New Executable"): a program, a library, or a library that contains only icons.
// Windows no longer extracts icons from such files since Vista, so the program reads their resource table itself.
//
// The format, as described in Microsoft's "Executable-File Header Format" (Windows 3.1). All numbers are little-endian:
//   - the DOS header: "MZ"; at 0x3C, in four bytes, the offset of the new header;
//   - the new header: "NE"; at 0x24 and 0x26 the offsets, from its own start, of the resource table and of the table of
//     resident names. The second table follows the first, so no resource table has more than 64 KB;
//   - the resource table: a shift count for the offsets and lengths in it; then, for each type, its number (0 ends the
//     table), the number of resources, and four bytes without meaning in a file; and for each resource its offset in
//     the file, its length, flags, its number, and again four such bytes. The highest bit of a type or a resource
//     number is set if it is a number; without that bit, it is the offset of a name.
// A group of icons (type 14) refers to its pictures (type 3) by number.
//
// Whatever the file declares, nothing is read beyond its end or beyond what the table names. A truncated table is read
// as far as it goes.
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
    std::uint64_t offset;
    std::uint64_t size;
  };

  void ReadTable(const std::vector<std::byte>& table, std::uint64_t fileSize);
  void Note(std::uint32_t type, std::uint32_t id, const Extent& extent);

  std::vector<Extent> groups_;
  bool hasAllGroups_ = true;                            // whether all of the table's groups so far are there
  std::unordered_map<std::uint32_t, Extent> pictures_;  // by number, including the bit that marks a number
};

}  // namespace tarvik
