// The SaveWindow side of the main window, used by the save and copy commands.

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "base/Finally.h"
#include "forms/MessageBox.h"
#include "platform/Text.h"
#include "resource.h"
#include "search/window/FrmFindIcon.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

std::string StatusText(HWND bar) {
  std::wstring text(LOWORD(SendMessageW(bar, SB_GETTEXTLENGTHW, 0, 0)) + std::size_t{1}, L'\0');
  SendMessageW(bar, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return ToUtf8(text);
}

}  // namespace

Finally FrmFindIcon::ShowStatus(const std::string& text) {
  Finally restores([this, former = StatusText(Item(FrmFindIcon_sbMain))] { SetStatusText(former); });
  SetStatusText(text);
  return restores;
}

void FrmFindIcon::ShowMessage(const std::string& text, MessageKind kind) {
  dependencies_.icons.LetGo();
  const Finally error = kind == MessageKind::Failure ? progress_.ShowError() : Finally();
  tarvik::ShowMessage(Window(), text, FailureTitle(dependencies_.state.CurrentLanguage),
                      kind == MessageKind::Failure ? MessageSign::Exclamation : MessageSign::Information);
}

void FrmFindIcon::OnRuntimeError(const RuntimeError& error) {
  const Finally shown = progress_.ShowError();
  Form::OnRuntimeError(error);
}

Finally FrmFindIcon::HoldCommands() {
  // First, because it can fail, and a window left in the saving state would never accept input again.
  savesInTurn_ = dependencies_.icons.InTurn();
  isSaving_ = true;
  return Finally([this] {
    isSaving_ = false;
    savesInTurn_.Now();
  });
}

// All messages are served and not only WM_PAINT, so that the system does not take the window for a hung one; input is
// removed before it reaches any control. If no message waits, icons extracted in advance are kept: a batch would
// otherwise discard about as many as it uses.
void FrmFindIcon::ServePainting() {
  if (!looks_.IsDue()) return;
  looks_.Note();
  if (!serves_.IsDue() && !Application::HasMessages()) {
    dependencies_.icons.LetGoIfChanged();
    return;
  }
  dependencies_.icons.LetGo();
  TheApplication().DoEvents();
  if (!IsLoaded()) throw GivenUp();
  looks_.Note();
  serves_.Note();
}

}  // namespace tarvik
