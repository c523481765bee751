#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvik {

// The expected content of a file, field by field; finds the first field in which a file differs.
class ExpectedFile {
 public:
  // The next field: a number of `width` bytes, low byte first. `offset` is its position in the format; the test fails
  // if the description has a gap or an overlap.
  void Number(const std::string& name, std::size_t offset, int width, std::uint32_t value);
  // The next field: these bytes.
  void Bytes(const std::string& name, const std::vector<std::uint8_t>& bytes);

  std::size_t Length() const { return length_; }

  // Empty for a file of exactly these fields; otherwise the first difference.
  std::string Difference(const std::vector<std::uint8_t>& file) const;

 private:
  struct Field {
    std::string name;
    std::size_t offset = 0;
    std::vector<std::uint8_t> bytes;
  };

  std::vector<Field> fields_;
  std::size_t length_ = 0;
};

}  // namespace tarvik
