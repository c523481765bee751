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

  // Shows the dialog modally over `owner` with that text (UTF-8). The text as its button left it; as it was where the
  // dialog was closed otherwise.
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
