#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/DiskFile.h"
#include "search/window/ExportDialogs.h"

namespace tarvik::support {

// The real dialogs of the save commands, except the two that ask for a path: those return the test's answers at once.
class AnsweredDialogs final : public SaveDialogs {
 public:
  AnsweredDialogs(Application& application, ProgramState& state, std::function<HWND()> owner)
      : state_(state), real_(application, state, std::move(owner), {}, files_) {}

  std::string AskForPath(const FileDialogMode& mode) override {
    asked.emplace_back(mode.titleSuffix.eng);
    return onAskForPath ? onAskForPath(mode) : path;
  }
  std::string ShowDir() override {
    onShowDir();
    asked.push_back(state_.SaveExtension);
    if (!extension.empty()) state_.SaveExtension = extension;
    return folder;
  }
  void ShowFrmHotSpot(const PixelView& picMain) override { real_.ShowFrmHotSpot(picMain); }
  JpegDialog& NewSaveJPG() override { return real_.NewSaveJPG(); }
  GifDialog& NewConvertGIF() override { return real_.NewConvertGIF(); }
  void FreeEncoders() override { real_.FreeEncoders(); }

  std::string path;                                                     // the answers
  std::function<std::string(const FileDialogMode& mode)> onAskForPath;  // if set, gives the path instead
  std::string folder;
  std::string extension;                    // chosen with the folder; empty keeps the current one
  std::function<void()> onShowDir = [] {};  // runs while the dialog is open
  std::vector<std::string> asked;           // titles of the Save dialog, and purposes of the folder chooser

 private:
  ProgramState& state_;
  DiskFile files_;
  ExportDialogs real_;
};

}  // namespace tarvik::support
