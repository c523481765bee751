#include "damaged_files/IntactFile.h"

#include <cstring>

namespace tarvik::support {
namespace {

constexpr std::size_t chunkStart = 8;  // name and size

bool IsNamed(const Bytes& file, std::size_t offset, const char* name) {
  return std::memcmp(&file[offset], name, 4) == 0;
}

std::uint32_t Number32(const Bytes& file, std::size_t offset) {
  std::uint32_t value = 0;
  std::memcpy(&value, &file[offset], sizeof value);
  return value;
}

void MarkChunks(IntactFileWriter& writer, std::vector<Field>& fields, const Bytes& file, std::size_t offset,
                std::size_t end) {
  while (offset + chunkStart <= end) {
    const std::size_t size = Number32(file, offset + 4);
    const std::size_t content = offset + chunkStart;
    fields.push_back({offset + 4, 4});
    if (IsNamed(file, offset, "RIFF") || IsNamed(file, offset, "LIST")) {
      MarkChunks(writer, fields, file, content + 4, content + size);
    } else if (IsNamed(file, offset, "icon")) {
      writer.MarkIconFile(content);
    } else {
      for (std::size_t number = content; number + 4 <= content + size; number += 4) fields.push_back({number, 4});
    }
    offset = content + size + size % 2;
  }
}

}  // namespace

void IntactFileWriter::Number(std::uint64_t value, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) file_.bytes.push_back(static_cast<std::byte>(value >> (8 * i)));
}

void IntactFileWriter::MarkedNumber(std::uint64_t value, std::size_t width) {
  Mark(Offset(), width);
  Number(value, width);
}

void IntactFileWriter::Branch(std::uint32_t value) {
  file_.branches.push_back({Offset(), 4});
  MarkedNumber(value, 4);
}

void IntactFileWriter::Append(const Bytes& bytes) {
  file_.bytes.insert(file_.bytes.end(), bytes.begin(), bytes.end());
}

void IntactFileWriter::MarkIconFile(std::size_t start) {
  constexpr std::size_t headerSize = 6;
  constexpr std::size_t entrySize = 16;
  Mark(start + 4, 2);
  const std::size_t count = NumberAt(start + 4, 2);
  for (std::size_t entry = start + headerSize; entry < start + headerSize + entrySize * count; entry += entrySize) {
    Mark(entry, 1);
    Mark(entry + 1, 1);
    Mark(entry + 6, 2);
    Mark(entry + 8, 4);
    Mark(entry + 12, 4);
    MarkPicture(start + NumberAt(entry + 12, 4));
  }
}

void IntactFileWriter::MarkPicture(std::size_t start) {
  constexpr std::uint32_t bitmapHeaderSize = 40;
  if (NumberAt(start, 4) == bitmapHeaderSize) {
    for (const std::size_t number : {0U, 4U, 8U, 16U, 20U, 32U, 36U}) Mark(start + number, 4);
    Mark(start + 12, 2);
    Mark(start + 14, 2);
  } else {
    // PNG, after its signature: the size of the header chunk, its name, width, height, bits; then the next chunk's
    // size.
    for (const std::size_t number : {8U, 16U, 20U, 33U}) Mark(start + number, 4);
    Mark(start + 24, 1);
  }
}

std::uint32_t IntactFileWriter::NumberAt(std::size_t offset, std::size_t width) const {
  std::uint32_t value = 0;
  std::memcpy(&value, &file_.bytes[offset], width);
  return value;
}

IntactFile IntactIconFile(const Bytes& file) {
  IntactFileWriter writer;
  writer.Append(file);
  writer.MarkIconFile(0);
  return writer.Take();
}

IntactFile IntactAnimation(const Bytes& file) {
  IntactFileWriter writer;
  writer.Append(file);
  std::vector<Field> chunkFields;
  MarkChunks(writer, chunkFields, file, 0, file.size());
  IntactFile intact = writer.Take();
  intact.fields.insert(intact.fields.end(), chunkFields.begin(), chunkFields.end());
  return intact;
}

}  // namespace tarvik::support
