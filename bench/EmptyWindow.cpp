// A program of one empty window, with which Tarvik's start is compared.

#include <windows.h>

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, wchar_t* /*commandLine*/, int /*show*/) {
  WNDCLASSW kind{};
  kind.lpfnWndProc = DefWindowProcW;
  kind.hInstance = instance;
  kind.lpszClassName = L"Empty";
  RegisterClassW(&kind);
  CreateWindowExW(0, kind.lpszClassName, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 400, 300, nullptr, nullptr,
                  instance, nullptr);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
