// Actions on the grid, the list and the enhanced view.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "driver/EnhancedView.h"
#include "driver/Waiting.h"

namespace tarvik::end_to_end {

void FinishedProgram::Click(const Action& action) {
  if (model_.listShown) return Skip();
  const int count = std::max(1, static_cast<int>(model_.entries.size()));
  const int index = action.a % count;
  const model::Geometry& size = model_.Size();
  const int x = action.c % 3 == 0 ? action.a % model::gridWidth : index % size.columns * size.pitch + 5;
  const int y = action.c % 3 == 0 ? action.b % model::viewportHeight : index / size.columns * size.pitch + 5;
  const bool ctrl = action.b % 2 == 1;
  Note("(" + std::to_string(x) + ", " + std::to_string(y) + ")" + (ctrl ? " Ctrl" : ""));
  model_.ClickGrid(x, y, ctrl);
  const Control grid = program_.Item(FrmFindIcon_PicIcons);
  const WPARAM keys = ctrl ? MK_CONTROL : 0U;
  grid.Send(WM_LBUTTONDOWN, keys | MK_LBUTTON, MAKELPARAM(x, y));
  grid.Send(WM_LBUTTONUP, keys, MAKELPARAM(x, y));
}

void FinishedProgram::Scroll(const Action& action) {
  if (model_.listShown || !model_.grid.Scrolls()) return Skip();
  static constexpr int requests[] = {SB_LINEDOWN, SB_LINEUP, SB_PAGEDOWN, SB_PAGEUP, SB_BOTTOM, SB_TOP};
  const int way = action.a % 6;
  const int line = model_.grid.LineStep();
  const int whole = model_.grid.InnerHeight();
  const int steps[] = {line, -line, model::viewportHeight, -model::viewportHeight, whole, -whole};
  model_.grid.ScrollBy(steps[way]);
  Note("to " + std::to_string(model_.grid.Scroll()));
  SendScroll(requests[way], FrmFindIcon_Vsb);
}

void FinishedProgram::Switch(const Action& action) {
  const bool list = action.a % 2 == 1;
  Note(list ? "list" : "grid");
  model_.ShowList(list);
  SendCommand(list ? FrmFindIcon_mnuViewopt1 : FrmFindIcon_mnuViewopt0);
}

void FinishedProgram::Invert(const Action& /*action*/) {
  if (model_.entries.empty()) return Skip();
  model_.Invert();
  SendCommand(FrmFindIcon_mnuRem);
}

void FinishedProgram::Labels(const Action& action) {
  const int which = action.a % 3;
  if (which == 0) model_.ToggleLabel();
  if (which != 0) model_.NumberByFile(which == 2);
  SendCommand(FrmFindIcon_mnuShowLabel + (which == 0 ? 0 : which + 1));
}

void FinishedProgram::View(const Action& action) {
  if (model_.entries.empty() || model_.listShown) return Skip();
  model_.OpenView();
  program_.Item(FrmFindIcon_PicIcons).Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
  const EnhancedView view(program_);
  program_.Item(FrmFindIcon_PicIcons).Post(WM_NULL);
  static constexpr int buttons[] = {frmBit_tlb_control_MoveNext, frmBit_tlb_control_MovePrev,
                                    frmBit_tlb_control_MoveFirst, frmBit_tlb_control_MoveLast};
  for (const int way : {action.a % 4, action.b % 4, action.c % 4}) {
    if (way < 2) model_.Step(way == 0 ? 1 : -1);
    if (way == 2) model_.First();
    if (way == 3) model_.Last();
    view.Press(buttons[way]);
  }
  model_.Zoom(action.c % 10);
  view.ChooseFactor(action.c % 10 + 1);
  if (view.Caption() != model_.view.title) boxDifference_ += "view's title: " + view.Caption() + "\n";
  if (view.Status() != model_.view.status) boxDifference_ += "view's status: " + view.Status() + "\n";
  model_.CloseView();
  view.Close();
  Eventually([this] { return program_.Window().IsEnabled(); });
}

void FinishedProgram::Copy(const Action& /*action*/) {
  if (model_.entries.empty()) return Skip();
  SendCommand(FrmFindIcon_mnuCopy);
}

}  // namespace tarvik::end_to_end
