#include <algorithm>

#include "FuzzInput.h"
#include "search/icons/AnimationHeader.h"

namespace tarvik {
namespace {

class FuzzedFile : public ByteSource {
 public:
  FuzzedFile(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  FileStamp Stamp() override { return {.size = size_}; }
  bool Read(std::uint64_t offset, std::span<std::byte> bytes) override {
    Require(offset <= size_ && bytes.size() <= size_ - offset, "no byte past the end is asked for");
    ++reads;
    std::copy_n(data_ + offset, bytes.size(), reinterpret_cast<std::uint8_t*>(bytes.data()));
    return true;
  }

  std::size_t reads = 0;

 private:
  const std::uint8_t* data_;
  std::size_t size_;
};

}  // namespace
}  // namespace tarvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tarvik::FuzzedFile file(data, size);
  const int steps = tarvik::InspectAnimation(file).maxSteps;
  tarvik::Require(steps >= 0, "steps are counted from zero");
  tarvik::Require(static_cast<std::size_t>(steps) <= size / 4, "each step takes four bytes or more");
  tarvik::Require(file.reads <= size / 4096 + 1, "each block is read once");
  return 0;
}
