#include "search/icons/NewExecutable.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/ByteReader.h"

namespace tarvik {
namespace {

// How much of the two headers is read, and the offsets of their fields.
constexpr std::uint64_t firstBlockSize = 512;
constexpr std::size_t dosHeaderSize = 64;
constexpr std::uint32_t dosSignature = 0x5A4D;  // "MZ"
constexpr std::size_t newHeaderOffsetAt = 0x3C;
constexpr std::uint64_t newHeaderSize = 64;
constexpr std::uint32_t newSignature = 0x454E;  // "NE"
constexpr std::size_t resourceTableOffsetAt = 0x24;
constexpr std::size_t residentNamesOffsetAt = 0x26;

// The table of resources.
constexpr std::size_t tableStartSize = 2;
constexpr std::size_t typeSize = 8;
constexpr std::size_t resourceSize = 12;
constexpr std::size_t resourceIdAt = 6;
constexpr std::uint32_t maxShift = 15;
constexpr std::uint32_t numberBit = 0x8000;
constexpr std::uint32_t pictureType = numberBit | 3;
constexpr std::uint32_t groupType = numberBit | 14;

// Bytes of the file from an offset on; empty if they cannot be read.
std::vector<std::byte> BytesAt(ByteSource& file, std::uint64_t offset, std::uint64_t size) {
  std::vector<std::byte> bytes(static_cast<std::size_t>(size));
  if (!file.Read(offset, bytes)) bytes.clear();
  return bytes;
}

// The new header; empty if the file has none. In most files both headers are in the first block, so one read is enough;
// reads are what costs time.
std::vector<std::byte> NewHeader(ByteSource& file, std::uint64_t fileSize, std::uint64_t& offset) {
  const auto block = BytesAt(file, 0, std::min(fileSize, firstBlockSize));
  if (block.size() < dosHeaderSize || U16At(block, 0) != dosSignature) return {};
  offset = U32At(block, newHeaderOffsetAt);
  if (offset + newHeaderSize > fileSize) return {};
  if (offset + newHeaderSize > block.size()) return BytesAt(file, offset, newHeaderSize);
  const auto start = block.begin() + static_cast<std::ptrdiff_t>(offset);
  return {start, start + std::ptrdiff_t{newHeaderSize}};
}

// The part of the resource table that lies in the file; empty if the file is no such module or has no table.
std::vector<std::byte> ResourceTable(ByteSource& file, std::uint64_t fileSize) {
  std::uint64_t start = 0;
  const auto header = NewHeader(file, fileSize, start);
  if (header.empty() || U16At(header, 0) != newSignature) return {};
  const std::uint64_t table = start + U16At(header, resourceTableOffsetAt);
  const std::uint64_t end = std::min<std::uint64_t>(start + U16At(header, residentNamesOffsetAt), fileSize);
  return table < end ? BytesAt(file, table, end - table) : std::vector<std::byte>();
}

}  // namespace

NewExecutable::NewExecutable(ByteSource& file, std::uint64_t fileSize) {
  ReadTable(ResourceTable(file, fileSize), fileSize);
}

void NewExecutable::ReadTable(const std::vector<std::byte>& table, std::uint64_t fileSize) {
  const auto has = [&table](std::size_t offset, std::size_t size) { return offset + size <= table.size(); };
  if (!has(0, tableStartSize) || U16At(table, 0) > maxShift) return;
  const std::uint32_t shift = U16At(table, 0);
  for (std::size_t offset = tableStartSize; has(offset, typeSize) && U16At(table, offset) != 0;) {
    const std::uint32_t type = U16At(table, offset);
    std::uint32_t left = U16At(table, offset + 2);
    for (offset += typeSize; left != 0 && has(offset, resourceSize); --left, offset += resourceSize) {
      const std::uint64_t start = std::uint64_t{U16At(table, offset)} << shift;
      const std::uint64_t size = std::uint64_t{U16At(table, offset + 2)} << shift;
      if (start >= fileSize) {
        // Icons are found by their position, so a single group cannot be left out.
        hasAllGroups_ = hasAllGroups_ && type != groupType;
        continue;
      }
      // The last resource of a file may lack the zeros that pad it to a whole unit.
      Note(type, U16At(table, offset + resourceIdAt), {start, std::min(size, fileSize - start)});
    }
  }
}

void NewExecutable::Note(std::uint32_t type, std::uint32_t id, const Extent& extent) {
  if (type == groupType && hasAllGroups_) groups_.push_back(extent);
  if (type == pictureType) pictures_.emplace(id, extent);
}

std::vector<std::byte> NewExecutable::Picture(ByteSource& file, int index, const IconWish& wish) const {
  if (index < 0 || index >= IconCount()) return {};
  const Extent& group = groups_[static_cast<std::size_t>(index)];
  const auto start = BytesAt(file, group.offset, std::min<std::uint64_t>(group.size, iconGroupStartSize));
  const auto directory = BytesAt(file, group.offset, std::min<std::uint64_t>(group.size, IconGroupSize(start)));
  const auto number = ChoosePicture(directory, wish);
  const auto picture = number ? pictures_.find(numberBit | *number) : pictures_.end();
  if (picture == pictures_.end()) return {};
  auto bytes = BytesAt(file, picture->second.offset, std::min<std::uint64_t>(picture->second.size, maxPictureBytes));
  if (!HoldsPicture(bytes)) bytes.clear();
  return bytes;
}

}  // namespace tarvik
