// Actions on the options of the main window, and the search.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <string>

#include "driver/Waiting.h"

namespace tarvik::end_to_end {

using model::Front;

void FinishedProgram::Find(const Action& /*action*/) {
  model_.Find();
  const Control find = program_.Item(FrmFindIcon_CmdFind);
  // Sent, so that the search is over then: the windows can look as if it were before it begins.
  if (model_.Foremost() != Front::Box) return static_cast<void>(find.Send(BM_CLICK));
  find.Press();
  const Box box = program_.WaitForBox();
  boxDifference_ = box.Title() == model_.box.title ? "" : "box's title: " + box.Title() + "\n";
  model_.AnswerBox();
  box.Press(IDOK);
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
  Note(text.text);
  model_.TypeLimit(text);
  program_.Item(FrmFindIcon_txtMax).SetText(text.text);
}

void FinishedProgram::Spin(const Action& action) {
  model_.Spin(action.a % 2 == 0);
  SendScroll(action.a % 2 == 0 ? SB_LINEUP : SB_LINEDOWN, FrmFindIcon_udMain);
}

// A folder that the test made.
void FinishedProgram::Open(const Action& action) {
  const auto first = static_cast<int>(model::Chain(tree_.Path()).size()) - 1;
  const int row = first + action.a % (static_cast<int>(model_.folderRows.size()) - first);
  Note(model_.folderRows.at(static_cast<std::size_t>(row)));
  model_.OpenFolderRow(row);
  program_.Item(FrmFindIcon_Dir1).Send(LB_SETCURSEL, static_cast<WPARAM>(row));
  const Control list = program_.Item(FrmFindIcon_Dir1);
  program_.Window().Send(WM_COMMAND, MAKEWPARAM(FrmFindIcon_Dir1, LBN_DBLCLK), reinterpret_cast<LPARAM>(list.Window()));
}

}  // namespace tarvik::end_to_end
