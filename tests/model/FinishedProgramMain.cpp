// Actions on the options of the main window, and the search.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "driver/Waiting.h"
#include "platform/DroppedBlock.h"

namespace tarvik::end_to_end {

using model::Front;

void FinishedProgram::Find(const Action& action) {
  const int way = action.a % 3 == 1 && !model_.fileEnabled ? 0 : action.a % 3;
  static constexpr const char* ways[] = {"by the button", "by the menu", "by Enter"};
  Note(ways[way]);
  const Control find = program_.Item(FrmFindIcon_CmdFind);
  model_.Find();
  const bool fails = model_.Foremost() == Front::Box;
  // Sent, so that the search is over then: the windows can look as if it were before it begins.
  if (way == 0 && !fails) return static_cast<void>(find.Send(BM_CLICK));
  if (way == 1 && !fails) return SendCommand(FrmFindIcon_mnuStart);
  if (way == 0) find.Press();
  if (way == 1) program_.Command(FrmFindIcon_mnuStart);
  if (way == 2) program_.Item(FrmFindIcon_txtMax).Post(WM_KEYDOWN, VK_RETURN);
  if (fails) {
    PassBox();
  } else {
    WaitForPosted();
  }
  Eventually([this] { return IsEnabled(FrmFindIcon_CmdFind); });
}

void FinishedProgram::Tick(const Action& action) {
  const int box = action.a % 7;
  Note(std::to_string(box));
  model_.TickType(box);
  program_.Item(FrmFindIcon_ChkFileType0 + box).Send(BM_CLICK);
}

void FinishedProgram::SubDir(const Action& /*action*/) {
  model_.TickSubDir();
  program_.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
}

void FinishedProgram::Size(const Action& action) {
  Note(std::to_string(action.a % 4));
  model_.ChooseSize(action.a % 4);
  program_.Item(FrmFindIcon_CboIconSize).ChooseComboItem(action.a % 4);
}

void FinishedProgram::Limit(const Action& action) {
  const auto& text = model::limitTexts.at(static_cast<std::size_t>(action.a) % model::limitTexts.size());
  const bool byKeys = action.b % 2 == 1;
  Note(std::string(text.text) + (byKeys ? " by keys" : ""));
  model_.TypeLimit(text);
  const Control limit = program_.Item(FrmFindIcon_txtMax);
  if (!byKeys) return limit.SetText(text.text);
  limit.Send(EM_SETSEL, 0, -1);
  limit.Send(WM_CHAR, VK_BACK);
  for (const char letter : std::string(text.text)) limit.Send(WM_CHAR, static_cast<WPARAM>(letter));
}

void FinishedProgram::Spin(const Action& action) {
  model_.Spin(action.a % 2 == 0);
  SendScroll(action.a % 2 == 0 ? SB_LINEUP : SB_LINEDOWN, FrmFindIcon_udMain);
}

int FinishedProgram::FolderRow(int number) const {
  const bool onStick = model_.folder.starts_with(stickRoot);
  const auto first = onStick ? 0 : static_cast<int>(model::Chain(tree_.Path()).size()) - 1;
  return first + number % (static_cast<int>(model_.folderRows.size()) - first);
}

void FinishedProgram::Open(const Action& action) {
  const int row = FolderRow(action.a);
  Note(model_.folderRows.at(static_cast<std::size_t>(row)));
  model_.OpenFolderRow(row);
  const Control list = program_.Item(FrmFindIcon_Dir1);
  list.Send(LB_SETCURSEL, static_cast<WPARAM>(row));
  program_.Window().Send(WM_COMMAND, MAKEWPARAM(FrmFindIcon_Dir1, LBN_DBLCLK), reinterpret_cast<LPARAM>(list.Window()));
}

// A click only chooses a folder; Enter opens the chosen one.
void FinishedProgram::ClickFolder(const Action& action) {
  const int row = FolderRow(action.a);
  const bool opens = action.b % 2 == 0;
  Note(model_.folderRows.at(static_cast<std::size_t>(row)) + (opens ? ", Enter" : ""));
  const Control list = program_.Item(FrmFindIcon_Dir1);
  POINT middle = list.ListRowMiddle(row);
  ScreenToClient(list.Window(), &middle);
  model_.ClickFolderRow(row);
  list.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
  list.Send(WM_LBUTTONUP, 0, MAKELPARAM(middle.x, middle.y));
  if (!opens) return;
  model_.OpenFolderRow(row);
  list.Send(WM_KEYDOWN, VK_RETURN);
}

// The test knows only what it made, so drive C: is reached by the folders dropped.
void FinishedProgram::ChooseDrive(const Action& action) {
  const model::Disk::Drive& chosen = drives[static_cast<std::size_t>(action.a % 4 == 0 ? 1 : 0)];
  Note(chosen.root);
  const Control list = program_.Item(FrmFindIcon_Drive1);
  const std::vector<std::string> texts = list.ComboItems();
  const auto row = static_cast<int>(std::ranges::find(texts, chosen.text) - texts.begin());
  if (row == static_cast<int>(texts.size())) return Tell("not in the list of drives: " + chosen.text + "\n");
  model_.ChooseDrive(chosen);
  if (model_.Foremost() != Front::Box) return list.ChooseComboItem(row);
  list.PostComboChoice(row);
  PassBox();
}

// The message refers to memory of the receiving process. Windows copies the data there itself; under Wine the sender
// has to.
void FinishedProgram::Drop(const Action& action) {
  const std::string folder = Folder(action.a);
  const std::vector<std::string> files = disk_.Files(folder, "*.*");
  const bool isFile = action.b % 2 == 1 && !files.empty();
  const std::string dropped =
      isFile ? model::Joined(folder, files.at(static_cast<std::size_t>(action.c) % files.size())) : folder;
  Note(dropped);
  model_.Drop({dropped});
  const std::vector<std::byte> block = support::DroppedBlock({dropped});
  void* memory = VirtualAllocEx(program_.Process(), nullptr, block.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  if (WriteProcessMemory(program_.Process(), memory, block.data(), block.size(), nullptr) == 0)
    throw std::runtime_error("memory of the other process cannot be written");
  program_.Window().Post(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
  WaitForPosted();
}

}  // namespace tarvik::end_to_end
