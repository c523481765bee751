#pragma once

#include <string>

#include "platform/TemporaryFolder.h"

namespace tarvik::bench {

// Each makes its files once in the folder and gives the path of the folder to search. Paths are UTF-8.
std::string MakeIconFiles(const testing::TemporaryFolder& folder, int folders, int filesInEach);
std::string MakeIconLibrary(const testing::TemporaryFolder& folder, int icons);

// A folder of so many sub-folders, and one icon file beside them.
std::string MakeEmptyFolders(const std::string& root, int count);

}  // namespace tarvik::bench
