#include "damaged_files/Libraries.h"

#include <array>

namespace tarvik::support {
namespace {

constexpr std::uint32_t iconType = 3;
constexpr std::uint32_t iconGroupType = 14;

constexpr std::size_t newHeaderOffset = 64;  // right after the DOS header, which ends with this number

void WriteDosHeader(IntactFileWriter& file) {
  file.Number(0x5A4D, 2);  // "MZ"
  file.PadTo(newHeaderOffset - 4);
  file.MarkedNumber(newHeaderOffset, 4);
}

// The data of all resources: first the pictures, then the group of each.
std::vector<Bytes> ResourceData(std::span<const IconPicture> pictures) {
  std::vector<Bytes> data;
  data.reserve(2 * pictures.size());
  for (const IconPicture& picture : pictures) data.push_back(picture.data);
  std::uint16_t number = 0;
  for (const IconPicture& picture : pictures) data.push_back(IconGroup(picture, ++number));
  return data;
}

void WriteGroup(IntactFileWriter& file, const Bytes& group) {
  const auto number = [&group](std::size_t offset, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i) value |= std::to_integer<std::uint64_t>(group[offset + i]) << (8 * i);
    return value;
  };
  file.Number(number(0, 4), 4);
  file.MarkedNumber(number(4, 2), 2);   // how many pictures
  file.Number(number(6, 8), 8);         // of the picture: sides, colours, planes, bits
  file.MarkedNumber(number(14, 4), 4);  // its size
  file.MarkedNumber(number(18, 2), 2);  // its number
}

void WriteResourceData(IntactFileWriter& file, const std::vector<Bytes>& data, std::size_t index) {
  if (index >= data.size() / 2) return WriteGroup(file, data[index]);
  const std::size_t start = file.Offset();
  file.Append(data[index]);
  file.MarkPicture(start);
}

constexpr std::uint32_t sectionAddress = 0x1000;
constexpr std::size_t sectionOffset = 0x200;

// The resource tree: the types, the names of each type, the one language of each name, the data.
class ResourceTree {
 public:
  ResourceTree(IntactFileWriter& file, std::span<const IconPicture> pictures)
      : file_(file), data_(ResourceData(pictures)), names_(static_cast<std::uint32_t>(pictures.size())) {}

  void Write() {
    const std::uint32_t typeSize = directorySize + entrySize * names_;
    const std::uint32_t languages = directorySize + entrySize * 2 + 2 * typeSize;
    const std::uint32_t dataEntries = languages + 2 * names_ * (directorySize + entrySize);
    Directory(0, 2);
    Entry(iconType, subDirectory | (directorySize + entrySize * 2));
    Entry(iconGroupType, subDirectory | (directorySize + entrySize * 2 + typeSize));
    for (std::uint32_t type = 0; type < 2; ++type) {
      Directory(directorySize + entrySize * 2 + type * typeSize, names_);
      for (std::uint32_t name = 0; name < names_; ++name)
        Entry(name + 1, subDirectory | (languages + (type * names_ + name) * (directorySize + entrySize)));
    }
    for (std::uint32_t resource = 0; resource < 2 * names_; ++resource) {
      Directory(languages + resource * (directorySize + entrySize), 1);
      Entry(englishLanguage, dataEntries + resource * dataEntrySize);
    }
    WriteDataEntries(dataEntries + 2 * names_ * dataEntrySize);
    for (std::size_t index = 0; index < data_.size(); ++index) WriteResourceData(file_, data_, index);
  }

 private:
  static constexpr std::uint32_t directorySize = 16;
  static constexpr std::uint32_t entrySize = 8;
  static constexpr std::uint32_t dataEntrySize = 16;
  static constexpr std::uint32_t subDirectory = 0x80000000;
  static constexpr std::uint32_t englishLanguage = 0x409;

  void Directory(std::uint32_t offset, std::uint32_t entries) {
    file_.Directory(subDirectory | offset);
    file_.Number(0, 12);
    file_.MarkedNumber(0, 2);  // entries with a name
    file_.MarkedNumber(entries, 2);
  }
  void Entry(std::uint32_t id, std::uint32_t leadingValue) {
    file_.Number(id, 4);
    file_.Branch(leadingValue);
  }
  void WriteDataEntries(std::uint32_t offset) {
    for (const Bytes& data : data_) {
      const auto size = static_cast<std::uint32_t>(data.size());
      file_.MarkedNumber(sectionAddress + offset, 4);
      file_.MarkedNumber(size, 4);
      file_.Number(0, 8);
      offset += size;
    }
  }

  IntactFileWriter& file_;
  std::vector<Bytes> data_;
  std::uint32_t names_;
};

void WriteFileHeader(IntactFileWriter& file, bool wide) {
  constexpr std::uint32_t machine32 = 0x14C;
  constexpr std::uint32_t machine64 = 0x8664;
  file.Number(0x4550, 4);  // "PE"
  file.Number(wide ? machine64 : machine32, 2);
  file.MarkedNumber(1, 2);  // sections
  file.Number(0, 12);
  file.MarkedNumber(wide ? 240 : 224, 2);       // the size of the optional header
  file.Number(0x2002 | (wide ? 0 : 0x100), 2);  // a library that can be run, for 32 bits
}

void WriteOptionalHeader(IntactFileWriter& file, bool wide, std::size_t treeSize) {
  const std::size_t word = wide ? 8 : 4;
  constexpr std::uint32_t directories = 16;
  constexpr std::uint32_t resourceDirectory = 2;
  const std::size_t start = file.Offset();
  file.Number(wide ? 0x20B : 0x10B, 2);
  file.PadTo(start + (wide ? 24 : 28));
  file.Number(0x400000, word);           // where it is loaded
  file.MarkedNumber(sectionAddress, 4);  // alignment in memory
  file.MarkedNumber(sectionOffset, 4);   // and in the file
  file.PadTo(start + 48);
  file.Number(4, 4);  // the oldest system
  file.PadTo(start + 56);
  file.MarkedNumber(sectionAddress + treeSize, 4);
  file.MarkedNumber(sectionOffset, 4);  // headers
  file.PadTo(start + 68);
  file.Number(2, 2);  // has windows
  file.PadTo(start + 72 + 4 * word + 4);
  file.MarkedNumber(directories, 4);
  file.Number(0, 8 * resourceDirectory);
  file.MarkedNumber(sectionAddress, 4);
  file.MarkedNumber(treeSize, 4);
  file.Number(0, 8);
  file.PadTo(start + (wide ? 240 : 224));
}

void WriteSectionHeader(IntactFileWriter& file, std::size_t size) {
  constexpr std::uint64_t name = 0x637273722E;  // ".rsrc"
  constexpr std::uint32_t readableData = 0x40000040;
  file.Number(name, 8);
  file.MarkedNumber(size, 4);
  file.MarkedNumber(sectionAddress, 4);
  file.MarkedNumber(size, 4);
  file.MarkedNumber(sectionOffset, 4);
  file.Number(0, 12);
  file.Number(readableData, 4);
}

std::size_t TreeSize(std::span<const IconPicture> pictures) {
  IntactFileWriter alone;
  ResourceTree(alone, pictures).Write();
  return alone.Offset();
}

}  // namespace

IntactFile Library(Bitness bitness, std::span<const IconPicture> pictures) {
  const bool wide = bitness == Bitness::Bits64;
  const std::size_t treeSize = TreeSize(pictures);
  IntactFileWriter file;
  WriteDosHeader(file);
  WriteFileHeader(file, wide);
  WriteOptionalHeader(file, wide, treeSize);
  WriteSectionHeader(file, treeSize);
  file.PadTo(sectionOffset);
  ResourceTree(file, pictures).Write();
  return file.Take();
}

IntactFile SixteenBitLibrary(std::span<const IconPicture> pictures) {
  constexpr std::size_t headerSize = 64;
  constexpr std::size_t typeSize = 8;
  constexpr std::size_t nameSize = 12;
  constexpr std::uint32_t shift = 4;
  constexpr std::uint32_t idBit = 0x8000;
  const std::vector<Bytes> data = ResourceData(pictures);
  const auto names = static_cast<std::uint32_t>(pictures.size());
  const std::size_t tableSize = 2 + 2 * (typeSize + nameSize * names) + 2;

  IntactFileWriter file;
  WriteDosHeader(file);
  file.Number(0x454E, 2);  // "NE"
  file.PadTo(newHeaderOffset + 0x24);
  file.MarkedNumber(headerSize, 2);              // offset of the resource table
  file.MarkedNumber(headerSize + tableSize, 2);  // and of what follows it
  file.PadTo(newHeaderOffset + 0x36);
  file.Number(2, 1);  // for Windows
  file.PadTo(newHeaderOffset + headerSize);

  const auto aligned = [](std::size_t offset) { return (offset + (1U << shift) - 1) >> shift << shift; };
  std::size_t offset = aligned(newHeaderOffset + headerSize + tableSize);
  file.MarkedNumber(shift, 2);
  for (std::size_t index = 0; index < data.size(); ++index) {
    if (index % names == 0) {
      file.MarkedNumber(idBit | (index == 0 ? iconType : iconGroupType), 2);
      file.MarkedNumber(names, 2);
      file.Number(0, 4);
    }
    const std::size_t size = aligned(data[index].size());
    file.MarkedNumber(offset >> shift, 2);
    file.MarkedNumber(size >> shift, 2);
    file.Number(0x1C30, 2);  // flags: may be moved and discarded, is read-only
    file.MarkedNumber(idBit | (index % names + 1), 2);
    file.Number(0, 4);
    offset += size;
  }
  file.MarkedNumber(0, 2);
  for (std::size_t index = 0; index < data.size(); ++index) {
    file.PadTo(aligned(file.Offset()));
    WriteResourceData(file, data, index);
  }
  file.PadTo(aligned(file.Offset()));
  return file.Take();
}

Bytes LibraryOfOneIcon() {
  constexpr Color left = 0x0000FF;
  constexpr Color right = 0xFF0000;
  const std::array pictures{BitmapPicture(48, 32, left, right)};
  return Library(Bitness::Bits32, pictures).bytes;
}

Bytes CutOffLibrary() {
  constexpr std::size_t missing = 8192;
  Bytes file = LibraryOfOneIcon();
  file.resize(file.size() - missing);
  return file;
}

}  // namespace tarvik::support
