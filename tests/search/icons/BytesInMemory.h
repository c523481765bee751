#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "base/ByteSource.h"

namespace tarvik::testing {

// A file's bytes that fail the test if one is asked for that is not there, and count what is read.
class BytesInMemory final : public ByteSource {
 public:
  explicit BytesInMemory(std::vector<std::byte> bytes) : bytes_(std::move(bytes)) {}

  FileStamp Stamp() override { return {.size = bytes_.size(), .written = written}; }
  bool Read(std::uint64_t offset, std::span<std::byte> bytes) override {
    const bool isThere = offset <= bytes_.size() && bytes.size() <= bytes_.size() - offset;
    EXPECT_TRUE(isThere) << bytes.size() << " bytes at " << offset << " of " << bytes_.size();
    if (!isThere || readsBeforeItFails-- <= 0) return false;
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offset), bytes.size(), bytes.begin());
    bytesRead += bytes.size();
    return true;
  }

  std::uint64_t written = 0;
  int readsBeforeItFails = 1'000'000;
  std::size_t bytesRead = 0;

 private:
  std::vector<std::byte> bytes_;
};

}  // namespace tarvik::testing
