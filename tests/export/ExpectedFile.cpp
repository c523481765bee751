#include "export/ExpectedFile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvik {

void ExpectedFile::Number(const std::string& name, std::size_t offset, int width, std::uint32_t value) {
  EXPECT_EQ(offset, length_) << "the description of " << name << " leaves a gap";
  std::vector<std::uint8_t> bytes;
  bytes.reserve(static_cast<std::size_t>(width));
  for (int index = 0; index < width; ++index) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * index) & 0xFFU));
  Bytes(name, bytes);
}

void ExpectedFile::Bytes(const std::string& name, const std::vector<std::uint8_t>& bytes) {
  fields_.push_back({name, length_, bytes});
  length_ += bytes.size();
}

std::string ExpectedFile::Difference(const std::vector<std::uint8_t>& file) const {
  for (const Field& field : fields_) {
    for (std::size_t index = 0; index < field.bytes.size(); ++index) {
      const std::size_t offset = field.offset + index;
      const std::string where = field.name + ", byte " + std::to_string(index) + ", offset " + std::to_string(offset);
      if (offset >= file.size()) return "the file ends before " + where;
      if (file[offset] != field.bytes[index]) {
        return where + ": expected " + std::to_string(field.bytes[index]) + ", found " + std::to_string(file[offset]);
      }
    }
  }
  if (file.size() > length_) return std::to_string(file.size() - length_) + " bytes after the last field";
  return {};
}

}  // namespace tarvik
