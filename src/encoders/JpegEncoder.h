#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/FileSink.h"
#include "base/PixelView.h"

namespace tarvik {

// The sampling factors of one component of a JPEG image: samples per coarsest sample, 1 to 4, horizontally and
// vertically. A pair of zeros means that the component is absent.
struct SamplingFactors {
  int horizontal = 0;
  int vertical = 0;

  friend bool operator==(const SamplingFactors&, const SamplingFactors&) = default;
};

// Luminance first, then the two chroma components.
using JpegSampling = std::array<SamplingFactors, 3>;

// Writes pictures as baseline JPEG files. Quality, sampling and comment apply to every following file; the defaults are
// quality 75, sampling 1 x 1 and no comment.
class JpegEncoder {
 public:
  // Files are written through the sink, which must outlive the encoder.
  explicit JpegEncoder(FileSink& sink) : sink_(sink) {}

  // 1 (smallest file) to 100 (best picture), on the scale of the Independent JPEG Group's library. Values outside are
  // clamped.
  void SetQuality(int quality) { quality_ = quality; }
  // Either all three components are present, or both chroma components are absent, which makes a greyscale picture with
  // one component. WriteFile refuses any other sampling, and chroma factors that do not divide the luminance factors.
  void SetSampling(const JpegSampling& sampling) { sampling_ = sampling; }

  // The text (UTF-8) that is written into each file as its comment; if it is empty, a file has no comment.
  const std::string& Comment() const { return comment_; }
  void SetComment(std::string comment) { comment_ = std::move(comment); }

  // Sets the picture to write. Its pixels are copied: the view need not outlive the call.
  void TakePicture(const PixelView& picture);
  // Writes the picture to the path (UTF-8). Returns false, without touching a file, if there is no picture or it cannot
  // be encoded (a side over 65,500 pixels, a sampling that is not allowed), or if the sink fails.
  bool WriteFile(const std::string& path);

 private:
  FileSink& sink_;
  int quality_ = 75;
  JpegSampling sampling_{{{1, 1}, {1, 1}, {1, 1}}};
  std::string comment_;
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint8_t> rgb_;  // row by row from the top, 3 bytes per pixel
};

}  // namespace tarvik
