// Actions on the grid, the list and the enhanced view.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string>

#include "base/NonCopyable.h"
#include "driver/EnhancedView.h"
#include "driver/Input.h"
#include "driver/Waiting.h"
#include "model/Compared.h"
#include "platform/PastedPicture.h"

namespace tarvik::end_to_end {
namespace {

// Ctrl and Shift as the other program sees them while it handles what is sent to it.
class HeldState : NonCopyable {
 public:
  HeldState(HWND window, bool ctrl, bool shift) : thread_(GetWindowThreadProcessId(window, nullptr)) {
    AttachThreadInput(GetCurrentThreadId(), thread_, TRUE);
    Hold(ctrl, shift);
  }
  ~HeldState() {
    Hold(false, false);
    AttachThreadInput(GetCurrentThreadId(), thread_, FALSE);
  }

 private:
  static void Hold(bool ctrl, bool shift) {
    constexpr BYTE down = 0x80;
    std::array<BYTE, 256> keys{};
    keys[VK_CONTROL] = keys[VK_LCONTROL] = ctrl ? down : BYTE{0};
    keys[VK_SHIFT] = keys[VK_LSHIFT] = shift ? down : BYTE{0};
    SetKeyboardState(keys.data());
  }

  DWORD thread_;
};

}  // namespace

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

int FinishedProgram::ScrollModel(const Action& action) {
  const int way = action.a % 6;
  const int line = model_.grid.LineStep();
  const int whole = model_.grid.InnerHeight();
  const int steps[] = {line, -line, model::viewportHeight, -model::viewportHeight, whole, -whole};
  model_.grid.ScrollBy(steps[way]);
  Note("to " + std::to_string(model_.grid.Scroll()));
  return way;
}

void FinishedProgram::Scroll(const Action& action) {
  if (model_.listShown || !model_.grid.Scrolls()) return Skip();
  static constexpr int requests[] = {SB_LINEDOWN, SB_LINEUP, SB_PAGEDOWN, SB_PAGEUP, SB_BOTTOM, SB_TOP};
  const int way = ScrollModel(action);
  SendScroll(requests[way], FrmFindIcon_Vsb);
}

// In parts of a notch, too. The pointer's position in the message is over the grid.
void FinishedProgram::TurnWheel(const Action& action) {
  if (model_.listShown || !model_.grid.Scrolls()) return Skip();
  static constexpr int deltas[] = {-120, 120, -240, -30, 40, -7, 360};
  const int delta = deltas[action.a % 7];
  UINT lines = 0;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  model_.grid.Turn(delta, static_cast<int>(lines));
  Note(std::to_string(delta) + " to " + std::to_string(model_.grid.Scroll()));
  const POINT middle = MiddleOf(program_.Item(FrmFindIcon_PicFrame).Bounds());
  program_.Item(FrmFindIcon_CmdFind).Post(WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(middle.x, middle.y));
  WaitForPosted();
}

void FinishedProgram::ScrollByKey(const Action& action) {
  if (model_.listShown || !model_.grid.Scrolls()) return Skip();
  static constexpr WPARAM keys[] = {VK_DOWN, VK_UP, VK_NEXT, VK_PRIOR, VK_END, VK_HOME};
  const int way = ScrollModel(action);
  const Control bar = program_.Item(FrmFindIcon_Vsb);
  bar.Send(WM_KEYDOWN, keys[way]);
  bar.Send(WM_KEYUP, keys[way]);
}

void FinishedProgram::ClickList(const Action& action) {
  if (!model_.listShown || model_.entries.empty()) return Skip();
  const int row = action.a % static_cast<int>(model_.entries.size());
  const bool ctrl = action.b % 3 == 1;
  const bool shift = action.c % 3 == 1 && model_.anchor.has_value();
  Note("row " + std::to_string(row + 1) + (ctrl ? " Ctrl" : "") + (shift ? " Shift" : ""));
  model_.ClickRow(row, ctrl, shift);
  const Control list = program_.Item(FrmFindIcon_Lv);
  list.Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  const RECT bounds = ReportView(list).RowBounds(row);
  POINT point{bounds.left + 12, (bounds.top + bounds.bottom) / 2};
  ScreenToClient(list.Window(), &point);
  const WPARAM keys = (ctrl ? MK_CONTROL : 0U) | (shift ? MK_SHIFT : 0U);
  const HeldState held(list.Window(), ctrl, shift);
  list.Send(WM_LBUTTONDOWN, keys | MK_LBUTTON, MAKELPARAM(point.x, point.y));
  list.Send(WM_LBUTTONUP, keys, MAKELPARAM(point.x, point.y));
  WaitForPosted();  // the program notes the choice, and follows it by a message that it posts
}

void FinishedProgram::SelectAll(const Action& /*action*/) {
  if (!model_.listShown || model_.entries.empty()) return Skip();
  model_.SelectAllRows();
  SendCommand(FrmFindIcon_keySelectAll);
}

void FinishedProgram::Switch(const Action& action) {
  const bool list = action.a % 2 == 1;
  const bool byButton = action.b % 2 == 1;
  Note(std::string(list ? "list" : "grid") + (byButton ? " by the button" : ""));
  model_.ShowList(list);
  if (byButton) {
    program_.Item(list ? FrmFindIcon_OptView1 : FrmFindIcon_OptView0).Send(BM_CLICK);
  } else {
    SendCommand(list ? FrmFindIcon_mnuViewopt1 : FrmFindIcon_mnuViewopt0);
  }
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

// By a double click on an icon; the mouse may move a little between the two clicks.
void FinishedProgram::View(const Action& action) {
  if (model_.entries.empty() || model_.listShown) return Skip();
  const int index = action.a / 4 % static_cast<int>(model_.entries.size());
  const model::Geometry& size = model_.Size();
  const int x = index % size.columns * size.pitch + size.pitch - 4;
  const int y = index / size.columns * size.pitch + 5;
  const int moved = action.b / 4 % 2 == 1 ? 3 : 0;
  Note("at (" + std::to_string(x) + ", " + std::to_string(y) + ")" + (moved == 0 ? "" : ", moved"));
  model_.ClickGrid(x, y, false);
  model_.OpenView();
  const Control grid = program_.Item(FrmFindIcon_PicIcons);
  grid.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  grid.Send(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
  if (moved != 0) grid.Send(WM_MOUSEMOVE, 0, MAKELPARAM(x + moved, y));
  grid.Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x + moved, y));
  const EnhancedView view(program_);
  LookAround(view, action);
  model_.CloseView();
  view.Close();
  Eventually([this] { return program_.Window().IsEnabled(); });
}

void FinishedProgram::LookAround(const EnhancedView& view, const Action& action) {
  CompareView(view);
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
  CompareView(view);
  if (action.c / 4 % 2 == 1) RunShow(view);
}

// Slowed down first, so that no tick of the real clock comes in between.
void FinishedProgram::RunShow(const EnhancedView& view) {
  view.Press(frmBit_tlb_control_Slower, 30);
  model_.RunShow(true);
  view.Press(frmBit_tlb_control_Start);
  if (!view.ShowIsOn()) Tell("the slide show is off after its start\n");
  model_.Tick();
  view.Tick();
  CompareView(view);
  model_.RunShow(false);
  view.Press(frmBit_tlb_control_Stop);
  if (!view.ShowIsOff()) Tell("the slide show is on after its end\n");
  CompareView(view);
}

void FinishedProgram::CompareView(const EnhancedView& view) {
  Tell(model::Compared("view's title", model_.view.title, view.Caption()));
  Tell(model::Compared("view's status", model_.view.status, view.Status()));
}

void FinishedProgram::Copy(const Action& /*action*/) {
  if (model_.entries.empty()) return Skip();
  const model::Picture expected = Captured(model_.current).composed;
  SendCommand(FrmFindIcon_mnuCopy);
  const support::PastedPicture seen = support::Paste();
  if (seen.width != expected.width || seen.height != expected.height ||
      !std::ranges::equal(seen.pixels, expected.pixels))
    Tell("the clipboard's picture is not that of the current icon\n");
}

}  // namespace tarvik::end_to_end
