#include "export/CapturedFiles.h"

#include <gtest/gtest.h>

#include <array>

#include "base/FolderPath.h"
#include "export/FileFormats.h"
#include "export/SeenPixels.h"
#include "platform/DiskFile.h"
#include "platform/IconFiles.h"
#include "platform/Paths.h"
#include "search/icons/ShellIcons.h"

namespace tarvik::support {
namespace {

using ModMicroArt::BlackAndWhite;
using ModMicroArt::ColorClass;

Bytes OneIcon(const IconPicture& picture) {
  return IconFile({&picture, 1});
}

// A 24-bit picture in which each of the 512 opaque pixels has its own colour.
IconPicture ManyColors() {
  constexpr std::size_t headerBytes = 40;
  constexpr std::size_t rowBytes = 96;
  IconPicture picture = BitmapPicture(32, 24, black, black);
  for (std::size_t row = 16; row < 32; ++row) {  // rows are stored from the bottom up: these are the upper half
    for (std::size_t x = 0; x < 32; ++x) {
      const std::size_t offset = headerBytes + row * rowBytes + x * 3;
      picture.data[offset] = static_cast<std::byte>(x * 8);
      picture.data[offset + 1] = static_cast<std::byte>(row * 7);
      picture.data[offset + 2] = static_cast<std::byte>((x + row) * 3);
    }
  }
  return picture;
}

int BitsOf(ColorClass colors) {
  return fileFormats::DepthOf(colors).bitsPerPixel;
}

TestRaster CopyOf(const PixelView& view) {
  return {view.Width(), [&](int x, int y) { return Color{view.Pixel(x, y)}; }};
}

}  // namespace

std::vector<CapturedSource> MakeSources(const TemporaryFolder& folder) {
  std::vector<CapturedSource> sources;
  const auto add = [&](const std::string& name, const Bytes& file) {
    sources.push_back({.name = name, .entry = {.path = folder.MakeFile(name + ".ico", file), .index = 0}});
  };
  add("1-bit", OneIcon(BitmapPicture(32, 1, black, white)));
  add("4-bit", OneIcon(BitmapPicture(32, 4, 0x0000FF, 0xC0C0C0)));
  add("8-bit", OneIcon(BitmapPicture(32, 8, 0x2040C0, 0x30B010)));
  add("24-bit", OneIcon(ManyColors()));
  add("32-bit", OneIcon(BitmapPicture(32, 32, 0x4020C0, 0x10B030)));
  add("png", OneIcon(PngPicture(32, 0x8000FF, 0xFF8000)));
  constexpr std::array<Color, 6> steps{0x0000FF, 0x00FF00, 0xFF0000, 0x123456, 0xFF00FF, 0xFFFF00};
  const std::string animation = folder.MakeFile("steps.ani", AnimationFile(steps));
  sources.push_back({.name = "step-3", .entry = {.path = animation, .index = 3}});
  const std::string system = JoinPath(SystemFolder(), "shell32.dll");
  for (const int index : {0, 3, 12})
    sources.push_back({.name = "system-" + std::to_string(index), .entry = {.path = system, .index = index}});
  return sources;
}

Capture::Capture(const CapturedSource& source, int size) : surfaces_(size) {
  ShellIcons icons;
  EXPECT_TRUE(ModMicroArt::CaptureEntry(icons, source.entry, size, surfaces_.Clear())) << source.name;
  mask_ = CopyOf(surfaces_.Mask());
  image_ = CopyOf(surfaces_.Image());
  composed_ = CopyOf(surfaces_.Composed());
  iconClass_ = ModMicroArt::Classify(surfaces_.Image(), BlackAndWhite::InFixedSlots);
  bitmapClass_ = ModMicroArt::Classify(surfaces_.Composed(), BlackAndWhite::InOrder);
}

bool Capture::WriteIcon(const std::string& path) const {
  DiskFile file;
  return ModMicroArtFileIO::WriteIcon(surfaces_.Mask(), surfaces_.Image(), iconClass_, path, file);
}

bool Capture::WriteCursor(const std::string& path) const {
  DiskFile file;
  return ModMicroArtFileIO::WriteCursor(surfaces_.Mask(), surfaces_.Image(), iconClass_, HotSpot(), path, file);
}

bool Capture::WriteBitmap(const std::string& path) const {
  DiskFile file;
  return ModMicroArtFileIO::WriteBitmap(surfaces_.Composed(), bitmapClass_, path, file);
}

std::vector<Color> Capture::SeenImage() const {
  return tarvik::SeenImage(image_, mask_, BitsOf(iconClass_));
}

std::vector<bool> Capture::SeenTransparent() const {
  return tarvik::SeenTransparent(image_, mask_, BitsOf(iconClass_));
}

std::vector<Color> Capture::SeenBitmap() const {
  return tarvik::SeenBitmap(composed_, BitsOf(bitmapClass_));
}

}  // namespace tarvik::support
