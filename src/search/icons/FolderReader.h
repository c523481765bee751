#pragma once

#include <string>
#include <vector>

namespace tarvik {

// A sub-folder that a walk enters.
struct WalkedFolder {
  std::string path;
  // True for the root of a volume mounted there: what is in it can lead back to a folder that the walk is in.
  bool isMounted = false;
};

// What is in a folder. Names and paths are UTF-8; all lists are sorted by name, ordinal, case ignored, so
// that the order of discovery is the same on every file system. A folder that cannot be read is empty.
class FolderReader {
 public:
  virtual ~FolderReader() = default;

  // Names of the files that match the pattern (see FilePattern.h). Hidden and system files are left out, and
  // so are files whose content is not on this computer: a search never downloads.
  virtual std::vector<std::string> Files(const std::string& folder, const std::string& pattern) = 0;

  // Full paths of the sub-folders as a folder list shows them: hidden ones too, links to folders and mounted volumes
  // among them.
  virtual std::vector<std::string> SubFolders(const std::string& folder) = 0;

  // Those of them that a walk enters: no link (symbolic link or junction), because what it leads to is elsewhere and
  // is searched there. A mounted volume is entered if it can be told from a link.
  virtual std::vector<WalkedFolder> WalkedFolders(const std::string& folder) = 0;

  // A text that is the same for every path that leads to that folder, and another one for every other folder; empty if
  // the folder cannot be opened.
  virtual std::string Identity(const std::string& folder) = 0;
};

}  // namespace tarvik
