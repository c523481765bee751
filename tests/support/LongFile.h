#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "base/ByteSource.h"

namespace tarvik::support {

// A file of any size that needs no memory: zeros, except for its start.
class LongFile : public ByteSource {
 public:
  LongFile(std::uint64_t size, std::string start) : size_(size), start_(std::move(start)) {}

  FileStamp Stamp() override { return {.size = size_}; }
  bool Read(std::uint64_t offset, std::span<std::byte> bytes) override {
    if (offset > size_ || bytes.size() > size_ - offset) return false;
    bytesRead += bytes.size();
    std::ranges::fill(bytes, std::byte{0});
    if (offset >= start_.size()) return true;
    const auto count = std::min<std::uint64_t>(start_.size() - offset, bytes.size());
    std::copy_n(reinterpret_cast<const std::byte*>(start_.data()) + offset, count, bytes.begin());
    return true;
  }

  std::uint64_t bytesRead = 0;

 private:
  std::uint64_t size_;
  std::string start_;
};

}  // namespace tarvik::support
