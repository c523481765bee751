#pragma once

#include <string>

#include "platform/TemporaryFolder.h"

namespace tarvik::bench {

// Each makes its files once in the folder and gives the path of the folder to search. Paths are UTF-8.
std::string MakeIconFiles(const support::TemporaryFolder& folder, int folders, int filesInEach);
// So many libraries in one folder, each of so many icons.
std::string MakeIconLibrary(const support::TemporaryFolder& folder, int icons, int libraries);
// Ten files in each of so many folders: an icon, in every fourth folder a cursor, in every tenth a library of five
// icons, in every sixteenth an animation of two steps; the others have no icon.
std::string MakeAllKinds(const support::TemporaryFolder& folder, int folders);

// A folder of so many sub-folders, and one icon file beside them.
std::string MakeEmptyFolders(const std::string& root, int count);

}  // namespace tarvik::bench
