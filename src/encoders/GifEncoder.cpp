#include "encoders/GifEncoder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <gif_lib.h>

#include "base/WholeFile.h"
#include "encoders/IndexedPicture.h"

namespace tarvik {
namespace {

constexpr int maxSide = 65535;
constexpr int bitsOfChannel = 8;

// The library's write callback: appends to the vector that the file carries. No exception may pass through it.
int AppendToFile(GifFileType* gif, const GifByteType* bytes, int length) noexcept {
  try {
    const auto added = std::as_bytes(std::span(bytes, static_cast<std::size_t>(length)));
    auto& file = *static_cast<std::vector<std::byte>*>(gif->UserData);
    file.insert(file.end(), added.begin(), added.end());
    return length;
  } catch (const std::exception&) {
    return 0;
  }
}

struct CloseGif {
  void operator()(GifFileType* gif) const { EGifCloseFile(gif, nullptr); }
};
struct FreeColorMap {
  void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using GifOwner = std::unique_ptr<GifFileType, CloseGif>;
using ColorMapOwner = std::unique_ptr<ColorMapObject, FreeColorMap>;

// The number of entries of a colour map is a power of two, at least 2; those past the palette stay black.
ColorMapOwner MakeColorMap(const std::vector<Color>& palette) {
  const std::size_t entries = std::bit_ceil(std::max<std::size_t>(palette.size(), 2));
  ColorMapOwner map(GifMakeMapObject(static_cast<int>(entries), nullptr));
  if (map == nullptr) return map;
  std::ranges::transform(palette, map->Colors, [](Color color) {
    return GifColorType{.Red = RedOf(color), .Green = GreenOf(color), .Blue = BlueOf(color)};
  });
  return map;
}

bool PutTransparency(GifFileType& gif, std::optional<std::uint8_t> index) {
  if (!index) return true;
  constexpr int lengthOfBlock = 4;
  const GraphicsControlBlock control{
      .DisposalMode = DISPOSAL_UNSPECIFIED, .UserInputFlag = false, .DelayTime = 0, .TransparentColor = *index};
  std::array<GifByteType, lengthOfBlock> block{};
  EGifGCBToExtension(&control, block.data());
  return EGifPutExtension(&gif, GRAPHICS_EXT_FUNC_CODE, lengthOfBlock, block.data()) == GIF_OK;
}

// The whole file, or nothing if the library failed.
std::optional<std::vector<std::byte>> Encode(IndexedPicture& picture) {
  std::vector<std::byte> file;
  GifOwner gif(EGifOpen(&file, AppendToFile, nullptr));
  const ColorMapOwner map = MakeColorMap(picture.palette);
  if (gif == nullptr || map == nullptr) return std::nullopt;
  EGifSetGifVersion(gif.get(), picture.transparentIndex.has_value());
  const bool begun =
      EGifPutScreenDesc(gif.get(), picture.width, picture.height, bitsOfChannel, 0, map.get()) == GIF_OK &&
      PutTransparency(*gif, picture.transparentIndex) &&
      EGifPutImageDesc(gif.get(), 0, 0, picture.width, picture.height, false, nullptr) == GIF_OK;
  if (!begun) return std::nullopt;
  for (int y = 0; y < picture.height; ++y) {
    std::uint8_t* row = &picture.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width)];
    if (EGifPutLine(gif.get(), row, picture.width) != GIF_OK) return std::nullopt;
  }
  // Closing the file writes its end.
  if (EGifCloseFile(gif.release(), nullptr) != GIF_OK) return std::nullopt;
  return file;
}

bool FitsHeader(int side) {
  return side >= 1 && side <= maxSide;
}

}  // namespace

bool GifEncoder::WriteFile(const PixelView& picture, const std::string& path, const GifSettings& settings) {
  if (!FitsHeader(picture.Width()) || !FitsHeader(picture.Height())) return false;
  const std::optional<Color> transparent =
      settings.transparent ? std::optional(settings.transparentColor) : std::nullopt;
  IndexedPicture indexed = settings.palette == GifPalette::Web ? IndexByWebPalette(picture, transparent)
                                                               : IndexByBestPalette(picture, transparent);
  const auto file = Encode(indexed);
  return file && WriteWholeFile(sink_, path, *file, ReadOnlyFile::Replaced);
}

}  // namespace tarvik
