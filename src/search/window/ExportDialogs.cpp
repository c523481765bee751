#include "search/window/ExportDialogs.h"

#include <utility>

#include "export/FileDialog.h"
#include "platform/DiskFile.h"

namespace tarvik {

ExportDialogs::ExportDialogs(Application& application, ProgramState& state, std::function<HWND()> owner,
                             frmDir::Dependencies disk, FileSink& sink)
    : application_(application),
      state_(state),
      owner_(std::move(owner)),
      sink_(sink),
      dir_(application, state, std::move(disk)),
      hotSpot_(application, state) {}

std::string ExportDialogs::AskForPath(const FileDialogMode& mode) {
  return AskForFileToSave(owner_(), mode, state_.CurrentLanguage);
}

std::string ExportDialogs::ShowDir() {
  return dir_.ShowDir(owner_());
}

void ExportDialogs::ShowFrmHotSpot(const PixelView& picMain) {
  hotSpot_.InitPicture(picMain);
  hotSpot_.ShowModal(owner_());
}

JpegDialog& ExportDialogs::NewSaveJPG() {
  return saveJpg_.emplace(application_, state_, owner_(), sink_);
}

GifDialog& ExportDialogs::NewConvertGIF() {
  return convertGif_.emplace(application_, state_, owner_(), FrmConvertGIF::Dependencies{sink_, FileLength});
}

// The dialogs themselves are kept: one of them may be further up the call stack, if the session ends while it is open.
void ExportDialogs::FreeEncoders() {
  if (saveJpg_) saveJpg_->FreeObj();
  if (convertGif_) convertGif_->FreeGifObj();
}

}  // namespace tarvik
