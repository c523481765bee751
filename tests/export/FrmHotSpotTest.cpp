#include "export/FrmHotSpot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

#include "export/FrmHotSpotTexts.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/Display.h"
#include "platform/Handles.h"
#include "resource.h"

namespace tarvik {
namespace {

using support::Command;
using support::TextOf;

class FrmHotSpotTest : public ::testing::Test {
 protected:
  FrmHotSpotTest() {
    state.CurrentLanguage = "ENG";
    state.HotSpotX = 5;
    state.HotSpotY = 6;
    state.HotSpotCancelled = false;
    form.InitPicture(magnified);
  }

  void Show() {
    form.Show();
    application.DoEvents();
  }
  HWND Picture() const { return form.Item(FrmHotSpot_PicCursor); }
  void Send(UINT message, int x, int y, WPARAM keys = 0) const {
    SendMessageW(Picture(), message, keys, MAKELPARAM(x, y));
  }
  std::string LabelText(int id) const { return form.ItemText(id); }

  Application application{GetModuleHandleW(nullptr)};
  ProgramState state;
  Surface magnified{385, 385, 0x123456};
  FrmHotSpot form{application, state};
};

TEST_F(FrmHotSpotTest, HasTheSizeOf7510By6295Twips) {
  Show();
  RECT bounds;
  GetWindowRect(form.Window(), &bounds);
  const WindowDc dc(form.Window());
  EXPECT_NEAR(bounds.right - bounds.left, 7510 * GetDeviceCaps(dc.get(), LOGPIXELSX) / 1440.0, 0.5);
  EXPECT_NEAR(bounds.bottom - bounds.top, 6295 * GetDeviceCaps(dc.get(), LOGPIXELSY) / 1440.0, 0.5);
}

TEST_F(FrmHotSpotTest, ShowsItsFirstHotSpotFromTheStart) {
  Show();
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotX), "00");
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotY), "00");
}

TEST_F(FrmHotSpotTest, ShowsTheWholeMagnifiedPicture) {
  SetPixel(magnified.Dc(), 0, 0, RGB(1, 2, 3));
  SetPixel(magnified.Dc(), 384, 384, RGB(4, 5, 6));
  Show();
  RECT client;
  RECT picture;
  GetClientRect(form.Window(), &client);
  GetClientRect(Picture(), &picture);
  EXPECT_EQ(picture.right, 385);
  EXPECT_EQ(picture.bottom, 385);
  MapWindowPoints(Picture(), form.Window(), reinterpret_cast<POINT*>(&picture), 2);
  EXPECT_LE(picture.bottom, client.bottom);
  // The window's size is fixed, but the caption's height is the system's. On Windows there is room for the frame of two
  // pixels; under Wine 10 the caption is three pixels higher and there is not quite enough.
  constexpr LONG sideWithFrame = 385 + 2 * 2;
  EXPECT_LE(picture.bottom + 2, std::max(client.bottom, sideWithFrame)) << "with its frame inside the window";
  const WindowDc dc(Picture());
  EXPECT_EQ(GetPixel(dc.get(), 0, 0), RGB(1, 2, 3));
  EXPECT_EQ(GetPixel(dc.get(), 384, 384), RGB(4, 5, 6));
  EXPECT_EQ(GetPixel(dc.get(), 200, 200), 0x123456U);
}

TEST_F(FrmHotSpotTest, FramesThePictureAndTheReadings) {
  Show();
  const WindowDc dc(form.Window());
  for (const int id : {FrmHotSpot_PicCursor, FrmHotSpot_ImgXY}) {
    RECT bounds;
    GetWindowRect(form.Item(id), &bounds);
    MapWindowPoints(nullptr, form.Window(), reinterpret_cast<POINT*>(&bounds), 2);
    EXPECT_EQ(GetPixel(dc.get(), bounds.left - 2, bounds.top + 20), GetSysColor(COLOR_BTNSHADOW)) << id;
    EXPECT_EQ(GetPixel(dc.get(), bounds.right + 1, bounds.top + 20), GetSysColor(COLOR_BTNHIGHLIGHT)) << id;
  }
}

TEST_F(FrmHotSpotTest, ShowsItsTextsInEachLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    state.CurrentLanguage = language;
    Show();
    for (const FormText& row : hotSpotTexts) {
      const std::string shown = row.id == formCaption ? TextOf(form.Window()) : LabelText(row.id);
      EXPECT_EQ(shown, *Pick(row.text, language));
    }
    form.Unload();
  }
}

TEST_F(FrmHotSpotTest, OpensCancelledWithTheFormerHotSpot) {
  Show();
  EXPECT_TRUE(state.HotSpotCancelled);
  EXPECT_EQ(state.HotSpotX, 5);
}

TEST_F(FrmHotSpotTest, ShowsEachClickBoundedAtZero) {
  Show();
  form.SetItemText(FrmHotSpot_LblHotX, "changed by a click");
  Send(WM_LBUTTONDOWN, 200, 300);
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotX), "00");
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotY), "00");
  Command(form.Window(), FrmHotSpot_CmdOk, BN_CLICKED);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_FALSE(state.HotSpotCancelled);
  EXPECT_EQ(state.HotSpotX, 0);
  EXPECT_EQ(state.HotSpotY, 0);
}

TEST_F(FrmHotSpotTest, TakesAClickAtScale4ForTheFirstPixel) {
  state.MagnifiedSide = 4 * 64 + 1;
  Show();
  Send(WM_MOUSEMOVE, 13, 29);
  Send(WM_LBUTTONDOWN, 13, 29);
  EXPECT_EQ(LabelText(FrmHotSpot_lblxy), "00, 00");
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotX), "00");
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotY), "00");
  form.Unload();
  state.HotSpotBound = 40;  // shows the values that the limit hid
  Show();
  Send(WM_LBUTTONDOWN, 13, 29);
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotX), "03");
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotY), "07");
}

TEST_F(FrmHotSpotTest, DividesByTheScaleUpToTheBound) {
  state.HotSpotBound = 40;
  Show();
  Send(WM_LBUTTONDOWN, 6 * 3 + 5, 384);
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotX), "03");
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotY), "40");
  Send(WM_MOUSEMOVE, 6 * 7, 6 * 15);
  EXPECT_EQ(LabelText(FrmHotSpot_lblxy), "07, 15");
  Send(WM_LBUTTONDBLCLK, 6 * 12, 6);
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotX), "12") << "the second press of a double click too";
  Command(form.Window(), FrmHotSpot_CmdOk, BN_CLICKED);
  EXPECT_EQ(state.HotSpotX, 12);
  EXPECT_EQ(state.HotSpotY, 1);
}

TEST_F(FrmHotSpotTest, TakesNoClickOfAnotherButton) {
  state.HotSpotBound = 63;
  Show();
  Send(WM_RBUTTONDOWN, 200, 300);
  Send(WM_MBUTTONDOWN, 200, 300);
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotX), "00");
  EXPECT_EQ(LabelText(FrmHotSpot_LblHotY), "00");
}

TEST_F(FrmHotSpotTest, ShowsThePositionOfThePointerBoundedAtZero) {
  Show();
  for (const int x : {0, 13, 384, -20}) {
    Send(WM_MOUSEMOVE, x, 29);
    EXPECT_EQ(LabelText(FrmHotSpot_lblxy), "00, 00");
  }
}

TEST_F(FrmHotSpotTest, StoresZeroForOkWithoutAClick) {
  Show();
  Command(form.Window(), FrmHotSpot_CmdOk, BN_CLICKED);
  EXPECT_FALSE(state.HotSpotCancelled);
  EXPECT_EQ(state.HotSpotX, 0);
  EXPECT_EQ(state.HotSpotY, 0);
}

TEST_F(FrmHotSpotTest, KeepsTheHotSpotWhereItIsCancelledOrClosed) {
  for (const auto& leave :
       {std::pair<UINT, WPARAM>{WM_COMMAND, FrmHotSpot_CmdCancel}, {WM_COMMAND, IDCANCEL}, {WM_CLOSE, 0}}) {
    Show();
    Send(WM_LBUTTONDOWN, 200, 300);
    SendMessageW(form.Window(), leave.first, leave.second, 0);
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_TRUE(state.HotSpotCancelled);
    EXPECT_EQ(state.HotSpotX, 5);
    EXPECT_EQ(state.HotSpotY, 6);
  }
}

// The picker on displays of a higher dpi: the picture is larger, and a place in it means the same pixel. These cases
// run at the dpi of the current display; tests/CMakeLists.txt lists the values.
class HotSpotOnDisplay : public FrmHotSpotTest {
 protected:
  const int dots = DotsOfDisplay();

  // The first display pixel that shows a pixel of the picture.
  int Begin(int pixel) const { return (pixel * dots + 95) / 96; }
  int Number(int id) const { return std::stoi(LabelText(id)); }
  RECT BoundsOf(int id) const {
    RECT bounds;
    GetWindowRect(form.Item(id), &bounds);
    MapWindowPoints(nullptr, form.Window(), reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
  }
};

TEST_F(HotSpotOnDisplay, FillsTheWindowWithItsPicture) {
  struct Row {
    int dots;
    int side;
  };
  constexpr auto rows = std::to_array<Row>({{96, 385}, {120, 482}, {144, 578}, {168, 674}, {192, 770}});
  const auto* const row = std::ranges::find(rows, dots, &Row::dots);
  ASSERT_NE(row, rows.end()) << dots;
  Show();
  const RECT bounds = BoundsOf(FrmHotSpot_PicCursor);
  EXPECT_EQ(bounds.right - bounds.left, row->side);
  EXPECT_EQ(bounds.bottom - bounds.top, row->side);
  RECT client;
  GetClientRect(form.Window(), &client);
  EXPECT_GE(bounds.bottom - bounds.top, client.bottom * 95 / 100);
  EXPECT_LE(bounds.top, client.bottom - bounds.bottom + 3) << "the margins above and below are alike";
  const RECT readings = BoundsOf(FrmHotSpot_ImgXY);
  EXPECT_LE(bounds.right + 2, readings.left - 2) << "the frames do not touch";
  EXPECT_LE(readings.right + 2, client.right);
  EXPECT_TRUE(dots != 96 || readings.left == 402) << readings.left << ", not where the dialog has it";
  for (const int id : {FrmHotSpot_LblHotX, FrmHotSpot_LblHotY, FrmHotSpot_lblxy, FrmHotSpot_CmdOk}) {
    EXPECT_GE(BoundsOf(id).left, readings.left) << id;
    EXPECT_LE(BoundsOf(id).right, readings.right + 2) << id;
  }
}

TEST_F(HotSpotOnDisplay, EnlargesThePixelsOfThePicture) {
  const RECT square{6, 12, 12, 18};
  const BrushHandle brush(CreateSolidBrush(RGB(200, 0, 0)));
  FillRect(magnified.Dc(), &square, brush.get());
  Show();
  const WindowDc dc(Picture());
  const int y = Begin(15);
  for (int x = 0; x < Begin(20); ++x) {
    const int begin = x * 96;
    const int end = begin + 96;
    const bool isInside = begin >= 6 * dots && end <= 12 * dots;
    const bool isOutside = end <= 6 * dots || begin >= 12 * dots;
    const Color pixel = GetPixel(dc.get(), x, y);
    EXPECT_TRUE(!isInside || pixel == RGB(200, 0, 0)) << x << ": " << pixel;
    EXPECT_TRUE(!isOutside || pixel == 0x123456U) << x << ": " << pixel;
  }
  EXPECT_EQ(GetPixel(dc.get(), Begin(385) - 1, Begin(385) - 1), 0x123456U);
}

TEST_F(HotSpotOnDisplay, AClickMeansThePixelUnderThePointer) {
  state.HotSpotBound = 63;
  Show();
  for (int pixel = 1; pixel < 64; ++pixel) {
    const int edge = Begin(6 * pixel);
    Send(WM_LBUTTONDOWN, edge - 1, edge);
    EXPECT_EQ(Number(FrmHotSpot_LblHotX), pixel - 1);
    EXPECT_EQ(Number(FrmHotSpot_LblHotY), pixel);
  }
  Send(WM_MOUSEMOVE, Begin(6 * 7), Begin(6 * 16) - 1);
  EXPECT_EQ(LabelText(FrmHotSpot_lblxy), "07, 15");
}

}  // namespace
}  // namespace tarvik
