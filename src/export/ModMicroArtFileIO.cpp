#include "export/ModMicroArtFileIO.h"

#include <cstddef>
#include <cstdint>
#include <span>

#include "base/PixelCopy.h"
#include "base/WholeFile.h"
#include "export/FileFormats.h"
#include "export/ModPalette.h"
#include "export/PixelWriters.h"

namespace tarvik::ModMicroArtFileIO {
namespace {

using fileFormats::Depth;
using ModMicroArt::ColorClass;
using ModPalette::Palette256;

// The two fields of a directory entry whose meaning depends on the type of the file.
struct DirectoryFields {
  std::uint16_t type = 0;
  std::uint16_t planesOrHotX = 0;
  std::uint16_t bitsOrHotY = 0;
};

void WriteDirectory(const DirectoryFields& fields, const PixelCopy& image, const Depth& depth, ByteWriter& file) {
  file.U16(0);  // reserved
  file.U16(fields.type);
  file.U16(fileFormats::imageCount);

  file.U8(static_cast<std::uint8_t>(image.Width()));
  file.U8(static_cast<std::uint8_t>(image.Height()));
  file.U8(fileFormats::colorCount);
  file.U8(0);  // reserved
  file.U16(fields.planesOrHotX);
  file.U16(fields.bitsOrHotY);
  file.U32(fileFormats::infoHeaderBytes + fileFormats::PaletteBytes(depth) +
           fileFormats::DeclaredImageBytes(depth, image.Width(), image.Height()) +
           fileFormats::DeclaredMaskBytes(image.Width()));
  file.U32(fileFormats::directoryHeaderBytes + fileFormats::directoryEntryBytes);  // where the image starts
}

void WriteBitmapFileHeader(std::uint32_t fileSize, const Depth& depth, ByteWriter& file) {
  file.U16(fileFormats::bitmapType);
  file.U32(fileSize);
  file.U16(0);  // reserved
  file.U16(0);  // reserved
  file.U32(fileFormats::bitmapFileHeaderBytes + fileFormats::infoHeaderBytes +
           fileFormats::PaletteBytes(depth));  // where the pixels start
}

void WriteInfoHeader(int width, int height, const Depth& depth, std::uint32_t imageBytes, ByteWriter& file) {
  file.U32(fileFormats::infoHeaderBytes);
  file.I32(width);
  file.I32(height);
  file.U16(fileFormats::planes);
  file.U16(depth.bitsPerPixel);
  file.U32(fileFormats::noCompression);
  file.U32(imageBytes);
  file.I32(fileFormats::resolutionNotGiven);  // horizontal
  file.I32(fileFormats::resolutionNotGiven);  // vertical
  file.U32(fileFormats::allColors);           // used
  file.U32(fileFormats::allColors);           // important
}

void WritePalette(std::span<const Color> palette, ByteWriter& file) {
  for (const Color color : palette) {
    file.U8(BlueOf(color));
    file.U8(GreenOf(color));
    file.U8(RedOf(color));
    file.U8(0);  // reserved
  }
}

// Writes the palette of the class, then the pixels. `buildPalette` builds the palette of a 256-colour picture.
void WritePaletteAndPixels(const PixelCopy& pixels, ColorClass colors, Palette256 (*buildPalette)(const PixelCopy&),
                           ByteWriter& file) {
  switch (colors) {
    case ColorClass::Two:
      WritePalette(ModPalette::twoColors, file);
      Write1Bit(pixels, file);
      break;
    case ColorClass::Sixteen:
      WritePalette(ModPalette::sixteenColors, file);
      Write4Bit(pixels, file);
      break;
    case ColorClass::TwoHundredFiftySix: {
      const Palette256 palette = buildPalette(pixels);
      WritePalette(palette, file);
      Write8Bit(pixels, palette, file);
      break;
    }
    case ColorClass::TrueColor:
      Write24Bit(pixels, file);
      break;
  }
}

// An upper bound for the size of the file: headers, the largest palette, true-colour pixels and a mask.
std::size_t SizeBound(const PixelCopy& pixels) {
  constexpr std::size_t headersAndPalette = 2048;
  return headersAndPalette + pixels.Pixels().size() * 4;
}

bool WriteIconOrCursor(const PixelView& mask, const PixelView& image, ColorClass colors, const DirectoryFields& fields,
                       const std::string& path, FileSink& sink) {
  const PixelCopy imagePixels(image);
  const PixelCopy maskPixels(mask);
  const Depth& depth = fileFormats::DepthOf(colors);
  constexpr int imageAndMask = 2;
  constexpr std::uint32_t imageBytesNotGiven = 0;

  ByteWriter file(SizeBound(imagePixels));
  WriteDirectory(fields, imagePixels, depth, file);
  WriteInfoHeader(imagePixels.Width(), imagePixels.Height() * imageAndMask, depth, imageBytesNotGiven, file);
  WritePaletteAndPixels(imagePixels, colors, ModPalette::BuildIconPalette, file);
  Write1Bit(maskPixels, file);
  return WriteWholeFile(sink, path, file.Bytes(), ReadOnlyFile::Refused);
}

}  // namespace

bool WriteIcon(const PixelView& mask, const PixelView& image, ColorClass colors, const std::string& path,
               FileSink& sink) {
  const DirectoryFields fields{fileFormats::iconType, fileFormats::planes, fileFormats::DepthOf(colors).bitsPerPixel};
  return WriteIconOrCursor(mask, image, colors, fields, path, sink);
}

bool WriteCursor(const PixelView& mask, const PixelView& image, ColorClass colors, HotSpot hotSpot,
                 const std::string& path, FileSink& sink) {
  const DirectoryFields fields{fileFormats::cursorType, static_cast<std::uint16_t>(hotSpot.x),
                               static_cast<std::uint16_t>(hotSpot.y)};
  return WriteIconOrCursor(mask, image, colors, fields, path, sink);
}

bool WriteBitmap(const PixelView& composed, ColorClass colors, const std::string& path, FileSink& sink) {
  const PixelCopy pixels(composed);
  const Depth& depth = fileFormats::DepthOf(colors);
  ByteWriter file(SizeBound(pixels));
  WriteBitmapFileHeader(fileFormats::BitmapFileSize(depth, pixels.Width()), depth, file);
  WriteInfoHeader(pixels.Width(), pixels.Height(), depth,
                  fileFormats::DeclaredImageBytes(depth, pixels.Width(), pixels.Height()), file);
  WritePaletteAndPixels(pixels, colors, ModPalette::BuildBitmapPalette, file);
  return WriteWholeFile(sink, path, file.Bytes(), ReadOnlyFile::Refused);
}

ByteWriter TrueColorBitmap(const PixelView& composed) {
  const PixelCopy pixels(composed);
  const Depth& depth = fileFormats::DepthOf(ColorClass::TrueColor);
  const std::uint32_t imageBytes = fileFormats::DeclaredImageBytes(depth, pixels.Width(), pixels.Height());
  ByteWriter file(SizeBound(pixels));
  WriteBitmapFileHeader(fileFormats::bitmapFileHeaderBytes + fileFormats::infoHeaderBytes + imageBytes, depth, file);
  WriteInfoHeader(pixels.Width(), pixels.Height(), depth, imageBytes, file);
  WritePadded24Bit(pixels, file);
  return file;
}

}  // namespace tarvik::ModMicroArtFileIO
