#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "base/ByteSource.h"

namespace tarvik::support {

// A file's bytes; counts how many are read.
class BytesInMemory final : public ByteSource {
 public:
  // What fails the test: nothing, or a read beyond the end.
  enum class Strictness { None, OnlyWhatIsThere };

  explicit BytesInMemory(std::vector<std::byte> bytes, Strictness strictness = Strictness::OnlyWhatIsThere)
      : bytes_(std::move(bytes)), strictness_(strictness) {}

  FileStamp Stamp() override { return {.size = bytes_.size(), .written = written}; }
  bool Read(std::uint64_t offset, std::span<std::byte> bytes) override {
    ++reads;
    const bool isThere = offset <= bytes_.size() && bytes.size() <= bytes_.size() - offset;
    EXPECT_TRUE(isThere || strictness_ == Strictness::None)
        << bytes.size() << " bytes at " << offset << " of " << bytes_.size();
    if (!isThere || readsBeforeItFails-- <= 0) return false;
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offset), bytes.size(), bytes.begin());
    bytesRead += bytes.size();
    return true;
  }

  std::uint64_t written = 0;
  int readsBeforeItFails = 1'000'000;
  int reads = 0;
  std::size_t bytesRead = 0;

 private:
  std::vector<std::byte> bytes_;
  Strictness strictness_;
};

}  // namespace tarvik::support
