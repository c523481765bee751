// The cost of writing pictures as JPEG and GIF files, compared with the bare calls of the two libraries on the same
// pixels. Both make the same files; the bare GIF calls get the picture's colours and indices precomputed.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <span>
#include <string>
#include <vector>

#include <gif_lib.h>
#include <jpeglib.h>

#include "Measure.h"
#include "OutputFolder.h"
#include "encoders/GifEncoder.h"
#include "encoders/JpegEncoder.h"
#include "platform/DiskFile.h"

namespace tarvik::bench {
namespace {

constexpr int pictures = 4000;
constexpr int side = 32;
constexpr int rounds = 5;
constexpr int quality = 90;

// A picture like an icon: a shaded disc of some dozens of colours on white, different for each number.
class Disc final : public PixelView {
 public:
  explicit Disc(int number) {
    for (int at = 0; at < side * side; ++at) {
      const int x = at % side - side / 2;
      const int y = at / side - side / 2;
      const auto shade = static_cast<Color>((x * x + y * y) / 4 + number % 64);
      pixels_.push_back(x * x + y * y < side * side / 4 ? shade * 0x010203U % 0x1000000U : white);
    }
  }
  int Width() const override { return side; }
  int Height() const override { return side; }
  Color Pixel(int x, int y) const override { return pixels_[static_cast<std::size_t>(y * side + x)]; }
  void CopyPixels(std::span<Color> pixels) const override { std::ranges::copy(pixels_, pixels.begin()); }
  const std::vector<Color>& Pixels() const { return pixels_; }

 private:
  std::vector<Color> pixels_;
};

std::vector<JSAMPLE> SamplesOf(const Disc& disc) {
  std::vector<JSAMPLE> samples;
  for (const Color color : disc.Pixels()) samples.insert(samples.end(), {RedOf(color), GreenOf(color), BlueOf(color)});
  return samples;
}

void WriteBareJpeg(std::vector<JSAMPLE>& samples, const std::string& path) {
  jpeg_compress_struct info{};
  jpeg_error_mgr errors{};
  info.err = jpeg_std_error(&errors);
  jpeg_create_compress(&info);
  unsigned char* bytes = nullptr;
  unsigned long length = 0;
  jpeg_mem_dest(&info, &bytes, &length);
  info.image_width = side;
  info.image_height = side;
  info.input_components = 3;
  info.in_color_space = JCS_RGB;
  jpeg_set_defaults(&info);
  info.optimize_coding = TRUE;
  jpeg_set_quality(&info, quality, TRUE);
  info.comp_info[0].h_samp_factor = 1;
  info.comp_info[0].v_samp_factor = 1;
  jpeg_start_compress(&info, TRUE);
  for (int y = 0; y < side; ++y) {
    JSAMPROW row = &samples[static_cast<std::size_t>(y * side * 3)];
    jpeg_write_scanlines(&info, &row, 1);
  }
  jpeg_finish_compress(&info);
  OutputFolder::Write(path, std::as_bytes(std::span(bytes, length)));
  jpeg_destroy_compress(&info);
  std::free(bytes);
}

// A picture by its colours and the index of each pixel.
struct Indexed {
  explicit Indexed(const Disc& disc) {
    std::map<Color, GifByteType> known;
    for (const Color color : disc.Pixels()) {
      const auto [entry, isNew] = known.try_emplace(color, static_cast<GifByteType>(known.size()));
      if (isNew) colors.push_back({RedOf(color), GreenOf(color), BlueOf(color)});
      indices.push_back(entry->second);
    }
    colors.resize(256);
  }
  std::vector<GifColorType> colors;
  std::vector<GifByteType> indices;
};

void WriteBareGif(Indexed& picture, const std::string& path) {
  std::vector<GifByteType> bytes;
  int error = 0;
  GifFileType* const file = EGifOpen(
      &bytes,
      [](GifFileType* gif, const GifByteType* data, int length) {
        auto& all = *static_cast<std::vector<GifByteType>*>(gif->UserData);
        all.insert(all.end(), data, data + length);
        return length;
      },
      &error);
  ColorMapObject* const colors = GifMakeMapObject(256, picture.colors.data());
  EGifPutScreenDesc(file, side, side, 8, 0, colors);
  EGifPutImageDesc(file, 0, 0, side, side, false, nullptr);
  EGifPutLine(file, picture.indices.data(), side * side);
  GifFreeMapObject(colors);
  EGifCloseFile(file, &error);
  OutputFolder::Write(path, std::as_bytes(std::span(bytes)));
}

// Two ways to write every picture, each to the file with the number that it is called with.
void CompareWays(const support::TemporaryFolder& folder, const std::string& format,
                 const std::function<void(int, const std::string&)>& bare,
                 const std::function<bool(int, const std::string&)>& ours) {
  const OutputFolder bareOutput(folder, "bare " + format);
  const OutputFolder output(folder, format);
  const auto writeBare = [&] {
    for (int number = 0; number < pictures; ++number) bare(number, bareOutput.File(number));
  };
  const auto write = [&] {
    for (int number = 0; number < pictures; ++number) {
      if (!ours(number, output.File(number))) std::printf("picture %d is not written\n", number);
    }
  };
  Compare("4,000 pictures of 32 pixels as " + format,
          {{.name = "bare library calls", .run = writeBare, .prepare = [&] { bareOutput.Empty(); }},
           {.name = "encoder", .run = write, .prepare = [&] { output.Empty(); }}},
          rounds);
}

}  // namespace
}  // namespace tarvik::bench

int main() {
  using namespace tarvik;
  using namespace tarvik::bench;
  const support::TemporaryFolder folder;
  std::vector<Disc> discs;
  std::vector<std::vector<JSAMPLE>> samples;
  std::vector<Indexed> indexed;
  for (int number = 0; number < pictures; ++number) {
    discs.emplace_back(number);
    samples.push_back(SamplesOf(discs.back()));
    indexed.emplace_back(discs.back());
  }
  const auto at = [](int number) { return static_cast<std::size_t>(number); };
  DiskFile file;
  JpegEncoder jpeg(file);
  jpeg.SetQuality(quality);
  CompareWays(
      folder, "JPEG", [&](int number, const std::string& path) { WriteBareJpeg(samples[at(number)], path); },
      [&](int number, const std::string& path) {
        jpeg.TakePicture(discs[at(number)]);
        return jpeg.WriteFile(path);
      });
  GifEncoder gif(file);
  CompareWays(
      folder, "GIF", [&](int number, const std::string& path) { WriteBareGif(indexed[at(number)], path); },
      [&](int number, const std::string& path) { return gif.WriteFile(discs[at(number)], path, {}); });
  return 0;
}
