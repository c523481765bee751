#include <algorithm>

#include "FuzzInput.h"
#include "search/icons/NewExecutable.h"

namespace tarvik {
namespace {

class FuzzedFile : public ByteSource {
 public:
  FuzzedFile(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  FileStamp Stamp() override { return {.size = size_}; }
  bool Read(std::uint64_t offset, std::span<std::byte> bytes) override {
    Require(offset <= size_ && bytes.size() <= size_ - offset, "no byte past the end is asked for");
    ++reads;
    bytesRead += bytes.size();
    std::copy_n(data_ + offset, bytes.size(), reinterpret_cast<std::uint8_t*>(bytes.data()));
    return true;
  }

  std::size_t reads = 0;
  std::size_t bytesRead = 0;

 private:
  const std::uint8_t* data_;
  std::size_t size_;
};

// Only complete pictures may be passed to the system.
void LookAtPictures(const NewExecutable& module, FuzzedFile& file) {
  for (int index = -1; index <= std::min(module.IconCount(), 50); ++index) {
    file.reads = 0;
    file.bytesRead = 0;
    const auto picture = module.Picture(file, index, {.width = 32, .height = 32, .bits = index % 33});
    Require(picture.empty() || HoldsPicture(picture), "a picture is whole");
    Require(picture.empty() || (index >= 0 && index < module.IconCount()), "only an icon has a picture");
    Require(file.reads <= 3 && file.bytesRead <= 6 + 6 + 14 * 65535 + maxPictureBytes, "little is read for an icon");
  }
}

}  // namespace
}  // namespace tarvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarvik;
  FuzzedFile file(data, size);
  const NewExecutable module(file, size);
  Require(file.reads <= 3 && file.bytesRead <= 64 + 64 + 65535, "the headers and the table are read once");
  Require(module.IconCount() >= 0 && module.IconCount() <= 65535 / 12, "each icon has an entry of 12 bytes");
  LookAtPictures(module, file);
  return 0;
}
