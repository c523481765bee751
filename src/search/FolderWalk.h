#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "search/SearchFolders.h"

namespace tarvik {

// Walks a folder tree depth-first: enters a folder, walks its sub-folders in the same way, then leaves it. Whether
// sub-folders are walked depends on chkSubDir, which is read in each folder after it is entered. The list
// of sub-folders is read once. Dir1 is pointed back at the parent folder before each of them, because the walk through
// the one before moved it.
//
// Folders alone form a tree. Only a mounted volume can create a cycle, and only to itself or to a folder below it, so
// folder identities are not queried until the walk meets a mounted volume.
class FolderWalk {
 public:
  // The folders outlive the walk.
  FolderWalk(SearchFolders& folders, std::string root);

  // Enters the next folder, or leaves the one that was entered last and not left yet; false at the end of the walk.
  bool Next();
  // What the last step did, and with which folder.
  bool HasEntered() const { return hasEntered_; }
  const std::string& Folder() const { return open_.back().path; }

 private:
  // A folder that is entered and not yet left.
  struct OpenFolder {
    std::string path;
    bool isBeyondMount = false;  // a mounted volume is on the way to it
    std::vector<WalkedFolder> subFolders{};
    std::size_t next = 0;    // the sub-folder to go to next
    std::string identity{};  // queried when it is first needed
  };

  void ReadSubFolders(OpenFolder& folder);
  bool EnterSubFolder();  // the next one; false if there is none
  bool LeadsBack(const std::string& folder);

  SearchFolders& folders_;
  std::string root_;
  // Outermost first. A list instead of recursion, because folders can be nested deeper than the call stack allows.
  std::vector<OpenFolder> open_;
  bool hasBegun_ = false;
  bool hasEntered_ = false;
};

}  // namespace tarvik
