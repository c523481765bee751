#pragma once

#include <windows.h>

#include <string>

#include "base/FileSink.h"
#include "encoders/ImageDialogs.h"
#include "encoders/JpegExport.h"
#include "encoders/fComment.h"
#include "forms/Form.h"
#include "forms/ScrollBar.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The JPEG options dialog. Every change is applied to the encoder; in mode Single its OK writes the file, in mode
// NoSingle it only hides and keeps the encoder for SaveToJPGForNoSingle.
class fSaveJPG final : public Form, public JpegDialog {
 public:
  // Shown modal to `owner`. All arguments outlive the form.
  fSaveJPG(Application& application, const ProgramState& state, HWND owner, FileSink& sink);

  void InitJpegExport(const PixelView& picture, const std::string& target, DialogMode mode) override;
  DialogAnswer ShowFor(DialogMode mode) override;
  bool SaveToJPGForNoSingle(const std::string& target) override;
  void FreeObj() override;

 private:
  void Form_Load() override;
  bool OnCommand(int id, int code) override;
  void OnScroll(HWND scrollBar, int request) override;

  void CboSize_Click();
  void hscQuality_Change();
  void cboSubSample_Click();
  void cmdComment_Click();
  void cmdFinish_Click(int index);
  void Cancel();

  void FillLists();
  void Finish(bool accepted);

  const ProgramState& state_;
  HWND owner_;
  JpegExport export_;
  DialogAnswer answer_ = DialogAnswer::Cancelled;
  ScrollBar hscQuality_;
  fComment comment_;
};

}  // namespace tarvik
