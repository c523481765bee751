#pragma once

#include <string>
#include <vector>

namespace tarvik {

// What is in a folder. Names and paths are UTF-8; both lists are sorted by name, ordinal, case ignored, so
// that the order of discovery is the same on every file system. A folder that cannot be read is empty.
class FolderReader {
 public:
  virtual ~FolderReader() = default;

  // Names of the files that match the pattern (see FilePattern.h). Hidden and system files are left out, and
  // so are files whose content is not on this computer: a search never downloads.
  virtual std::vector<std::string> Files(const std::string& folder, const std::string& pattern) = 0;

  // Full paths of the sub-folders, hidden ones too, but no junction and no symbolic link, so that a walk
  // cannot loop.
  virtual std::vector<std::string> SubFolders(const std::string& folder) = 0;
};

}  // namespace tarvik
