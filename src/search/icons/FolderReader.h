#pragma once

#include <string>
#include <vector>

namespace tarvik {

// A sub-folder that a walk enters.
struct WalkedFolder {
  std::string path;
  // True for the root of a volume mounted there: its content can lead back to a folder that the walk is inside.
  bool isMounted = false;
};

// Lists the contents of folders. Names and paths are UTF-8; all lists are sorted by name, ordinal, ignoring case, so
// that the order of discovery is the same on every file system. A folder that cannot be read is empty.
class FolderReader {
 public:
  virtual ~FolderReader() = default;

  // Names of the files that match the pattern (see FilePattern.h), without hidden and system files and without files
  // whose content is not on this computer: a search never downloads.
  virtual std::vector<std::string> Files(const std::string& folder, const std::string& pattern) = 0;

  // Full paths of the sub-folders for a folder list: including hidden ones, links to folders and mounted volumes.
  virtual std::vector<std::string> SubFolders(const std::string& folder) = 0;

  // Those of them that a walk enters: no links (symbolic links or junctions), because their target is elsewhere and is
  // searched there. A mounted volume is entered if it can be distinguished from a link.
  virtual std::vector<WalkedFolder> WalkedFolders(const std::string& folder) = 0;

  // A text that is the same for every path to that folder, and different for every other folder; empty if the folder
  // cannot be opened.
  virtual std::string Identity(const std::string& folder) = 0;
};

}  // namespace tarvik
