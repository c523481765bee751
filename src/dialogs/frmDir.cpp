#include "dialogs/frmDir.h"

#include <windows.h>

#include <windowsx.h>

#include <utility>

#include "dialogs/FolderDialogTexts.h"
#include "dialogs/SaveFolder.h"
#include "export/ImageTypes.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/FormPlacement.h"

namespace tarvik {

frmDir::frmDir(Application& application, ProgramState& state, Dependencies dependencies)
    : Form(application, Dialog_frmDir),
      state_(state),
      dependencies_(std::move(dependencies)),
      create_(application, state, dependencies_.makeFolder,
              [this](const std::string& folder) { dirMain_.SetPath(folder); }) {}

// The close box does not change SelectedDir, so it does not cancel (deliberate: oddities 44).
std::string frmDir::ShowDir(HWND owner) {
  ShowModal(owner);
  return SelectedDir;
}

void frmDir::Form_Load() {
  basInitEntry::ApplySkinToForm(*this);
  basInitEntry::CenterForm(*this);
  const bool images = OffersImageTypes(state_.SaveExtension);
  if (images) FillFileTypes();
  ShowItem(frmDir_CboFileType, images);

  drvMain_.Attach(Item(frmDir_drvMain), dependencies_.drives);
  dirMain_ = DirListBox();  // with this window's own folder, not the one chosen last time
  dirMain_.Attach(Item(frmDir_dirMain), dependencies_.subFolders, [this] { dirMain_Change(); });
  const std::string folder = dependencies_.initialFolder();
  dirMain_.SetPath(folder);
  drvMain_.ChooseDriveOf(folder);
  SetTexts(*this, frmDirTexts, state_.CurrentLanguage);
}

void frmDir::FillFileTypes() {
  ComboBox_ResetContent(Item(frmDir_CboFileType));
  AddFileTypes();
  ComboBox_SetCurSel(Item(frmDir_CboFileType), 0);
  CboFileType_Click();
}

void frmDir::AddFileTypes() {
  for (const FileType& type : imageTypes)
    ComboBox_AddString(Item(frmDir_CboFileType), ToWide(type.description).c_str());
}

// F5 reads drives and folders again, as in the main window.
bool frmDir::PreviewMessage(const MSG& message) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_F5 || HeldKeys() != 0) return false;
  SendMessageW(Window(), WM_COMMAND, frmDir_keyRefresh, 0);
  return true;
}

bool frmDir::OnCommand(int id, int code) {
  static constexpr Event<frmDir> events[] = {
      {frmDir_CboFileType, frmDir_CboFileType, CBN_SELCHANGE, Call<&frmDir::CboFileType_Click>},
      {frmDir_drvMain, frmDir_drvMain, CBN_DROPDOWN, Call<&frmDir::drvMain_DropDown>},
      {frmDir_drvMain, frmDir_drvMain, CBN_SELCHANGE, Call<&frmDir::drvMain_Change>},
      {frmDir_dirMain, frmDir_dirMain, LBN_DBLCLK, Call<&frmDir::dirMain_DblClick>},
      {frmDir_CmdOk, frmDir_CmdOk, BN_CLICKED, Call<&frmDir::CmdOk_Click>},
      {frmDir_CmdCancel, frmDir_CmdCancel, BN_CLICKED, Call<&frmDir::CmdCancel_Click>},
      {frmDir_cmdCreate, frmDir_cmdCreate, BN_CLICKED, Call<&frmDir::cmdCreate_Click>},
      {IDCANCEL, IDCANCEL, BN_CLICKED, Call<&frmDir::CmdCancel_Click>},  // Esc
      {frmDir_keyRefresh, frmDir_keyRefresh, 0, Call<&frmDir::Reread>},
  };
  return Dispatch<frmDir>(*this, events, id, code);
}

void frmDir::OnDrawItem(const DRAWITEMSTRUCT& item) {
  if (item.CtlID == frmDir_dirMain) dirMain_.Draw(item);
}

// Each choice adds all types to the list once more (deliberate: oddities 43). Only the first nine rows have an
// extension.
void frmDir::CboFileType_Click() {
  AddFileTypes();
  if (const auto extension = ImageExtension(ComboBox_GetCurSel(Item(frmDir_CboFileType))))
    state_.SaveExtension = *extension;
}

void frmDir::drvMain_DropDown() {
  drvMain_.Refresh();
}

void frmDir::drvMain_Change() {
  dirMain_.SetPath(drvMain_.Root());
}

void frmDir::dirMain_Change() {
  SelectedDir = dirMain_.Path();
  SetItemText(frmDir_lblDir, SelectedDir);
}

void frmDir::dirMain_DblClick() {
  dirMain_.OpenChosen();
}

void frmDir::CmdOk_Click() {
  SelectedDir = dirMain_.Path();
  Unload();
}

void frmDir::CmdCancel_Click() {
  SelectedDir.clear();
  Unload();
}

void frmDir::cmdCreate_Click() {
  create_.CreateDir(Window(), dirMain_.Path());
  dirMain_.Refresh();
}

void frmDir::Reread() {
  drvMain_.Refresh();
  dirMain_.Reread();
}

}  // namespace tarvik
