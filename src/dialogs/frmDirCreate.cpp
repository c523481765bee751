#include "dialogs/frmDirCreate.h"

#include <utility>

#include "base/FolderPath.h"
#include "dialogs/FolderDialogTexts.h"
#include "forms/MessageBox.h"
#include "resource.h"
#include "startup/FormPlacement.h"

namespace tarvik {

frmDirCreate::frmDirCreate(Application& application, const ProgramState& state, MakeFolder makeFolder,
                           std::function<void(const std::string& folder)> created)
    : Form(application, Dialog_frmDirCreate),
      state_(state),
      makeFolder_(std::move(makeFolder)),
      created_(std::move(created)) {}

void frmDirCreate::Form_Load() {
  basInitEntry::ApplySkinToForm(*this);
  basInitEntry::CenterForm(*this);
  SetTexts(*this, frmDirCreateTexts, state_.CurrentLanguage);
  if (const auto name = Pick(newFolderName, state_.CurrentLanguage)) SetItemText(frmDirCreate_txt, *name);
  if (const auto caption = Compose(createInCaption, state_.CurrentLanguage, {parent_})) SetCaption(*caption);
}

void frmDirCreate::CreateDir(HWND owner, const std::string& parent) {
  parent_ = parent;
  ShowModal(owner);
}

bool frmDirCreate::OnCommand(int id, int code) {
  static constexpr Event<frmDirCreate> events[] = {
      {frmDirCreate_txt, frmDirCreate_txt, EN_SETFOCUS, Call<&frmDirCreate::txt_GotFocus>},
      {frmDirCreate_CmdOk, frmDirCreate_CmdOk, BN_CLICKED, Call<&frmDirCreate::CmdOk_Click>},
      {frmDirCreate_CmdCancel, frmDirCreate_CmdCancel, BN_CLICKED, Call<&frmDirCreate::CmdCancel_Click>},
      {IDCANCEL, IDCANCEL, BN_CLICKED, Call<&frmDirCreate::CmdCancel_Click>},  // Esc
  };
  return Dispatch<frmDirCreate>(*this, events, id, code);
}

void frmDirCreate::txt_GotFocus() {
  SendMessageW(Item(frmDirCreate_txt), EM_SETSEL, 0, -1);
}

void frmDirCreate::CmdOk_Click() {
  if (const auto folder = makeFolder_(JoinPath(parent_, ItemText(frmDirCreate_txt)))) {
    created_(*folder);
    return Unload();
  }
  const auto text = Pick(cannotCreateText, state_.CurrentLanguage);
  const auto title = Pick(cannotCreateTitle, state_.CurrentLanguage);
  if (text && title) ShowMessage(Window(), *text, *title, MessageSign::Critical);
}

void frmDirCreate::CmdCancel_Click() {
  Unload();
}

}  // namespace tarvik
