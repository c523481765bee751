#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/FileSink.h"
#include "base/PixelView.h"

namespace tarvik {

// How many samples one component of a JPEG image has for each of the coarsest: 1 to 4 across and down.
// A pair of zeros means that the component is absent.
struct SamplingFactors {
  int horizontal = 0;
  int vertical = 0;

  friend bool operator==(const SamplingFactors&, const SamplingFactors&) = default;
};

// Luminance first, then the two chroma components.
using JpegSampling = std::array<SamplingFactors, 3>;

// Writes pictures as baseline JPEG files. Quality, sampling and comment stay as they are set, for every file that
// follows; they start as quality 75, sampling 1 x 1 and no comment.
class JpegEncoder {
 public:
  // Files are written through the sink, which must outlive the encoder.
  explicit JpegEncoder(FileSink& sink) : sink_(sink) {}

  // 1 (smallest file) to 100 (best picture), on the scale of the Independent JPEG Group's library. Values outside
  // are taken as the nearer of the two.
  void SetQuality(int quality) { quality_ = quality; }
  // Either all three components are present or both chroma components are absent, which makes a picture of greys
  // with one component. WriteFile refuses any other sampling, and chroma that does not divide the luminance.
  void SetSampling(const JpegSampling& sampling) { sampling_ = sampling; }

  // The text (UTF-8) that goes into each file as its comment; a file has no comment where it is empty.
  const std::string& Comment() const { return comment_; }
  void SetComment(std::string comment) { comment_ = std::move(comment); }

  // Takes the picture to write. Its pixels are copied: the view need not live longer than the call.
  void TakePicture(const PixelView& picture);
  // Writes the picture to the path (UTF-8). False where there is no picture, where it cannot be encoded (a side over
  // 65,500 pixels, a sampling no file can have), and then no file is touched; and where the sink fails.
  bool WriteFile(const std::string& path);

 private:
  FileSink& sink_;
  int quality_ = 75;
  JpegSampling sampling_{{{1, 1}, {1, 1}, {1, 1}}};
  std::string comment_;
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint8_t> rgb_;  // row by row from the top, 3 bytes a pixel
};

}  // namespace tarvik
