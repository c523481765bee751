#pragma once

namespace tarvik {

// Makes the system search for DLLs in its own folder only, for the rest of the run: a DLL planted in the program's
// folder or in the current folder is never loaded in place of a system one. Call it before anything else in the
// program. On a Windows 7 without the update that introduced this, only the current folder is excluded.
void LoadLibrariesFromSystemFolderOnly();

}  // namespace tarvik
