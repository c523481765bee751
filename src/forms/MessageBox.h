#pragma once

#include <windows.h>

#include <string_view>

namespace tarvik {

// The icon of a message box.
enum class MessageSign : unsigned {
  Information = MB_ICONINFORMATION,
  Exclamation = MB_ICONEXCLAMATION,
  Critical = MB_ICONHAND
};

// Shows a message with one OK button and waits for it. Texts are UTF-8; the owner, if any, is disabled meanwhile.
// Throws GivenUp if the owner is destroyed by then.
void ShowMessage(HWND owner, std::string_view text, std::string_view title, MessageSign sign);

}  // namespace tarvik
