#pragma once

#include <windows.h>

#include <string_view>

#include "base/RuntimeError.h"

namespace tarvik {

// Shows in a message box, in the language of `code`, which run-time error stopped a handler, and the file at which it
// happened, if the error concerns one. Like every message, shows nothing for any other code.
void ShowRuntimeError(HWND owner, const RuntimeError& error, std::string_view code);

}  // namespace tarvik
