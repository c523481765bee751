// Passes random pictures, classes and sizes to the three writers and the classification. A picture need not be of the
// class in which it is written. No input may crash, and every file has the length that its format requires.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "FuzzInput.h"
#include "base/FileSink.h"
#include "export/ModMicroArt.h"
#include "export/ModMicroArtFileIO.h"

namespace tarvik {
namespace {

using ModMicroArt::BlackAndWhite;
using ModMicroArt::Classify;
using ModMicroArt::ColorClass;

// The fuzzer's bytes, one value at a time; zeros after the last.
class Input {
 public:
  explicit Input(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::uint8_t Byte() { return offset_ < bytes_.size() ? bytes_[offset_++] : std::uint8_t{0}; }
  std::span<const std::uint8_t> Rest() const { return bytes_.subspan(offset_); }

 private:
  std::span<const std::uint8_t> bytes_;
  std::size_t offset_ = 0;
};

// A picture whose pixels are read from the bytes, three per colour, from `start` on, repeatedly.
class BytePicture final : public PixelView {
 public:
  BytePicture(int size, std::span<const std::uint8_t> bytes, std::size_t start)
      : size_(size), bytes_(bytes), start_(start) {}

  int Width() const override { return size_; }
  int Height() const override { return size_; }
  Color Pixel(int x, int y) const override {
    if (bytes_.empty()) return black;
    const std::size_t number =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(size_) + static_cast<std::size_t>(x);
    const auto at = [&](std::size_t part) { return Color{bytes_[(start_ + number * 3 + part) % bytes_.size()]}; };
    return at(0) << 16U | at(1) << 8U | at(2);
  }

 private:
  int size_;
  std::span<const std::uint8_t> bytes_;
  std::size_t start_;
};

// Counts bytes, and fails at one step if requested.
class CountingSink final : public FileSink {
 public:
  explicit CountingSink(int failingStep) : failingStep_(failingStep) {}
  bool Open(const std::string&, ReadOnlyFile) override { return Step(); }
  bool Write(std::span<const std::byte> bytes) override {
    length += bytes.size();
    return Step();
  }
  bool Close() override { return Step(); }

  std::size_t length = 0;
  int steps = 0;

 private:
  bool Step() { return steps++ != failingStep_; }
  int failingStep_;
};

std::size_t Rows1Bit(std::size_t size) {
  return ((size + 7) / 8 + (size == 32 ? 0U : 2U)) * size;
}

std::size_t PaletteAndPixels(ColorClass colors, std::size_t size) {
  switch (colors) {
    case ColorClass::Two:
      return 8 + Rows1Bit(size);
    case ColorClass::Sixteen:
      return 64 + (size + 1) / 2 * size;
    case ColorClass::TwoHundredFiftySix:
      return 1024 + size * size;
    default:
      return size * size * 3;
  }
}

// A writer must return true exactly if no step failed, and must then have written that many bytes.
void RequireWritten(bool written, const CountingSink& sink, int failingStep, std::size_t length) {
  const bool failed = failingStep >= 0 && failingStep < sink.steps;
  Require(written != failed, "a writer says no where a step failed, and nowhere else");
  if (written) Require(sink.length == length, "a file has the length of its format");
}

void WriteAll(Input& input) {
  constexpr std::array<int, 8> sizes{16, 32, 48, 64, 1, 7, 33, 72};
  constexpr std::array<ColorClass, 4> classes{ColorClass::Two, ColorClass::Sixteen, ColorClass::TwoHundredFiftySix,
                                              ColorClass::TrueColor};
  const int size = sizes[input.Byte() % sizes.size()];
  const std::uint8_t choice = input.Byte();
  const int failingStep = input.Byte() - 128;  // mostly no failure
  const ModMicroArtFileIO::HotSpot hotSpot{input.Byte() - 128, std::int64_t{input.Byte()} * 128};
  const BytePicture image(size, input.Rest(), 0);
  const BytePicture mask(size, input.Rest(), 1);

  const ColorClass asIcon = Classify(image, BlackAndWhite::InFixedSlots);
  const ColorClass asBitmap = Classify(image, BlackAndWhite::InOrder);
  const bool wrongClass = choice < 128;
  const ColorClass iconClass = wrongClass ? classes[choice % classes.size()] : asIcon;
  const ColorClass bitmapClass = wrongClass ? classes[choice % classes.size()] : asBitmap;
  const auto side = static_cast<std::size_t>(size);

  CountingSink icon(failingStep);
  RequireWritten(ModMicroArtFileIO::WriteIcon(mask, image, iconClass, "a", icon), icon, failingStep,
                 62 + PaletteAndPixels(iconClass, side) + Rows1Bit(side));
  CountingSink cursor(failingStep);
  RequireWritten(ModMicroArtFileIO::WriteCursor(mask, image, iconClass, hotSpot, "a", cursor), cursor, failingStep,
                 62 + PaletteAndPixels(iconClass, side) + Rows1Bit(side));
  CountingSink bitmap(failingStep);
  RequireWritten(ModMicroArtFileIO::WriteBitmap(image, bitmapClass, "a", bitmap), bitmap, failingStep,
                 54 + PaletteAndPixels(bitmapClass, side));
  Require(ModMicroArtFileIO::TrueColorBitmap(image).Bytes().size() == 54 + (side * 3 + 3) / 4 * 4 * side,
          "a bitmap for an encoder has the length of its format");
}

}  // namespace
}  // namespace tarvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tarvik::Input input(std::span(data, size));
  tarvik::WriteAll(input);
  return 0;
}
