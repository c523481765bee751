#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/FileSink.h"
#include "base/PixelView.h"

namespace tarvik {

// A picture held in memory.
class TestPicture : public PixelView {
 public:
  TestPicture(int width, int height, Color color = black)
      : width_(width),
        height_(height),
        colors_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), color) {}

  int Width() const override { return width_; }
  int Height() const override { return height_; }
  Color Pixel(int x, int y) const override { return colors_.at(At(x, y)); }
  void Set(int x, int y, Color color) { colors_.at(At(x, y)) = color; }

 private:
  std::size_t At(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  int width_;
  int height_;
  std::vector<Color> colors_;
};

// Red across, green down, blue along the diagonal: no two neighbours alike.
TestPicture Gradient(int size);
// Every pixel a colour by chance; the same seed gives the same picture everywhere.
TestPicture Noise(int size, std::uint32_t seed);
// Soft shapes with light, shadow and a little grain, as a photograph has.
TestPicture Photo(int size, std::uint32_t seed);
// As many different colours as asked for, in rows from the top-left corner, over and over; the colours are multiples
// of a step that keeps them apart.
TestPicture ManyColors(int size, int colors);

// Keeps what is written, and fails where it is told to.
class TestSink : public FileSink {
 public:
  enum class Step { None, Open, Write, Close };

  explicit TestSink(Step failing = Step::None) : failing_(failing) {}

  bool Open(const std::string& path, ReadOnlyFile readOnly) override {
    steps_ += readOnly == ReadOnlyFile::Replaced ? "open over read-only " : "open ";
    path_ = path;
    bytes_.clear();
    return failing_ != Step::Open;
  }
  bool Write(std::span<const std::byte> bytes) override {
    steps_ += "write ";
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    return failing_ != Step::Write;
  }
  bool Close() override {
    steps_ += "close ";
    return failing_ != Step::Close;
  }

  const std::string& Path() const { return path_; }
  const std::string& Steps() const { return steps_; }  // "open over read-only write close "
  const std::vector<std::byte>& Bytes() const { return bytes_; }

 private:
  Step failing_;
  std::string path_;
  std::string steps_;
  std::vector<std::byte> bytes_;
};

}  // namespace tarvik
