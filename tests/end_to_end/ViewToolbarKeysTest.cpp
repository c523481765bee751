// The enhanced view's toolbar by the keyboard alone.

#include <windows.h>

#include "end_to_end/ViewByHand.h"

namespace tarvik::end_to_end {
namespace {

class ViewToolbarKeys : public ViewByHand {
 protected:
  // The view on the first of five entries, with the focus on its toolbar.
  EnhancedView OpenAndGoToToolbar() {
    FindFiles(5);
    EnhancedView view = OpenOn(1);
    EXPECT_TRUE(Eventually([&] { return program_.Focus().Window() == view.ZoomList().Window(); }));
    PressKey(VK_TAB);
    EXPECT_TRUE(Eventually([&] { return IsToolbarFocused(view); }));
    return view;
  }
  bool IsToolbarFocused(const EnhancedView& view) const {
    return program_.Focus().Window() == view.Window().Child(frmBit_tlb_control).Window();
  }
  // The id of the highlighted button.
  static int MarkedButton(const EnhancedView& view) {
    const Control toolbar = view.Window().Child(frmBit_tlb_control);
    const auto index = static_cast<int>(toolbar.Send(TB_GETHOTITEM));
    for (int button = frmBit_tlb_control_MoveFirst; button <= frmBit_tlb_control_Exit; ++button) {
      if (static_cast<int>(toolbar.Send(TB_COMMANDTOINDEX, static_cast<WPARAM>(button))) == index) return button;
    }
    return 0;
  }
  static void ExpectMarked(const EnhancedView& view, int button) {
    EXPECT_TRUE(Eventually([&] { return MarkedButton(view) == button; })) << MarkedButton(view);
  }
};

TEST_F(ViewToolbarKeys, TabGoesToItAndBack) {
  const EnhancedView view = OpenAndGoToToolbar();
  ExpectMarked(view, frmBit_tlb_control_MoveFirst);
  PressKey(VK_TAB);
  EXPECT_TRUE(Eventually([&] { return program_.Focus().Window() == view.ZoomList().Window(); }));
  ExpectMarked(view, 0);
}

TEST_F(ViewToolbarKeys, ArrowsHomeAndEndGoToTheButtonsThatCanBePressed) {
  const EnhancedView view = OpenAndGoToToolbar();
  for (const int button :
       {frmBit_tlb_control_MovePrev, frmBit_tlb_control_MoveNext, frmBit_tlb_control_MoveLast, frmBit_tlb_control_Start,
        frmBit_tlb_control_Slower, frmBit_tlb_control_Faster, frmBit_tlb_control_Exit, frmBit_tlb_control_Exit}) {
    PressKey(VK_RIGHT);
    ExpectMarked(view, button);
  }
  PressKey(VK_LEFT, {}, 3);
  ExpectMarked(view, frmBit_tlb_control_Start);
  PressKey(VK_HOME);
  ExpectMarked(view, frmBit_tlb_control_MoveFirst);
  PressKey(VK_UP);
  ExpectMarked(view, frmBit_tlb_control_MoveFirst);
  PressKey(VK_END);
  ExpectMarked(view, frmBit_tlb_control_Exit);
}

TEST_F(ViewToolbarKeys, EnterPressesTheMarkedButton) {
  const EnhancedView view = OpenAndGoToToolbar();
  PressKey(VK_RIGHT, {}, 3);
  PressKey(VK_RETURN);
  ExpectEntry(view, 5);
  PressKey(VK_HOME);
  PressKey(VK_RETURN);
  ExpectEntry(view, 1);
  PressKey(VK_END);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Eventually([&] { return !view.IsOpen(); }));
}

TEST_F(ViewToolbarKeys, StartAndStopTheShow) {
  const EnhancedView view = OpenAndGoToToolbar();
  PressKey(VK_RIGHT, {}, 4);
  ExpectMarked(view, frmBit_tlb_control_Start);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Eventually([&] { return view.ShowIsOn(); }));
  PressKey(VK_RETURN);  // the button, disabled now, ignores it
  PressKey(VK_RIGHT);
  ExpectMarked(view, frmBit_tlb_control_Stop);
  EXPECT_TRUE(view.ShowIsOn());
  PressKey(VK_RETURN);
  EXPECT_TRUE(Eventually([&] { return view.ShowIsOff(); }));
}

TEST_F(ViewToolbarKeys, SpaceStaysTheViewsOwnKey) {
  const EnhancedView view = OpenAndGoToToolbar();
  PressKey(VK_SPACE, {}, 2);
  ExpectEntry(view, 2);
  ExpectMarked(view, frmBit_tlb_control_MoveFirst);
}

TEST_F(ViewToolbarKeys, TheMarkIsSeen) {
  const EnhancedView view = OpenAndGoToToolbar();
  PressKey(VK_RIGHT);
  ExpectMarked(view, frmBit_tlb_control_MovePrev);
  MovePointer({0, 0});
  const RECT button = view.Toolbar().ButtonBounds(frmBit_tlb_control_MovePrev);
  EXPECT_TRUE(Eventually([&] {
    const Screenshot shown(button);
    int framed = 0;
    for (int x = 0; x < shown.Width(); ++x) framed += shown.Pixel(x, 0) == black ? 1 : 0;
    return framed == shown.Width();
  }));
}

}  // namespace
}  // namespace tarvik::end_to_end
