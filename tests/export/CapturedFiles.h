#pragma once

#include <string>
#include <vector>

#include "export/IconSurfaces.h"
#include "export/ModMicroArtFileIO.h"
#include "platform/TemporaryFolder.h"
#include "search/icons/IconList.h"
#include "support/TestRaster.h"

namespace tarvik::support {

// An icon to capture, and a name for the files written from it.
struct CapturedSource {
  std::string name;
  IconListEntry entry;
};

// Icons of every kind, made in the folder: of each depth, as PNG, a step of an animation, one with too many colours for
// a palette, and some of the system's own.
std::vector<CapturedSource> MakeSources(const TemporaryFolder& folder);

// One icon as the program captures, classifies and writes it.
class Capture {
 public:
  // `size` in pixels. The test fails if the icon cannot be captured.
  Capture(const CapturedSource& source, int size);

  int Size() const { return image_.Width(); }
  const TestRaster& Mask() const { return mask_; }
  const TestRaster& Image() const { return image_; }
  const TestRaster& Composed() const { return composed_; }
  ModMicroArt::ColorClass IconClass() const { return iconClass_; }
  ModMicroArt::ColorClass BitmapClass() const { return bitmapClass_; }
  // Different for each size, and not in the middle.
  ModMicroArtFileIO::HotSpot HotSpot() const { return {Size() / 2 - 1, Size() / 4}; }

  // Each writes a file on disk and returns the writer's result.
  bool WriteIcon(const std::string& path) const;
  bool WriteCursor(const std::string& path) const;
  bool WriteBitmap(const std::string& path) const;

  // The pixels that a reader gets from the files: those of the surfaces, except for the files whose format deliberately
  // differs.
  std::vector<Color> SeenImage() const;
  std::vector<bool> SeenTransparent() const;
  std::vector<Color> SeenBitmap() const;

 private:
  IconSurfaces surfaces_;
  TestRaster mask_{1, 1};
  TestRaster image_{1, 1};
  TestRaster composed_{1, 1};
  ModMicroArt::ColorClass iconClass_{};
  ModMicroArt::ColorClass bitmapClass_{};
};

}  // namespace tarvik::support
