#include "Decoders.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <memory>

#include <gif_lib.h>
#include <jpeglib.h>

namespace tarvik {
namespace {

using support::TestRaster;

// The bytes of a file from an offset on. Reading past the end returns zeros and is recorded.
class Reader {
 public:
  explicit Reader(std::span<const std::byte> file) : file_(file) {}

  int Byte() {
    if (at_ < file_.size()) return std::to_integer<int>(file_[at_++]);
    past_ = true;
    return 0;
  }
  int Word() {
    const int high = Byte();
    return 256 * high + Byte();
  }
  std::string Text(int length) {
    std::string text;
    for (int i = 0; i < length; ++i) text.push_back(static_cast<char>(Byte()));
    return text;
  }
  void Skip(int length) { Text(length); }
  bool Past() const { return past_; }
  bool AtEnd() const { return at_ == file_.size(); }

  // The marker that follows a scan's data, in which a byte 0xFF is followed by 0.
  int MarkerAfterData() {
    int last = Byte();
    while (!past_) {
      const int next = Byte();
      if (last == 0xFF && next != 0) return next;
      last = next;
    }
    return 0;
  }

 private:
  std::span<const std::byte> file_;
  std::size_t at_ = 0;
  bool past_ = false;
};

void ReadTables(Reader& reader, int length, JpegMarkers& markers) {
  for (; length > 0; length -= 65) {
    std::array<int, 64>& table = markers.tables[reader.Byte()];
    for (int& entry : table) entry = reader.Byte();
  }
}

void ReadFrame(Reader& reader, int marker, JpegMarkers& markers) {
  markers.frame = marker;
  reader.Skip(1);
  markers.height = reader.Word();
  markers.width = reader.Word();
  markers.components.resize(static_cast<std::size_t>(reader.Byte()));
  for (JpegMarkers::Component& component : markers.components) {
    reader.Skip(1);
    const int factors = reader.Byte();
    component = {factors / 16, factors % 16, reader.Byte()};
  }
}

// Errors of the library's reader, and its warnings: both end the decoding.
struct DecodeErrors {
  jpeg_error_mgr manager{};
  std::jmp_buf back{};
};

void StopDecoding(j_common_ptr info) {
  std::longjmp(static_cast<DecodeErrors*>(info->client_data)->back, 1);
}

bool DecodeInto(jpeg_decompress_struct& info, DecodeErrors& errors, std::span<const std::byte> file,
                std::vector<JSAMPLE>& samples) {
  info.err = jpeg_std_error(&errors.manager);
  errors.manager.error_exit = StopDecoding;
  errors.manager.emit_message = [](j_common_ptr common, int level) {
    if (level < 0) StopDecoding(common);
  };
  info.client_data = &errors;
  if (setjmp(errors.back) != 0) return false;
  jpeg_CreateDecompress(&info, JPEG_LIB_VERSION, sizeof info);
  jpeg_mem_src(&info, static_cast<const unsigned char*>(static_cast<const void*>(file.data())),
               static_cast<unsigned long>(file.size()));
  jpeg_read_header(&info, TRUE);
  info.out_color_space = JCS_RGB;
  jpeg_start_decompress(&info);
  samples.resize(std::size_t{3} * info.output_width * info.output_height);
  while (info.output_scanline < info.output_height) {
    JSAMPROW row = &samples[std::size_t{3} * info.output_width * info.output_scanline];
    jpeg_read_scanlines(&info, &row, 1);
  }
  jpeg_finish_decompress(&info);
  return true;
}

struct CloseGif {
  void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

int ReadGif(GifFileType* gif, GifByteType* target, int length) {
  auto& rest = *static_cast<std::span<const std::byte>*>(gif->UserData);
  const std::size_t count = std::min(rest.size(), static_cast<std::size_t>(length));
  std::ranges::transform(rest.first(count), target, [](std::byte byte) { return std::to_integer<GifByteType>(byte); });
  rest = rest.subspan(count);
  return static_cast<int>(count);
}

}  // namespace

std::optional<JpegMarkers> ReadJpegMarkers(std::span<const std::byte> file) {
  Reader reader(file);
  JpegMarkers markers;
  if (reader.Word() != 0xFFD8) return std::nullopt;
  int marker = reader.Byte() == 0xFF ? reader.Byte() : 0;
  while (marker != 0xD9) {
    const int length = reader.Word() - 2;
    if (reader.Past() || marker == 0 || length < 0) return std::nullopt;
    if (marker == 0xDA) {
      markers.componentsOfScans.push_back(reader.Byte());
      reader.Skip(length - 1);
      marker = reader.MarkerAfterData();
      continue;
    }
    if (marker == 0xDB) {
      ReadTables(reader, length, markers);
    } else if (marker == 0xFE) {
      markers.comments.push_back(reader.Text(length));
    } else if (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4) {
      ReadFrame(reader, marker, markers);
    } else {
      reader.Skip(length);
    }
    marker = reader.Byte() == 0xFF ? reader.Byte() : 0;
  }
  return reader.AtEnd() ? std::optional(markers) : std::nullopt;
}

std::optional<TestRaster> DecodeJpeg(std::span<const std::byte> file) {
  jpeg_decompress_struct info{};
  DecodeErrors errors;
  std::vector<JSAMPLE> samples;
  std::optional<TestRaster> picture;
  if (DecodeInto(info, errors, file, samples)) {
    picture.emplace(static_cast<int>(info.output_width), static_cast<int>(info.output_height));
    std::size_t at = 0;
    for (int y = 0; y < picture->Height(); ++y)
      for (int x = 0; x < picture->Width(); ++x, at += 3)
        picture->Set(x, y, samples[at] + 256U * samples[at + 1] + 65536U * samples[at + 2]);
  }
  jpeg_destroy_decompress(&info);
  return picture;
}

std::optional<GifContent> DecodeGif(std::span<const std::byte> file) {
  std::span<const std::byte> rest = file;
  const std::unique_ptr<GifFileType, CloseGif> gif(DGifOpen(&rest, ReadGif, nullptr));
  if (gif == nullptr || DGifSlurp(gif.get()) != GIF_OK || gif->ImageCount != 1 || !rest.empty()) return std::nullopt;
  const SavedImage& image = gif->SavedImages[0];
  const GifImageDesc& descriptor = image.ImageDesc;
  const bool fillsScreen = descriptor.Left == 0 && descriptor.Top == 0 && descriptor.Width == gif->SWidth &&
                           descriptor.Height == gif->SHeight && descriptor.ColorMap == nullptr &&
                           gif->SColorMap != nullptr;
  if (!fillsScreen) return std::nullopt;
  GifContent content;
  // The library always reports 87a for a file that is read through a callback.
  for (const std::byte byte : file.subspan(3, 3)) content.version.push_back(static_cast<char>(byte));
  content.width = descriptor.Width;
  content.height = descriptor.Height;
  for (const GifColorType& color :
       std::span(gif->SColorMap->Colors, static_cast<std::size_t>(gif->SColorMap->ColorCount)))
    content.palette.push_back(color.Red + 256U * color.Green + 65536U * color.Blue);
  const auto pixels = std::span(
      image.RasterBits, static_cast<std::size_t>(descriptor.Width) * static_cast<std::size_t>(descriptor.Height));
  content.pixels.assign(pixels.begin(), pixels.end());
  GraphicsControlBlock control{};
  if (DGifSavedExtensionToGCB(gif.get(), 0, &control) == GIF_OK && control.TransparentColor != NO_TRANSPARENT_COLOR)
    content.transparentIndex = control.TransparentColor;
  return content;
}

}  // namespace tarvik
