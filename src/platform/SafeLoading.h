#pragma once

namespace tarvik {

// Has the system look for DLLs in its own folder only, for the rest of the run: a DLL that somebody put beside the
// program or into the current folder is never loaded in place of a system one. Call it first thing in the program.
// On a Windows 7 without the update that brought this, only the current folder is left out.
void LoadLibrariesFromSystemFolderOnly();

}  // namespace tarvik
