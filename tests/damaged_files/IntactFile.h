#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/IconFiles.h"

namespace tarvik::support {

// A number in a file that states a count, a size or an offset.
struct Field {
  std::size_t offset;
  std::size_t width;  // bytes, little-endian
};

// An intact file with the fields that can be falsified.
struct IntactFile {
  Bytes bytes;
  std::vector<Field> fields;
  // Of a resource tree: the fields that refer to a directory, and the value that refers to each of its directories.
  std::vector<Field> branches = {};
  std::vector<std::uint32_t> directories = {};
};

// Appends numbers, little-endian, and records the marked ones as fields.
class IntactFileWriter {
 public:
  std::size_t Offset() const { return file_.bytes.size(); }
  void Number(std::uint64_t value, std::size_t width);
  void MarkedNumber(std::uint64_t value, std::size_t width);
  // Appends a field that refers to a directory of a resource tree.
  void Branch(std::uint32_t value);
  void Directory(std::uint32_t leadingValue) { file_.directories.push_back(leadingValue); }
  void Append(const Bytes& bytes);
  void PadTo(std::size_t offset) { file_.bytes.resize(offset); }
  // Marks the fields of the icons or the cursor from `start` on, in the format of an icon file, or of a bitmap in the
  // format of an icon resource.
  void MarkIconFile(std::size_t start);
  void MarkPicture(std::size_t start);
  IntactFile Take() { return std::move(file_); }

 private:
  std::uint32_t NumberAt(std::size_t offset, std::size_t width) const;
  void Mark(std::size_t offset, std::size_t width) { file_.fields.push_back({offset, width}); }

  IntactFile file_;
};

// An icon file or a cursor file with its fields.
IntactFile IntactIconFile(const Bytes& file);
// An animated cursor with its fields: the sizes of its chunks, its header, its sequence, and those of its pictures.
IntactFile IntactAnimation(const Bytes& file);

}  // namespace tarvik::support
