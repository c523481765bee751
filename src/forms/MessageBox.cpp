#include "forms/MessageBox.h"

#include "forms/Application.h"
#include "platform/Text.h"

namespace tarvik {

void ShowMessage(HWND owner, std::string_view text, std::string_view title, MessageSign sign) {
  const bool hasOwner = IsWindow(owner) != FALSE;
  MessageBoxW(owner, ToWide(text).c_str(), ToWide(title).c_str(), MB_OK | static_cast<UINT>(sign));
  if (hasOwner && IsWindow(owner) == FALSE) throw GivenUp();
}

}  // namespace tarvik
