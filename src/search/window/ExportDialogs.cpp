#include "search/window/ExportDialogs.h"

#include <utility>

#include "export/FileDialog.h"
#include "platform/DiskFile.h"

namespace tarvik {

ExportDialogs::ExportDialogs(Application& application, ProgramState& state, MainWindow mainWindow,
                             frmDir::Dependencies disk, FileSink& sink)
    : application_(application),
      state_(state),
      mainWindow_(std::move(mainWindow)),
      sink_(sink),
      dir_(application, state, std::move(disk)),
      hotSpot_(application, state, mainWindow_.picMain) {}

std::string ExportDialogs::AskForPath(const FileDialogMode& mode) {
  return AskForFileToSave(mainWindow_.window(), mode, state_.CurrentLanguage);
}

std::string ExportDialogs::ShowDir() {
  return dir_.ShowDir(mainWindow_.window());
}

void ExportDialogs::ShowFrmHotSpot() {
  hotSpot_.ShowModal(mainWindow_.window());
}

JpegDialog& ExportDialogs::NewSaveJPG() {
  return saveJpg_.emplace(application_, state_, mainWindow_.window(), sink_);
}

GifDialog& ExportDialogs::NewConvertGIF() {
  return convertGif_.emplace(application_, state_, mainWindow_.window(),
                             FrmConvertGIF::Dependencies{mainWindow_.picIcon, sink_, FileLength});
}

// The dialogs themselves stay: one of them may be the caller's caller, where the session ends while it is open.
void ExportDialogs::FreeEncoders() {
  if (saveJpg_) saveJpg_->FreeObj();
  if (convertGif_) convertGif_->FreeGifObj();
}

}  // namespace tarvik
