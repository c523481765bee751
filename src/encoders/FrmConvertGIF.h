#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/FileSink.h"
#include "base/PixelView.h"
#include "encoders/GifEncoder.h"
#include "encoders/ImageDialogs.h"
#include "forms/Form.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The GIF options dialog. In mode Single its OK writes the file; in mode NoSingle it only hides and keeps the options
// for SaveToGIFNoSingle.
class FrmConvertGIF final : public Form, public GifDialog {
 public:
  struct Dependencies {
    FileSink& sink;
    std::function<std::uint64_t(const std::string& path)> fileLength;  // in bytes
  };

  // Shown modal to `owner`. All arguments outlive the form.
  FrmConvertGIF(Application& application, const ProgramState& state, HWND owner, Dependencies dependencies);

  void InitGifExport(const PixelView& picture, const std::string& target) override;
  DialogAnswer ShowFor(DialogMode mode) override;
  bool SaveToGIFNoSingle(const std::string& target) override;
  void FreeGifObj() override;

 private:
  void Form_Load() override;
  bool OnCommand(int id, int code) override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  void CmdOk_Click();
  void CmdCancel_Click();

  bool Convert(const std::string& target);
  void ConvertSingle();

  const ProgramState& state_;
  HWND owner_;
  Dependencies dependencies_;
  std::optional<GifEncoder> encoder_;
  const PixelView* picture_ = nullptr;
  DialogMode mode_ = DialogMode::Single;
  std::string target_;
  DialogAnswer answer_ = DialogAnswer::Cancelled;
  bool converting_ = false;
};

}  // namespace tarvik
