// A program that only shows the template of the start-up window: the lower bound for a start with this window.

#include <windows.h>

#include <commctrl.h>

#include "forms/PictureBox.h"
#include "resource.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, wchar_t* /*commandLine*/, int /*show*/) {
  InitCommonControls();  // loads the library that the manifest names
  WNDCLASSW kind{};
  kind.lpfnWndProc = DefWindowProcW;
  kind.hInstance = instance;
  kind.lpszClassName = tarvik::PictureBox::className;
  RegisterClassW(&kind);
  const HWND window = CreateDialogParamW(instance, MAKEINTRESOURCEW(Dialog_FrmSpash), nullptr, nullptr, 0);
  ShowWindow(window, SW_SHOW);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
