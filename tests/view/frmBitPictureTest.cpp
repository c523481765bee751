// The enlarged picture, pixel by pixel, and its cost in memory and handles.

#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/GdiObjects.h"
#include "view/ViewFixture.h"

namespace tarvik {
namespace {

// The memory that this process uses, in bytes. Wine fills in no other counter.
std::int64_t UsedBytes() {
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return static_cast<std::int64_t>(counters.WorkingSetSize);
}

class frmBitPictureTest : public support::ViewFixture {
 protected:
  // Compares the window's pixels with the entry's picture at that factor.
  void ExpectEnlarged(int number, int factor, int size) {
    const RECT bounds = BoundsOf(frmBit_img);
    ASSERT_EQ(bounds.left, 100);
    ASSERT_EQ(bounds.top, 100);
    ASSERT_EQ(bounds.right, 100 + factor * size);
    ASSERT_EQ(bounds.bottom, 100 + factor * size);
    application.DoEvents();
    Surface shown(factor * size, factor * size, black);
    const WindowDc dc(Item(frmBit_img));
    BitBlt(shown.Dc(), 0, 0, shown.Width(), shown.Height(), dc.get(), 0, 0, SRCCOPY);
    for (int y = 0; y < shown.Height(); ++y) {
      for (int x = 0; x < shown.Width(); ++x) {
        ASSERT_EQ(shown.Pixel(x, y), support::PictureHost::ColorOf(number, x / factor, y / factor))
            << "entry " << number << ", factor " << factor << " at " << x << ", " << y;
      }
    }
  }
};

TEST_F(frmBitPictureTest, MakesEveryPixelASquareAtEachSizeAndFactor) {
  for (const int size : {16, 32, 48, 64}) {
    MakeList(3, 1, size);
    WhileOpen([&] {
      ShowWindow(view->Window(), SW_MAXIMIZE);
      ExpectEnlarged(2, 5, size);
      for (const int factor : {1, 5, 10}) {
        ChooseZoom(factor - 1);
        ExpectEnlarged(2, factor, size);
      }
    });
  }
}

TEST_F(frmBitPictureTest, TakesEachEntrysPicture) {
  MakeList(3, 0, 16);
  WhileOpen([this] {
    Click(frmBit_tlb_control_MoveLast);
    ExpectEnlarged(3, 5, 16);
    Click(frmBit_tlb_control_MovePrev);
    ExpectEnlarged(2, 5, 16);
  });
}

TEST_F(frmBitPictureTest, KeepsThePictureWhereThereIsNoSuchEntry) {
  MakeList(3, 0, 16);
  WhileOpen([this] {
    Click(frmBit_tlb_control_MovePrev);
    ExpectEnlarged(1, 5, 16);
    Click(frmBit_tlb_control_MovePrev);
    ExpectEnlarged(1, 5, 16);
    EXPECT_EQ(Status(), "");
  });
}

TEST_F(frmBitPictureTest, RepaintsFromMemory) {
  MakeList(3, 1, 16);
  WhileOpen([this] {
    host->asked.clear();
    ShowWindow(view->Window(), SW_MINIMIZE);
    ShowWindow(view->Window(), SW_RESTORE);
    RedrawWindow(view->Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    ExpectEnlarged(2, 5, 16);
    EXPECT_TRUE(host->asked.empty());
  });
}

TEST_F(frmBitPictureTest, StaysBelowToolbarZoomListAndStatusBar) {
  MakeList(1, 0, 64);
  WhileOpen([this] {
    ChooseZoom(9);
    const RECT bar = BoundsOf(frmBit_sbMain);
    const POINT inBar{(bar.left + bar.right) / 2, (bar.top + bar.bottom) / 2};
    EXPECT_EQ(ChildWindowFromPoint(view->Window(), inBar), Item(frmBit_sbMain));
  });
}

TEST_F(frmBitPictureTest, HoldsNoMoreHandlesAndMemoryAfterAnHourOfTicks) {
  MakeList(5, 0, 64);
  WhileOpen([this] {
    Click(frmBit_tlb_control_Start);
    for (int tick = 0; tick < 100; ++tick) Tick();
    const int objects = support::CountGdiObjects();
    // A leak of every tick shows in every part of the hour; memory that the system caches does not.
    constexpr int parts = 6;
    constexpr int ticks = 3600 / parts;
    std::int64_t minGrowth = std::numeric_limits<std::int64_t>::max();
    for (int part = 0; part < parts; ++part) {
      const std::int64_t bytes = UsedBytes();
      ASSERT_GT(bytes, 0);
      for (int tick = 0; tick < ticks; ++tick) Tick();
      minGrowth = std::min(minGrowth, UsedBytes() - bytes);
    }
    EXPECT_EQ(support::CountGdiObjects(), objects);
    EXPECT_LT(minGrowth, std::int64_t{100} * ticks) << "100 bytes a tick";
  });
}

TEST_F(frmBitPictureTest, HoldsNoMoreHandlesAfterManyZoomsAndOpenings) {
  const auto openAndZoom = [this] {
    WhileOpen([this] {
      for (int row = 0; row < 10; ++row) ChooseZoom(row);
      Click(frmBit_tlb_control_MoveNext);
    });
  };
  for (int opening = 0; opening < 3; ++opening) openAndZoom();
  const int before = support::CountGdiObjects();
  for (int opening = 0; opening < 10; ++opening) openAndZoom();
  EXPECT_EQ(support::CountGdiObjects(), before);
}

}  // namespace
}  // namespace tarvik
