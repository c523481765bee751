#include "search/icons/Modules.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "support/AppendBytes.h"

namespace tarvik::support {
namespace {

constexpr std::uint32_t numberBit = 0x8000;
constexpr std::uint32_t bitmapType = 2;
constexpr std::uint32_t pictureType = 3;
constexpr std::uint32_t stringType = 6;
constexpr std::uint32_t groupType = 14;

void Write(ModuleBytes& bytes, std::size_t offset, std::uint64_t number, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i, number >>= 8U) bytes[offset + i] = static_cast<std::byte>(number);
}

// A string preceded by its length, as in both tables of names.
void AppendName(ModuleBytes& bytes, const std::string& name) {
  Append(bytes, name.size(), 1);
  Append(bytes, std::string_view(name));
}

constexpr std::size_t furtherUnits = 3;  // by which a resource reaches into the next one

struct Resource {
  ModuleBytes data;
  std::uint32_t number = 0;
  std::string name = {};  // instead of the number
};
struct Type {
  std::uint32_t number = 0;
  std::string name = {};  // instead of the number
  std::vector<Resource> resources;
};

ModuleBytes GroupOf(const ModuleIcon& icon, std::uint32_t firstPicture) {
  ModuleBytes group;
  Append(group, 0, 2);
  Append(group, 1, 2);
  Append(group, icon.pictures.size(), 2);
  for (const ModulePicture& picture : icon.pictures) {
    Append(group, static_cast<std::uint64_t>(picture.width), 1);
    Append(group, static_cast<std::uint64_t>(picture.height), 1);
    Append(group, picture.bits < 8 ? 1U << static_cast<unsigned>(picture.bits) : 0, 1);
    Append(group, 0, 1);
    Append(group, 1, 2);
    Append(group, static_cast<std::uint64_t>(picture.bits), 2);
    Append(group, picture.data.size(), 4);
    Append(group, firstPicture++, 2);
  }
  return group;
}

std::vector<Type> TypesOf(std::span<const ModuleIcon> icons, const ModuleLayout& layout) {
  Type pictures{.number = pictureType, .resources = {}};
  Type groups{.number = groupType, .resources = {}};
  std::uint32_t next = 1;
  for (const ModuleIcon& icon : icons) {
    const auto number = static_cast<std::uint32_t>(groups.resources.size()) + 1;
    groups.resources.push_back({GroupOf(icon, next), number, icon.name});
    for (const ModulePicture& picture : icon.pictures) pictures.resources.push_back({picture.data, next++});
  }
  std::vector<Type> types{pictures, groups};
  if (layout.groupsFirst) std::ranges::reverse(types);
  if (layout.otherResources) {
    const std::vector<Resource> others{{PlainBitmap(8, 8, 1), 1}, {PlainBitmap(8, 8, 4), 0, "OTHER"}};
    types.insert(types.begin(), {.number = bitmapType, .resources = others});
    types.insert(types.begin() + 2, {.name = "WAVE", .resources = others});
    types.push_back({.number = stringType, .resources = others});
  }
  return types;
}

// Writes the table of resources, then its names, then the resources.
class TableWriter {
 public:
  TableWriter(ModuleBytes& file, const ModuleLayout& layout) : file_(file), layout_(layout) {}

  void WriteTable(const std::vector<Type>& types) {
    Append(file_, layout_.shift, 2);
    for (const Type& type : types) {
      NameOrNumber(type.name, type.number);
      Append(file_, type.resources.size(), 2);
      Append(file_, 0, 4);
      for (const Resource& resource : type.resources) {
        entryOffsets_.push_back(file_.size());
        Append(file_, 0, 4);       // its position and length, which are not known yet
        Append(file_, 0x1C30, 2);  // flags: may be moved and discarded, is read-only
        NameOrNumber(resource.name, resource.number);
        Append(file_, 0, 4);
      }
    }
    Append(file_, 0, 2);
    for (const auto& [offset, name] : names_) {
      Write(file_, offset, file_.size() - tableOfModule, 2);
      AppendName(file_, name);
    }
    Append(file_, 0, 1);
  }

  void WriteData(const std::vector<Type>& types) {
    std::map<ModuleBytes, std::size_t> written;
    auto entryOffset = entryOffsets_.begin();
    for (const Type& type : types) {
      for (const Resource& resource : type.resources) {
        PadToUnit();
        auto start = file_.size();
        if (const auto same = written.find(resource.data); layout_.sharedData && same != written.end()) {
          start = same->second;
        } else {
          written.emplace(resource.data, start);
          file_.insert(file_.end(), resource.data.begin(), resource.data.end());
        }
        const std::size_t further = layout_.overlappingData ? furtherUnits : 0;
        Write(file_, *entryOffset, start >> layout_.shift, 2);
        Write(file_, *entryOffset + 2, Units(resource.data.size()) + further, 2);
        ++entryOffset;
      }
    }
    PadToUnit();
    if (layout_.overlappingData) file_.resize(file_.size() + (furtherUnits << layout_.shift));
  }

 private:
  std::size_t Units(std::size_t size) const { return (size + (std::size_t{1} << layout_.shift) - 1) >> layout_.shift; }
  void PadToUnit() { file_.resize(Units(file_.size()) << layout_.shift); }
  void NameOrNumber(const std::string& name, std::uint32_t number) {
    if (!name.empty()) names_.emplace_back(file_.size(), name);
    Append(file_, name.empty() ? numberBit | number : 0, 2);
  }

  ModuleBytes& file_;
  const ModuleLayout& layout_;
  std::vector<std::size_t> entryOffsets_;                   // of the resources' entries
  std::vector<std::pair<std::size_t, std::string>> names_;  // and the offsets of the references to each
};

}  // namespace

ModuleBytes MakeModule(std::span<const ModuleIcon> icons, const ModuleLayout& layout) {
  const std::vector<Type> types = TypesOf(icons, layout);
  ModuleBytes file(tableOfModule);
  Write(file, 0, 0x5A4D, 2);  // "MZ"
  Write(file, 0x3C, newHeaderOfModule, 4);
  Write(file, newHeaderOfModule, 0x454E, 2);         // "NE"
  Write(file, newHeaderOfModule + 0x0C, 0x8300, 2);  // a library
  Write(file, newHeaderOfModule + 0x24, 0x40, 2);
  Write(file, newHeaderOfModule + 0x36, 2, 1);  // for Windows
  TableWriter writer(file, layout);
  writer.WriteTable(types);
  Write(file, newHeaderOfModule + 0x26, file.size() - newHeaderOfModule, 2);
  AppendName(file, layout.residentName);
  Append(file, 0, 3);
  writer.WriteData(types);
  return file;
}

ModuleBytes PlainBitmap(int width, int height, int bits, std::uint8_t mark) {
  const auto row = [width](int depth) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(depth) + 31) / 32 * 4;
  };
  ModuleBytes bytes;
  Append(bytes, 40, 4);
  Append(bytes, static_cast<std::uint64_t>(width), 4);
  Append(bytes, static_cast<std::uint64_t>(height) * 2, 4);
  Append(bytes, 1, 2);
  Append(bytes, static_cast<std::uint64_t>(bits), 2);
  const std::size_t palette = bits <= 8 ? std::size_t{4} << static_cast<unsigned>(bits) : 0;
  bytes.resize(40 + palette + static_cast<std::size_t>(height) * (row(bits) + row(1)));
  bytes[40] = std::byte{mark};
  return bytes;
}

std::vector<ModuleIcon> PlainIcons(int count) {
  std::vector<ModuleIcon> icons;
  for (int mark = 1; mark <= count; ++mark)
    icons.push_back({.pictures = {{16, 16, 1, PlainBitmap(16, 16, 1, static_cast<std::uint8_t>(mark))}}});
  return icons;
}

}  // namespace tarvik::support
