#pragma once

#include <string>
#include <vector>

#include "search/icons/FolderReader.h"

namespace tarvik {

// The folders that a search looks into: the main window's folder list Dir1 and file list File1, which a walk moves, and
// the option for sub-folders. Paths and names are UTF-8.
class SearchFolders {
 public:
  virtual ~SearchFolders() = default;

  virtual bool chkSubDir() const = 0;  // the current option; the user can change it during a search
  virtual std::string Dir1Path() const = 0;
  // Also points File1 at that folder, as every change of Dir1 does.
  virtual void SetDir1Path(const std::string& folder) = 0;
  virtual std::vector<WalkedFolder> Dir1SubFolders() = 0;  // the sub-folders that a walk enters, as they are now
  virtual std::string FolderIdentity(const std::string& folder) = 0;  // as FolderReader::Identity
  virtual std::string File1Path() const = 0;
  virtual void SetFile1Path(const std::string& folder) = 0;
  virtual std::vector<std::string> File1Names() = 0;  // the files that match File1's pattern now
};

}  // namespace tarvik
