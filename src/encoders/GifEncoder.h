#pragma once

#include <string>

#include "base/FileSink.h"
#include "base/PixelView.h"

namespace tarvik {

// The colours of a GIF file: the 256 nearest to the picture's own, or the 216 of the web palette.
enum class GifPalette { BestQuality, Web };

struct GifSettings {
  bool transparent = false;
  // The transparent colour if `transparent` is set.
  Color transparentColor = black;
  GifPalette palette = GifPalette::BestQuality;
};

// Writes pictures as GIF files of one image.
class GifEncoder {
 public:
  // Files are written through the sink, which must outlive the encoder.
  explicit GifEncoder(FileSink& sink) : sink_(sink) {}

  // Writes the picture to the path (UTF-8). With the best palette a picture of at most 256 colours keeps them exactly.
  // Pixels of the transparent colour get an index of their own; if the picture has none, the file has no transparent
  // index. Returns false if a side is 0 or over 65,535 pixels, without touching a file, or if the sink fails.
  bool WriteFile(const PixelView& picture, const std::string& path, const GifSettings& settings);

 private:
  FileSink& sink_;
};

}  // namespace tarvik
