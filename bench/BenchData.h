#pragma once

#include <string>

#include "platform/TemporaryFolder.h"

namespace tarvik::bench {

// Each makes its files once in the folder and returns the path of the folder to search. Paths are UTF-8.
std::string MakeIconFiles(const support::TemporaryFolder& folder, int folders, int filesInEach);
// That many libraries in one folder, each with that many icons.
std::string MakeIconLibrary(const support::TemporaryFolder& folder, int icons, int libraries);
// Ten files in each of that many folders: an icon, in every fourth folder a cursor, in every tenth a library of five
// icons, in every sixteenth an animation of two steps; the others have no icon.
std::string MakeAllKinds(const support::TemporaryFolder& folder, int folders);

// A folder with that many sub-folders and one icon file.
std::string MakeEmptyFolders(const std::string& root, int count);

}  // namespace tarvik::bench
