#pragma once

#include <windows.h>

#include <string_view>

#include "base/RuntimeError.h"

namespace tarvik {

// Tells the user, in the language of `code`, which run-time error stopped a handler, and below it the
// file that it happened at, if it is about one. Shows nothing where the code is
// no language, as every message.
void ShowRuntimeError(HWND owner, const RuntimeError& error, std::string_view code);

}  // namespace tarvik
