#pragma once

#include <string>
#include <vector>

#include "search/icons/FolderReader.h"

namespace tarvik {

// The folders of this machine. A path may be of any length; one call reads its folder once.
class Folders final : public FolderReader {
 public:
  std::vector<std::string> Files(const std::string& folder, const std::string& pattern) override;
  std::vector<std::string> SubFolders(const std::string& folder) override;
};

// True for a folder that exists and whose content this user may see. The path may stand in any form Windows takes.
bool IsReadableFolder(const std::string& path);

// A drive of this machine.
struct Drive {
  char letter = 'c';  // lower case
  std::string label;  // of the volume; of a network drive, the share it stands for; empty where there is none

  // As a drive box shows it: "c: [LABEL]", or "c:" where there is no label.
  std::string Display() const;
  // The path of its root: "C:\".
  std::string Root() const;
};

// All drives by letter. Asks no drive that may be long in answering: network drives and floppy drives are not
// touched, and a drive without a medium just has no label.
std::vector<Drive> Drives();

}  // namespace tarvik
