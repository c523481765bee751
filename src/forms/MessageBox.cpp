#include "forms/MessageBox.h"

#include "platform/Text.h"

namespace tarvik {

void ShowMessage(HWND owner, std::string_view text, std::string_view title, MessageSign sign) {
  MessageBoxW(owner, ToWide(text).c_str(), ToWide(title).c_str(), MB_OK | static_cast<UINT>(sign));
}

}  // namespace tarvik
