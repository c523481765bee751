#include "encoders/JpegEncoder.h"

#include <algorithm>
#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

#include <jpeglib.h>

#include "base/NonCopyable.h"
#include "base/PixelCopy.h"
#include "base/WholeFile.h"

namespace tarvik {
namespace {

constexpr int bytesOfPixel = 3;
// A segment's length is 16 bits wide and counts its own two bytes.
constexpr std::size_t maxComment = 65533;
// The most blocks in a unit of an interleaved scan (ITU-T T.81, B.2.3).
constexpr int maxBlocksInterleaved = 10;
constexpr int lastCoefficient = 63;

bool IsPresent(const SamplingFactors& factors) {
  return factors != SamplingFactors{};
}

bool IsGreyscale(const JpegSampling& sampling) {
  return !IsPresent(sampling[1]) && !IsPresent(sampling[2]);
}

int BlocksInterleaved(const JpegSampling& sampling) {
  // Factors above the bound are rejected by the library; here they must only not overflow.
  const auto bounded = [](int factor) { return std::clamp(factor, 0, MAX_SAMP_FACTOR + 1); };
  int blocks = 0;
  for (const SamplingFactors& factors : sampling) blocks += bounded(factors.horizontal) * bounded(factors.vertical);
  return blocks;
}

// The length of the next piece of a comment: as much as fits into one segment without splitting a UTF-8 character.
std::size_t CommentPiece(std::string_view rest) {
  if (rest.size() <= maxComment) return rest.size();
  const auto continues = [&](std::size_t at) { return (static_cast<unsigned char>(rest[at]) & 0xC0U) == 0x80U; };
  constexpr std::size_t maxCharacter = 4;
  std::size_t length = maxComment;
  while (length > maxComment - maxCharacter && continues(length)) --length;
  // Invalid UTF-8 has no boundary to respect.
  return continues(length) ? maxComment : length;
}

struct Picture {
  int width;
  int height;
  std::span<std::uint8_t> rgb;
};

// One run of the library, from the picture to the bytes of the file. The library reports an error through a callback
// that must not return: it jumps back to Run by longjmp. So nothing between the two may own anything with a destructor.
class Compression : NonCopyable {
 public:
  Compression(const Picture& picture, int quality, const JpegSampling& sampling, std::string_view comment)
      : picture_(picture), quality_(quality), sampling_(sampling), comment_(comment) {
    info_.err = jpeg_std_error(&errors_);
    errors_.error_exit = [](j_common_ptr info) { std::longjmp(Of(info).back_, 1); };
    errors_.output_message = [](j_common_ptr) {};
    info_.client_data = this;
  }
  ~Compression() {
    // If the library has replaced the buffer by a larger one, we own it only from here on.
    if (writesToMemory_) info_.dest->term_destination(&info_);
    jpeg_destroy_compress(&info_);
    std::free(file_);
  }

  // Returns true if the file is complete. Called once.
  bool Run() {
    if (setjmp(back_) != 0) return false;
    jpeg_CreateCompress(&info_, JPEG_LIB_VERSION, sizeof info_);
    jpeg_mem_dest(&info_, &file_, &fileSize_);
    writesToMemory_ = true;
    SetParameters();
    jpeg_start_compress(&info_, TRUE);
    WriteComment();
    for (int y = 0; y < picture_.height; ++y) {
      JSAMPROW row =
          &picture_.rgb[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture_.width) * bytesOfPixel];
      jpeg_write_scanlines(&info_, &row, 1);
    }
    jpeg_finish_compress(&info_);
    return true;
  }

  std::span<const std::byte> File() const { return std::as_bytes(std::span(file_, fileSize_)); }

 private:
  template <typename Info>
  static Compression& Of(Info info) {
    return *static_cast<Compression*>(info->client_data);
  }

  void SetParameters() {
    info_.image_width = static_cast<JDIMENSION>(picture_.width);
    info_.image_height = static_cast<JDIMENSION>(picture_.height);
    info_.input_components = bytesOfPixel;
    info_.in_color_space = JCS_RGB;
    jpeg_set_defaults(&info_);
    // Optimised Huffman tables save about a quarter of a small file.
    info_.optimize_coding = TRUE;
    if (IsGreyscale(sampling_)) jpeg_set_colorspace(&info_, JCS_GRAYSCALE);
    jpeg_set_quality(&info_, quality_, TRUE);
    for (int i = 0; i < info_.num_components; ++i) {
      info_.comp_info[i].h_samp_factor = sampling_[static_cast<std::size_t>(i)].horizontal;
      info_.comp_info[i].v_samp_factor = sampling_[static_cast<std::size_t>(i)].vertical;
    }
    if (!IsGreyscale(sampling_) && BlocksInterleaved(sampling_) > maxBlocksInterleaved) WriteScansApart();
  }

  // Writes each component in a scan of its own, which holds one block at a time whatever the factors are.
  void WriteScansApart() {
    for (int i = 0; i < info_.num_components; ++i) {
      jpeg_scan_info& scan = scans_[static_cast<std::size_t>(i)];
      scan.comps_in_scan = 1;
      scan.component_index[0] = i;
      scan.Se = lastCoefficient;
    }
    info_.scan_info = scans_.data();
    info_.num_scans = info_.num_components;
  }

  void WriteComment() {
    std::string_view rest = comment_;
    while (!rest.empty()) {
      const std::span<const std::byte> piece = std::as_bytes(std::span(rest.substr(0, CommentPiece(rest))));
      jpeg_write_m_header(&info_, JPEG_COM, static_cast<unsigned>(piece.size()));
      for (const std::byte byte : piece) jpeg_write_m_byte(&info_, std::to_integer<int>(byte));
      rest.remove_prefix(piece.size());
    }
  }

  Picture picture_;
  int quality_;
  JpegSampling sampling_;
  std::string_view comment_;
  jpeg_compress_struct info_{};
  jpeg_error_mgr errors_{};
  std::array<jpeg_scan_info, 3> scans_{};
  unsigned char* file_ = nullptr;  // allocated by the library, freed here
  unsigned long fileSize_ = 0;
  bool writesToMemory_ = false;
  std::jmp_buf back_{};
};

}  // namespace

void JpegEncoder::TakePicture(const PixelView& picture) {
  const PixelCopy copy(picture);
  width_ = copy.Width();
  height_ = copy.Height();
  rgb_.resize(copy.Pixels().size() * bytesOfPixel);
  auto sample = rgb_.begin();
  for (const Color color : copy.Pixels()) {
    *sample++ = RedOf(color);
    *sample++ = GreenOf(color);
    *sample++ = BlueOf(color);
  }
}

bool JpegEncoder::WriteFile(const std::string& path) {
  if (rgb_.empty()) return false;
  Compression compression({width_, height_, rgb_}, quality_, sampling_, comment_);
  return compression.Run() && WriteWholeFile(sink_, path, compression.File(), ReadOnlyFile::Replaced);
}

}  // namespace tarvik
