#pragma once

#include <windows.h>

#include <string>

#include "forms/Form.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The dialog that edits the comment of JPEG files.
class fComment final : public Form {
 public:
  // `state` outlives the form.
  fComment(Application& application, const ProgramState& state);

  // Shows the dialog modal to `owner` with that text (UTF-8). Returns the text as left by the button that closed the
  // dialog; unchanged if it was closed otherwise.
  std::string Edit(HWND owner, const std::string& comment);

 private:
  void Form_Load() override;
  bool OnCommand(int id, int code) override;

  void cmdFinish_Click();
  void Cancel();

  const ProgramState& state_;
  std::string comment_;
};

}  // namespace tarvik
