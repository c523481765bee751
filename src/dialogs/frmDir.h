#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "dialogs/frmDirCreate.h"
#include "forms/FolderLists.h"
#include "forms/Form.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The folder chooser of the batch saves. If images are about to be saved, according to the state's SaveExtension, it
// also offers their types and stores the chosen one's extension there.
class frmDir final : public Form {
 public:
  // The functions that read the disk, and the initial folder.
  struct Dependencies {
    std::function<std::vector<DriveListBox::Drive>()> drives;
    DirListBox::ListFolders subFolders;
    frmDirCreate::MakeFolder makeFolder;
    std::function<std::string()> initialFolder;  // the main window's
  };

  // `state` outlives the form.
  frmDir(Application& application, ProgramState& state, Dependencies dependencies);

  // Shows the dialog modal to `owner`. Returns the chosen folder; empty if the user cancelled. The close box does not
  // cancel: it returns the folder last shown.
  std::string ShowDir(HWND owner);

 private:
  void Form_Load() override;
  bool PreviewMessage(const MSG& message) override;
  bool OnCommand(int id, int code) override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  void CboFileType_Click();
  void drvMain_DropDown();
  void drvMain_Change();
  void dirMain_Change();
  void dirMain_DblClick();
  void CmdOk_Click();
  void CmdCancel_Click();
  void cmdCreate_Click();
  void Reread();

  void FillFileTypes();
  void AddFileTypes();

  ProgramState& state_;
  Dependencies dependencies_;
  std::string SelectedDir;  // the dialog's answer
  DriveListBox drvMain_;
  DirListBox dirMain_;
  frmDirCreate create_;
};

}  // namespace tarvik
