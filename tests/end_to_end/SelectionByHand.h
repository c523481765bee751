#pragma once

#include <windows.h>

#include <set>
#include <string>

#include "driver/Input.h"
#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "grid/GridGeometry.h"
#include "platform/Display.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {

using Indexes = std::set<int>;  // of entries, counted from 0

// Icons found and selected by hand, and how the program then shows the selection.
class SelectionByHand : public EndToEnd {
 protected:
  static constexpr int fewIcons = 20;  // a row and a third of 32-pixel icons

  // Icon files, each found as one entry, in the order of their numbers.
  void FindIconFiles(int count) {
    for (int i = 0; i < count; ++i) tree_.MakeFile(std::to_string(100 + i) + ".ico", support::IconFileOf(0x20C040));
    Start();
    Find();
    ASSERT_EQ(List().RowCount(), count);
  }
  void FindHundred(IconSizeChoice size) {
    CopyHundredIcons(In("hundred.dll"));
    Start();
    Tick({Dll});
    ChooseSize(size);
    geometry_ = &gridGeometries[static_cast<std::size_t>(size)];
    Find();
    ASSERT_EQ(List().RowCount(), 100);
  }

  // The position on the screen of a point of the grid's picture, or of the middle of an entry's cell. The display
  // enlarges the picture by its dpi divided by 96.
  POINT GridPoint(int x, int y) const {
    const RECT grid = program_.Item(FrmFindIcon_PicIcons).Bounds();
    const int dots = DotsOfDisplay();
    return {grid.left + (x * dots + 95) / 96, grid.top + (y * dots + 95) / 96};
  }
  POINT CellMiddle(int entry) const {
    const Point corner = IconCorner(*geometry_, entry);
    return GridPoint(corner.x + geometry_->IconSize / 2, corner.y + geometry_->IconSize / 2);
  }
  void ClickCell(int entry, HeldKeys held = {}) const { Click(CellMiddle(entry), held); }

  // Waits until the program has processed all input so far: a click on a box follows it, and its effect is visible.
  void WaitForAllInput() const {
    const Control box = program_.Item(FrmFindIcon_chkSubDir);
    const bool ticked = box.IsChecked();
    Click(MiddleOf(box.Bounds()));
    ASSERT_TRUE(Eventually([&] { return box.IsChecked() != ticked; }));
  }

  Indexes SelectedRows() const {
    Indexes rows;
    const ReportView list = List();
    for (int row = 0; row < list.RowCount(); ++row) {
      if (list.IsSelected(row)) rows.insert(row);
    }
    return rows;
  }

  // The visible entries with a whole black frame. A frame that is neither black nor white is reported as -1.
  Indexes Frames() const {
    const Screenshot shown(program_.Item(FrmFindIcon_PicFrame).Inside());
    const int scrolled = static_cast<int>(program_.Item(FrmFindIcon_PicFrame).Inside().top -
                                          program_.Item(FrmFindIcon_PicIcons).Bounds().top);
    Indexes frames;
    for (int entry = 0; entry < List().RowCount(); ++entry) {
      const Point corner = FrameCorner(*geometry_, entry);
      const int top = corner.y - scrolled;
      if (top < 0 || top + geometry_->FrameExtent >= shown.Height()) continue;
      if (corner.x + geometry_->FrameExtent >= shown.Width()) continue;
      const int blackPixels = CountBlackInFrame(shown, {corner.x, top});
      if (blackPixels != 0) frames.insert(blackPixels == 4 * geometry_->FrameExtent ? entry : -1);
    }
    return frames;
  }

  // The current entry, counted from 0, as label and status bar show it.
  void ExpectCurrent(int entry) const {
    const std::string label = "Icon No " + std::to_string(entry + 1) + " Selected.";
    EXPECT_TRUE(Eventually([&] { return TextOf(FrmFindIcon_lblInfo) == label; })) << TextOf(FrmFindIcon_lblInfo);
    const std::string path = List().Cell(entry, 1);
    EXPECT_TRUE(Eventually([&] { return Status() == path; })) << Status();
  }
  void ExpectRows(const Indexes& expected) const {
    EXPECT_TRUE(Eventually([&] { return SelectedRows() == expected; }, shortly))
        << ::testing::PrintToString(SelectedRows());
  }
  void ExpectFrames(const Indexes& expected) const {
    EXPECT_TRUE(Eventually([&] { return Frames() == expected; }, shortly)) << ::testing::PrintToString(Frames());
  }

  // How long a wrong picture may still become the right one: as long as any other wait, because the machine may be
  // busy.
  static constexpr std::chrono::seconds shortly = patience;

  const GridGeometry* geometry_ = &gridGeometries[Size32];

 private:
  int CountBlackInFrame(const Screenshot& shown, Point corner) const {
    int count = 0;
    const int extent = geometry_->FrameExtent;
    for (int at = 0; at < extent; ++at) {
      for (const Point pixel : {Point{at, 0}, Point{extent, at}, Point{extent - at, extent}, Point{0, extent - at}})
        count += shown.Pixel(corner.x + pixel.x, corner.y + pixel.y) == black ? 1 : 0;
    }
    return count;
  }
};

}  // namespace tarvik::end_to_end
