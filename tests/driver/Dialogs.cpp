#include "driver/Dialogs.h"

#include <windows.h>

#include <algorithm>
#include <stdexcept>

#include "driver/Waiting.h"
#include "resource.h"

namespace tarvik::end_to_end {
namespace {

int OpenCreateDialog(const FolderChooser& chooser) {
  chooser.Press(frmDir_cmdCreate);
  return frmDirCreate_txt;
}

}  // namespace

void Dialog::WaitForEnd() const {
  if (!Eventually([&] { return !IsOpen(); })) throw std::runtime_error("the dialog stays");
}

void Dialog::End(int button) const {
  Press(button);
  WaitForEnd();
}

void Dialog::EndByCloseBox() const {
  window_.Post(WM_SYSCOMMAND, SC_CLOSE);
  WaitForEnd();
}

FolderChooser::FolderChooser(const Program& program) : Dialog(program, frmDir_dirMain) {}

std::string FolderChooser::Path() const {
  return TextOf(frmDir_lblDir);
}

std::vector<std::string> FolderChooser::Folders() const {
  return Item(frmDir_dirMain).ListItems();
}

void FolderChooser::Open(const std::string& name) const {
  const std::vector<std::string> folders = Folders();
  const auto found = std::ranges::find(folders, name);
  if (found == folders.end()) throw std::runtime_error("the chooser shows no folder " + name);
  const Control list = Item(frmDir_dirMain);
  list.Send(LB_SETCURSEL, static_cast<WPARAM>(found - folders.begin()));
  Window().Send(WM_COMMAND, MAKEWPARAM(frmDir_dirMain, LBN_DBLCLK), reinterpret_cast<LPARAM>(list.Window()));
}

void FolderChooser::ChooseDrive(char letter) const {
  const std::vector<std::string> drives = Item(frmDir_drvMain).ComboItems();
  const auto found = std::ranges::find_if(drives, [letter](const auto& drive) { return drive.starts_with(letter); });
  if (found == drives.end()) throw std::runtime_error(std::string("the chooser shows no drive ") + letter);
  Item(frmDir_drvMain).ChooseComboItem(static_cast<int>(found - drives.begin()));
}

bool FolderChooser::OffersTypes() const {
  return Item(frmDir_CboFileType).IsVisible();
}

std::vector<std::string> FolderChooser::Types() const {
  return Item(frmDir_CboFileType).ComboItems();
}

void FolderChooser::ChooseType(int index) const {
  Item(frmDir_CboFileType).ChooseComboItem(index);
}

void FolderChooser::Ok() const {
  End(frmDir_CmdOk);
}

void FolderChooser::Cancel() const {
  End(frmDir_CmdCancel);
}

NewFolderDialog::NewFolderDialog(const Program& program, const FolderChooser& chooser)
    : Dialog(program, OpenCreateDialog(chooser)) {}

std::string NewFolderDialog::Name() const {
  return TextOf(frmDirCreate_txt);
}

void NewFolderDialog::Create(const std::string& name) const {
  Item(frmDirCreate_txt).SetText(name);
  Press(frmDirCreate_CmdOk);
}

}  // namespace tarvik::end_to_end
