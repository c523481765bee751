#pragma once

#include <windows.h>

#include <optional>

#include "base/PixelView.h"
#include "forms/Form.h"
#include "platform/Surface.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The hot-spot picker: shows the current icon magnified, and OK stores the clicked pixel as the hot spot in the
// program's state. Opening it sets the state's cancel flag; only OK clears it.
class FrmHotSpot final : public Form {
 public:
  // `state` outlives the form.
  FrmHotSpot(Application& application, ProgramState& state);

  // Sets the picture for the next load of the form: the icon magnified, top-left aligned in a square of the state's
  // MagnifiedSide. It is copied when the form loads.
  void InitPicture(const PixelView& picMain) { picMain_ = &picMain; }

 private:
  void Form_Load() override;
  void Form_Paint(HDC dc) override;
  bool OnCommand(int id, int code) override;
  void OnPicture(const PictureEvent& event) override;

  void PicCursor_MouseDown(const PictureEvent& event);
  void PicCursor_MouseMove(const PictureEvent& event);
  void CmdOk_Click();
  void CmdCancel_Click();

  void ShowPicture(const Surface& picture);
  void ClearPicture() const;
  void ShowHotSpot();

  ProgramState& state_;
  const PixelView* picMain_ = nullptr;
  std::optional<Surface> picCursor_;
  Integer16 hotX_;
  Integer16 hotY_;
};

}  // namespace tarvik
