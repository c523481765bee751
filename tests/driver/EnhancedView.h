#pragma once

#include <windows.h>

#include <string>

#include "driver/Controls.h"
#include "driver/Program.h"
#include "resource.h"

namespace tarvik::end_to_end {

// The enhanced view of a running program: what it shows, and the actions of a user.
class EnhancedView {
 public:
  // Waits until the program shows the view.
  explicit EnhancedView(const Program& program) : window_(program.WaitForWindowWith(frmBit_img)) {}

  const Control& Window() const { return window_; }
  bool IsOpen() const { return IsWindow(window_.Window()) != 0; }
  bool IsMinimised() const { return IsIconic(window_.Window()) != 0; }
  // Closes it by its close box or by the toolbar's Exit button, and waits until it is gone.
  void Close() const;
  void Exit() const;

  std::string Caption() const { return window_.Text(); }
  // The path and index of the entry: the status bar's first panel.
  std::string Status() const { return StatusText(window_.Child(frmBit_sbMain), 0); }
  Control ZoomList() const { return window_.Child(frmBit_CboZoom); }
  ToolbarView Toolbar() const { return ToolbarView(window_.Child(frmBit_tlb_control)); }
  // Whether the slide show is on or off, as shown by its two buttons: exactly one of Start and Stop is enabled.
  bool ShowIsOff() const { return CanPress(frmBit_tlb_control_Start) && !CanPress(frmBit_tlb_control_Stop); }
  bool ShowIsOn() const { return CanPress(frmBit_tlb_control_Stop) && !CanPress(frmBit_tlb_control_Start); }

  // The position of the enlarged picture on the screen, and in the window.
  RECT PictureBounds() const { return window_.Child(frmBit_img).Bounds(); }
  RECT PictureBoundsInWindow() const;

  // Sends a toolbar button's command, and returns when it has been handled.
  void Press(int button, int times = 1) const;
  // Clicks a toolbar button with the real mouse. A click may get lost; the caller checks its effect.
  void Click(int button) const;
  // Fires the slide show's timer once, and returns when that has been handled.
  void Tick() const { window_.Send(WM_TIMER, frmBit_tim_nextpic); }
  // Chooses from the zoom list, as a user does.
  void ChooseFactor(int factor) const { ZoomList().ChooseComboItem(factor - 1); }
  // SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE: the commands of the window menu and the caption buttons. Returns when it has
  // been handled.
  void Ask(WPARAM systemCommand) const { window_.Send(WM_SYSCOMMAND, systemCommand); }

 private:
  bool CanPress(int button) const { return Toolbar().IsEnabled(button); }
  void WaitUntilGone() const;

  Control window_;
};

}  // namespace tarvik::end_to_end
