#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "forms/Form.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The new-folder dialog: makes a sub-folder of the folder it is given. Where that fails it says so and stays open with
// the name as it was typed.
class frmDirCreate final : public Form {
 public:
  // Makes a folder and gives its path, or nothing where it cannot be made.
  using MakeFolder = std::function<std::optional<std::string>(const std::string& path)>;

  // `created` is told the path of a folder that was made. `state` outlives the form.
  frmDirCreate(Application& application, const ProgramState& state, MakeFolder makeFolder,
               std::function<void(const std::string& folder)> created);

  // Shows the dialog modally over `owner`, for a sub-folder of `parent`.
  void CreateDir(HWND owner, const std::string& parent);

 private:
  void Form_Load() override;
  bool OnCommand(int id, int code) override;

  void txt_GotFocus();
  void CmdOk_Click();
  void CmdCancel_Click();

  const ProgramState& state_;
  MakeFolder makeFolder_;
  std::function<void(const std::string& folder)> created_;
  std::string parent_;
};

}  // namespace tarvik
