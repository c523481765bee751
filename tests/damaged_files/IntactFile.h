#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/IconFiles.h"

namespace tarvik::support {

// A number in a file that says how many, how large or where.
struct Field {
  std::size_t place;
  std::size_t width;  // bytes, little-endian
};

// A file that is as it should be, and where it can be made to lie.
struct IntactFile {
  Bytes bytes;
  std::vector<Field> fields;
  // Of a resource tree: the fields that lead on to a directory, and what each of its directories is led to by.
  std::vector<Field> branches = {};
  std::vector<std::uint32_t> directories = {};
};

// Appends numbers, little-endian, and notes which of them are fields: the marked ones.
class IntactFileWriter {
 public:
  std::size_t Place() const { return file_.bytes.size(); }
  void Number(std::uint64_t value, std::size_t width);
  void Marked(std::uint64_t value, std::size_t width);
  // A field that leads on to a directory of a resource tree.
  void Branch(std::uint32_t value);
  void Directory(std::uint32_t leadingValue) { file_.directories.push_back(leadingValue); }
  void Append(const Bytes& bytes);
  void PadTo(std::size_t place) { file_.bytes.resize(place); }
  // The icons or the cursor that follow in the file as an icon file has them, or a bitmap as an icon resource has it.
  void MarkIconFile(std::size_t start);
  void MarkPicture(std::size_t start);
  IntactFile Take() { return std::move(file_); }

 private:
  std::uint32_t NumberAt(std::size_t place, std::size_t width) const;
  void Mark(std::size_t place, std::size_t width) { file_.fields.push_back({place, width}); }

  IntactFile file_;
};

// An icon file or a cursor file with its fields.
IntactFile IntactIconFile(const Bytes& file);
// An animated cursor with its fields: the sizes of its chunks, its header, its order, and those of its pictures.
IntactFile IntactAnimation(const Bytes& file);

}  // namespace tarvik::support
