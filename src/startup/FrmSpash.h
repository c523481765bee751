#pragma once

#include <functional>
#include <optional>

#include "forms/Form.h"
#include "platform/Surface.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The start-up window, which is replaced by the main window after three seconds; or, if `ShowAsAbout` is set, the About
// box, which stays until it is closed.
class FrmSpash final : public Form {
 public:
  // `showMainWindow` runs after the start-up window has closed, but not after the About box. `state` outlives the form.
  FrmSpash(Application& application, const ProgramState& state, std::function<void()> showMainWindow);

 private:
  void Form_Load() override;
  void Form_Paint(HDC dc) override;
  bool OnCommand(int id, int code) override;
  void OnTimer(UINT_PTR id) override;

  void Timer1_Timer();
  void CmdOk_Click();

  void MakeRoomForAbout();
  void RemoveCaption();
  void DrawPicture();

  const ProgramState& state_;
  std::function<void()> showMainWindow_;
  std::optional<Surface> picture_;
};

}  // namespace tarvik
