#pragma once

#include <windows.h>

#include <string>

#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Toolbar.h"
#include "platform/Surface.h"
#include "startup/ProgramState.h"
#include "startup/Settings.h"
#include "view/EnhancedViewHost.h"
#include "view/SlideShow.h"
#include "view/ViewStepping.h"

namespace tarvik {

// The enhanced view: one entry of the icon list enlarged, steps through the list, and a slide show. It has no icons of
// its own: every picture is rendered by the main window and copied.
class frmBit final : public Form {
 public:
  // `host`, `state` and `settings` outlive the view.
  frmBit(Application& application, EnhancedViewHost& host, const ProgramState& state, Settings& settings);

  // Called by the main window on a double click; returns when the view is closed. Does nothing if the list is empty or
  // the view is open. In this order: the selected entry is rendered, its picture is copied (which loads the view: from
  // here on the host's ViewOpen is set), its source is written to the status bar, and the view is shown, modal to
  // `owner`. The view opens with the slide show off and its initial interval, whatever its state was when it was
  // closed, and at 500 % with no zoom chosen (deliberate: oddities 51).
  void ShowSelectedEntry(HWND owner);

  // Sets all texts of the loaded view in the current language: the buttons' tooltips and the caption.
  void SetLanguageOfForm();

  // Called by the message loop before a key reaches the control that has the focus. The view's keys, pressed without
  // Alt, act wherever the focus is and are not passed on. Every other key keeps its usual effect on the zoom list and
  // the window's menu, and Escape and Enter do nothing.
  bool PreviewMessage(const MSG& message) override;

 private:
  // Form
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;
  bool OnCommand(int id, int code) override;
  void OnTimer(UINT_PTR id) override;

  // Handlers
  void tlb_control_ButtonClick(int button);
  void CboZoom_Click();
  void tim_nextpic_Timer();
  bool Form_KeyDown(int key);  // a virtual-key code; true for one of the view's keys

  // What the buttons do.
  void ShowFirst() { stepping_.ShowFirst(); }
  void ShowLast() { stepping_.ShowLast(); }
  void ShowNext() { stepping_.ShowNext(); }
  void ShowPrevious() { stepping_.ShowPrevious(); }
  void StartSlideShow();
  void StopSlideShow();
  void Slower();
  void Faster();
  void Exit();

  void AttachControls();
  void ShowPicture();
  void ShowStatusText(const std::string& text);
  void ApplyViewLanguage();
  void LoadViewSize();
  void SaveViewSize();
  void MoveOntoScreen();
  void UpdateCaption();
  void RestartTimer();
  void Zoom(int factor);
  void Enlarge();

  EnhancedViewHost& host_;
  const ProgramState& state_;
  Settings& settings_;
  ViewStepping stepping_;
  SlideShow show_;

  Toolbar toolbar_;
  PictureBox img_;
  SIZE imgSize_{};    // of img_, in the program's pixels
  Surface picture_;   // as rendered by the main window
  Surface enlarged_;  // what img_ shows
};

}  // namespace tarvik
