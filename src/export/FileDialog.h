#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "export/FileDialogModes.h"

namespace tarvik {

// The platform's dialogs for a file to save and a file to open, modal over `owner`. The chosen path, UTF-8, with the
// extension that the dialog adds where none was typed; empty where the user cancelled. `code` is the language of the
// title. Throws UnheldNameError if the dialog cannot give back the name that was chosen. The program's current folder
// is what it was before.
std::string AskForFileToSave(HWND owner, const FileDialogMode& mode, std::string_view code);
std::string AskForFileToOpen(HWND owner, const FileDialogMode& mode, std::string_view code);

}  // namespace tarvik
