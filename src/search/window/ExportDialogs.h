#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "dialogs/frmDir.h"
#include "encoders/FrmConvertGIF.h"
#include "encoders/fSaveJPG.h"
#include "export/FrmHotSpot.h"
#include "export/SaveWindow.h"
#include "forms/Application.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The real dialogs of the save commands, over the main window.
class ExportDialogs final : public SaveDialogs {
 public:
  // `owner` returns the main window when a dialog opens. All arguments outlive the dialogs.
  ExportDialogs(Application& application, ProgramState& state, std::function<HWND()> owner, frmDir::Dependencies disk,
                FileSink& sink);

  std::string AskForPath(const FileDialogMode& mode) override;
  std::string ShowDir() override;
  void ShowFrmHotSpot(const PixelView& picMain) override;
  JpegDialog& NewSaveJPG() override;
  GifDialog& NewConvertGIF() override;
  void FreeEncoders() override;

 private:
  Application& application_;
  ProgramState& state_;
  std::function<HWND()> owner_;
  FileSink& sink_;
  frmDir dir_;
  FrmHotSpot hotSpot_;
  std::optional<fSaveJPG> saveJpg_;
  std::optional<FrmConvertGIF> convertGif_;
};

}  // namespace tarvik
