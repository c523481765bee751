#include "forms/Application.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "forms/Form.h"
#include "forms/PictureBox.h"

namespace tarvik {
namespace {

// Alt+F4 closes the window wherever the focus is: Wine's drop-down lists would handle it themselves.
bool IsCloseKey(const MSG& message) {
  return message.message == WM_SYSKEYDOWN && message.wParam == VK_F4;
}

}  // namespace

Application::Application(HINSTANCE instance) : instance_(instance) {
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&classes);
  PictureBox::Register(instance);
}

void Application::Run() {
  RunWhile([this] { return !forms_.empty(); });
}

void Application::RunWhile(const std::function<bool()>& condition) {
  MSG message;
  while (condition()) {
    // Below zero is an error, which only a wrong argument can cause; zero is WM_QUIT.
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Serve(message);
  }
}

bool Application::HasMessages() {
  return HIWORD(GetQueueStatus(QS_ALLINPUT)) != 0;
}

void Application::DoEvents() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Serve(message);
  }
}

void Application::EndSession() {
  hasEnded_ = true;
  while (!forms_.empty()) forms_.back()->Unload();
  if (onSessionEnd) onSessionEnd();
  // The system's dialogs and message boxes have their own loops, which end with this message.
  PostQuitMessage(0);
}

void Application::Serve(MSG& message) {
  if (Form* form = FormOf(message.hwnd)) {
    if (form->TakesMessage(message)) return;
    // If a menu and a control underline the same letter, the menu gets it; the system would search the controls first.
    if (message.message == WM_SYSCHAR && form->TheMenu().OpensBy(static_cast<wchar_t>(message.wParam))) {
      SendMessageW(form->Window(), WM_SYSCOMMAND, SC_KEYMENU, static_cast<LPARAM>(message.wParam));
      return;
    }
    if (IsCloseKey(message)) {
      SendMessageW(form->Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
      return;
    }
    if (IsDialogMessageW(form->Window(), &message)) return;
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

Form* Application::FormOf(HWND window) const {
  const HWND root = window != nullptr ? GetAncestor(window, GA_ROOT) : nullptr;
  const auto found = std::ranges::find_if(forms_, [root](const Form* form) { return form->Window() == root; });
  return root != nullptr && found != forms_.end() ? *found : nullptr;
}

}  // namespace tarvik
