#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "forms/Form.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The new-folder dialog: creates a sub-folder of a given folder. If that fails, it says so and stays open with the
// typed name.
class frmDirCreate final : public Form {
 public:
  // Creates a folder and returns its path, or nothing if it cannot be created.
  using MakeFolder = std::function<std::optional<std::string>(const std::string& path)>;

  // `created` is called with the path of a created folder. `state` outlives the form.
  frmDirCreate(Application& application, const ProgramState& state, MakeFolder makeFolder,
               std::function<void(const std::string& folder)> created);

  // Shows the dialog modal to `owner`, for a sub-folder of `parent`.
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
