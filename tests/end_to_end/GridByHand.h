#pragma once

#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>

#include "driver/Input.h"
#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"
#include "platform/Surface.h"

namespace tarvik::end_to_end {

inline constexpr int viewportWidth = 685;
inline constexpr int viewportHeight = 190;

// The grid's layout as documented, written a second time for the tests.
struct Geometry {
  IconSizeChoice choice;
  int size;
  int pitch;
  int firstFrame;  // the far corner of the frame around the first icon
  int columns;
  friend void PrintTo(const Geometry& geometry, std::ostream* out) { *out << geometry.size << " pixels"; }
};
inline constexpr Geometry geometries[] = {
    {Size16, 16, 22, 21, 31}, {Size32, 32, 38, 37, 15}, {Size48, 48, 54, 53, 10}, {Size64, 64, 70, 69, 8}};

// The grid on the screen, compared with icons that the platform draws at the same places.
class GridPicture : public EndToEnd {
 protected:
  // One icon of each depth, a PNG, an animation of 8 steps and a library of 3: 17 icons.
  void MakeTree() const {
    for (const int bits : {1, 4, 8, 24, 32}) {
      const support::IconPicture pictures[] = {support::BitmapPicture(32, bits, 0x2040C0, 0x30B010)};
      tree_.MakeFile("bits" + std::to_string(bits) + ".ico", support::IconFile(pictures));
    }
    const support::IconPicture png[] = {support::PngPicture(32, 0x8000FF, 0xFF8000)};
    tree_.MakeFile("picture.ico", support::IconFile(png));
    const Color colors[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00, 0x808080, 0x000080};
    tree_.MakeFile("spin.ani", support::AnimationFile(colors));
    CopyThreeIcons(In("three.dll"));
  }

  // The grid as the platform draws it: every entry's icon, and the frame of the first.
  std::unique_ptr<Surface> ExpectedPicture(const Geometry& geometry) const {
    const auto entries = Entries();
    const int rows = (static_cast<int>(entries.size()) + geometry.columns - 1) / geometry.columns;
    auto picture = std::make_unique<Surface>(viewportWidth, std::max(viewportHeight, rows * geometry.pitch), white);
    for (int i = 0; const Entry& entry : entries) {
      const POINT corner{3 + i % geometry.columns * geometry.pitch, 3 + i / geometry.columns * geometry.pitch};
      DrawEntry(*picture, entry, corner, geometry.size);
      ++i;
    }
    for (int at = 1; at <= geometry.firstFrame; ++at) {
      for (const POINT pixel :
           {POINT{at, 1}, POINT{at, geometry.firstFrame}, POINT{1, at}, POINT{geometry.firstFrame, at}})
        SetPixel(picture->Dc(), pixel.x, pixel.y, black);
    }
    GdiFlush();
    return picture;
  }

  int ScrolledPixels() const {
    return static_cast<int>(program_.Item(FrmFindIcon_PicFrame).Inside().top -
                            program_.Item(FrmFindIcon_PicIcons).Bounds().top);
  }
  int GridHeight() const {
    const RECT bounds = program_.Item(FrmFindIcon_PicIcons).Bounds();
    return static_cast<int>(bounds.bottom - bounds.top);
  }

  // Whether the viewport shows that picture in the end, scrolled so that row `top` of it is uppermost. Moves the
  // pointer away.
  bool Shows(const Surface& picture, int top) const {
    MovePointer({0, 0});
    return ComesToShow(picture, top);
  }

  // The same, but the pointer stays where it is: outside the viewport.
  bool ComesToShow(const Surface& picture, int top) const {
    Surface visible(viewportWidth, viewportHeight, white);
    BitBlt(visible.Dc(), 0, 0, viewportWidth, viewportHeight, picture.Dc(), 0, top, SRCCOPY);
    GdiFlush();
    const RECT inside = program_.Item(FrmFindIcon_PicFrame).Inside();
    int differences = 0;
    const bool same = Eventually(
        [&] {
          const Screenshot shown(inside);
          differences = CountDifferences(shown, visible);
          return shown.Width() == viewportWidth && shown.Height() == viewportHeight && differences == 0;
        },
        std::chrono::seconds(10));
    EXPECT_TRUE(same) << differences << " pixels differ";
    return same;
  }
};

}  // namespace tarvik::end_to_end
