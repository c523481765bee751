#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "driver/EnhancedView.h"
#include "end_to_end/SelectionByHand.h"
#include "platform/Surface.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

// The enhanced view, opened by hand. Entries are counted from 1 here, as the view counts them.
class ViewByHand : public SelectionByHand {
 protected:
  // Searches that many icon files, of one icon each, each in its own colour.
  void FindFiles(int count) {
    for (int i = 1; i <= count; ++i)
      tree_.MakeFile(FileName(i), support::IconFileOf(0x20C000U + 40U * static_cast<Color>(i)));
    Start();
    Find();
    ASSERT_EQ(List().RowCount(), count);
  }
  static std::string FileName(int number) { return "icon" + std::to_string(number) + ".ico"; }

  // Searches a library of three icons, no two alike.
  void FindPictures(IconSizeChoice size = Size32) {
    CopyThreeIcons(In("three.dll"));
    Start();
    Tick({Dll});
    ChooseSize(size);
    geometry_ = &gridGeometries[static_cast<std::size_t>(size)];
    Find();
    ASSERT_EQ(List().RowCount(), 3);
  }

  // Opens the view by a double click on an entry's icon in the grid. If a click gets lost, the double click is
  // repeated.
  EnhancedView OpenOn(int number) const {
    EXPECT_TRUE(Eventually([&] {
      DoubleClick(CellMiddle(number - 1));
      return Eventually([&] { return program_.CountWindowsWith(frmBit_img) == 1; }, lostAfter);
    }));
    return EnhancedView(program_);
  }

  // The status bar's text for an entry of FindFiles.
  std::string Source(int number) const { return In(FileName(number)) + " - 0"; }
  // Waits for the view to show that entry in its status bar.
  void ExpectEntry(const EnhancedView& view, int number) const {
    EXPECT_TRUE(Eventually([&] { return view.Status() == Source(number); }, shortly)) << view.Status();
  }
  // Clicks with the real mouse until the click has its effect. A click that got lost has no effect.
  void ClickUntil(const EnhancedView& view, int button, const std::function<bool()>& isDone) const {
    EXPECT_TRUE(Eventually([&] {
      view.Click(button);
      return Eventually(isDone, lostAfter);
    })) << button;
  }
  // Compares what is visible: waits until the view shows the entry with every pixel of its icon as a square of `factor`
  // pixels.
  void ExpectPicture(const EnhancedView& view, const Entry& entry, int size, int factor) const {
    Surface icon(size, size, white);
    DrawEntry(icon, entry, {0, 0}, size);
    GdiFlush();
    MovePointer({0, 0});
    int differences = 0;
    EXPECT_TRUE(Eventually(
        [&] {
          const Screenshot shown(view.PictureBounds());
          EXPECT_EQ(shown.Width(), size * factor);
          EXPECT_EQ(shown.Height(), size * factor);
          differences = 0;
          for (int y = 0; y < shown.Height(); ++y) {
            for (int x = 0; x < shown.Width(); ++x) {
              if (shown.Pixel(x, y) != icon.Pixel(x / factor, y / factor)) ++differences;
            }
          }
          return differences == 0;
        },
        shortly))
        << differences << " pixels differ from " << entry.path << ", " << entry.index << " at " << factor;
  }

  std::string ReadViewSetting(const std::string& key) const { return ReadSetting(key, "Bitmapview"); }
  void WriteViewSize(const std::string& height, const std::string& width) const {
    WriteSetting("Height", height, "Bitmapview");
    WriteSetting("Width", width, "Bitmapview");
  }
};

}  // namespace tarvik::end_to_end
