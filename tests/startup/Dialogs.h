#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/frmDir.h"
#include "dialogs/frmDirCreate.h"
#include "encoders/FrmConvertGIF.h"
#include "encoders/fComment.h"
#include "encoders/fSaveJPG.h"
#include "export/FrmHotSpot.h"
#include "forms/Application.h"
#include "platform/DiskFile.h"
#include "platform/Surface.h"

namespace tarvik::support {

// The dialogs, each with the smallest environment that it needs.
class Dialogs {
 protected:
  explicit Dialogs(const std::string& language) {
    state.CurrentLanguage = language;
    state.SaveExtension = ".BMP";
  }

  std::unique_ptr<Form> FolderChooser() {
    return std::make_unique<frmDir>(
        application, state,
        frmDir::Dependencies{[this] { return drives; }, [](const std::string&) { return std::vector<std::string>(); },
                             [](const std::string&) -> std::optional<std::string> { return {}; },
                             [] { return std::string("C:\\"); }});
  }
  std::unique_ptr<Form> NewFolder() {
    return std::make_unique<frmDirCreate>(
        application, state, [](const std::string&) -> std::optional<std::string> { return {}; },
        [](const std::string&) {});
  }
  std::unique_ptr<Form> HotSpotPicker() {
    auto form = std::make_unique<FrmHotSpot>(application, state);
    form->InitPicture(picture);
    return form;
  }
  std::unique_ptr<Form> JpegOptions() { return std::make_unique<fSaveJPG>(application, state, nullptr, files); }
  std::unique_ptr<Form> JpegComment() { return std::make_unique<fComment>(application, state); }
  std::unique_ptr<Form> GifOptions() {
    return std::make_unique<FrmConvertGIF>(
        application, state, nullptr,
        FrmConvertGIF::Dependencies{files, [](const std::string&) { return std::uint64_t{0}; }});
  }

  Application application{GetModuleHandleW(nullptr)};
  ProgramState state;
  std::vector<DriveListBox::Drive> drives{{"C:\\", "c:"}};
  Surface picture{385, 385, white};
  DiskFile files;
};

}  // namespace tarvik::support
