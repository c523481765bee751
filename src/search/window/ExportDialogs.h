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
#include "platform/Surface.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The real dialogs of the save commands, over the main window.
class ExportDialogs final : public SaveDialogs {
 public:
  // What the dialogs need of the main window; asked when one opens.
  struct MainWindow {
    std::function<HWND()> window;
    std::function<const Surface&()> picIcon;
    std::function<const Surface&()> picMain;  // the current icon magnified
  };

  // Everything outlives the dialogs.
  ExportDialogs(Application& application, ProgramState& state, MainWindow mainWindow, frmDir::Dependencies disk,
                FileSink& sink);

  std::string AskForPath(const FileDialogMode& mode) override;
  std::string ShowDir() override;
  void ShowFrmHotSpot() override;
  JpegDialog& NewSaveJPG() override;
  GifDialog& NewConvertGIF() override;
  void FreeEncoders() override;

 private:
  Application& application_;
  ProgramState& state_;
  MainWindow mainWindow_;
  FileSink& sink_;
  frmDir dir_;
  FrmHotSpot hotSpot_;
  std::optional<fSaveJPG> saveJpg_;
  std::optional<FrmConvertGIF> convertGif_;
};

}  // namespace tarvik
