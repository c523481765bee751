// Passes random pictures and options to both encoders. All that they write must decode: a GIF file to a picture with
// the right transparent pixels, and to exactly the same picture if it has at most 256 colours; a JPEG file to a picture
// of the same size. If they refuse a picture, they must not have opened the file.
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

#include "FuzzInput.h"
#include "encoders/Decoders.h"
#include "encoders/GifEncoder.h"
#include "encoders/JpegEncoder.h"
#include "encoders/JpegOptions.h"
#include "support/MemorySink.h"
#include "support/TestPictures.h"

namespace tarvik {
namespace {

using support::MemorySink;
using support::TestRaster;

// The input, byte by byte; zeros after its end.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  int Byte() { return at_ < size_ ? data_[at_++] : 0; }
  Color AnyColor() {
    const int red = Byte();
    const int green = Byte();
    return static_cast<Color>(red + 256 * green + 65536 * Byte());
  }
  std::size_t CountLeft() const { return size_ - at_; }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

// A picture of up to 24 x 24 pixels, enough for more colours than a palette holds. After the input's end each colour is
// the last one plus a fixed step, so that short inputs make pictures of many colours too.
TestRaster MakePicture(Input& input) {
  TestRaster picture(input.Byte() % 25, input.Byte() % 25);
  const Color drift = input.AnyColor();
  Color color = 0;
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      color = input.CountLeft() > 0 ? input.AnyColor() : (color + drift) % 0x1000000;
      picture.Set(x, y, color);
    }
  }
  return picture;
}

void FuzzGif(const TestRaster& picture, const GifSettings& settings) {
  MemorySink sink;
  if (!GifEncoder(sink).WriteFile(picture, "fuzz.gif", settings)) {
    Require(picture.Width() == 0 || picture.Height() == 0, "every picture with pixels is written");
    Require(sink.steps.empty(), "a refused picture leaves the file alone");
    return;
  }
  const auto content = DecodeGif(sink.Bytes());
  Require(content.has_value(), "the GIF file decodes");
  Require(content->width == picture.Width() && content->height == picture.Height(),
          "the GIF file has the picture's size");
  std::set<Color> colors;
  bool same = true;
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      const Color color = picture.Pixel(x, y);
      colors.insert(color);
      same = same && content->Pixel(x, y) == color;
      const bool seeThrough = settings.transparent && color == settings.transparentColor;
      Require((content->Index(x, y) == content->transparentIndex) == seeThrough,
              "the pixels of the transparent colour, and no others, are see-through");
    }
  }
  Require(same || colors.size() > 256 || settings.palette == GifPalette::Web, "at most 256 colours are kept exactly");
}

void FuzzJpeg(const TestRaster& picture, Input& input) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  encoder.SetQuality(input.Byte() - 20);
  const int choice = input.Byte();
  JpegSampling sampling = SamplingOf(subSamplings[static_cast<std::size_t>(choice) % 16], choice >= 192);
  const bool offered = choice % 32 < 16;
  // Beyond what the dialog offers: random factors, most of which are invalid.
  if (!offered)
    for (SamplingFactors& factors : sampling) factors = {input.Byte() % 6, input.Byte() % 6};
  encoder.SetSampling(sampling);
  std::string comment;
  for (int i = input.Byte(); i > 0; --i) comment.push_back(static_cast<char>(input.Byte()));
  if (choice % 64 == 1 && !comment.empty())
    while (comment.size() < 70000) comment += comment;
  encoder.SetComment(comment);
  encoder.TakePicture(picture);
  if (!encoder.WriteFile("fuzz.jpg")) {
    Require(!offered || picture.Width() == 0 || picture.Height() == 0, "every picture with pixels is written");
    Require(sink.steps.empty(), "a refused picture leaves the file alone");
    return;
  }
  const auto markers = ReadJpegMarkers(sink.Bytes());
  Require(markers.has_value(), "the JPEG file is whole");
  std::string found;
  for (const std::string& piece : markers->comments) found += piece;
  Require(found == comment, "the comment is the one given");
  const auto decoded = DecodeJpeg(sink.Bytes());
  Require(decoded.has_value(), "the JPEG file decodes");
  Require(decoded->Width() == picture.Width() && decoded->Height() == picture.Height(),
          "the JPEG file has the picture's size");
}

}  // namespace
}  // namespace tarvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarvik;  // NOLINT(google-build-using-namespace)
  Input input(data, size);
  const int options = input.Byte();
  const Color other = input.AnyColor();
  Input jpegOptions = input;
  const TestRaster picture = MakePicture(input);
  const bool hasCorner = picture.Width() > 0 && picture.Height() > 0;
  FuzzGif(picture, {.transparent = options % 2 == 1,
                    .transparentColor = hasCorner && options % 8 < 4 ? picture.Pixel(0, 0) : other,
                    .palette = options % 4 < 2 ? GifPalette::BestQuality : GifPalette::Web});
  FuzzJpeg(picture, jpegOptions);
  return 0;
}
