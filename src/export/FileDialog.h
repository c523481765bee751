#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "export/FileDialogModes.h"

namespace tarvik {

// The platform's Save and Open dialogs, modal to `owner`. Return the chosen path, UTF-8, with the extension that the
// dialog adds if none was typed; empty if the user cancelled. `code` is the language of the title. Throw
// UnheldNameError if the dialog cannot return the chosen name. The program's current folder is restored afterwards.
std::string AskForFileToSave(HWND owner, const FileDialogMode& mode, std::string_view code);
std::string AskForFileToOpen(HWND owner, const FileDialogMode& mode, std::string_view code);

}  // namespace tarvik
