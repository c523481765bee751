#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "search/SearchFolders.h"
#include "search/SearchWindow.h"

namespace tarvik {

// A walk from a folder through those below it: enters a folder, goes through each of its sub-folders in the same way,
// then leaves it. Whether there are sub-folders to go through is the window's chkSubDir, asked in each folder after it
// was entered. Their list is read once; for each of them Dir1 is only pointed at their folder again, because the walk
// through the one before moved it.
//
// Folders alone form a tree. Only a volume that is mounted in one can lead back, and it can only lead to itself or to
// what is below it: so nothing is asked about folders until a mounted one is met.
class FolderWalk {
 public:
  // Window and folders outlive the walk.
  FolderWalk(const SearchWindow& window, SearchFolders& folders, std::string root);

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
    std::string identity{};  // asked for when it is first needed
  };

  void ReadSubFolders(OpenFolder& folder);
  bool EnterSubFolder();  // the next one; false if there is none
  bool LeadsBack(const std::string& folder);

  const SearchWindow& window_;
  SearchFolders& folders_;
  std::string root_;
  // Outermost first. A list and not the call stack, because folders can lie in one another deeper than a stack reaches.
  std::vector<OpenFolder> open_;
  bool hasBegun_ = false;
  bool hasEntered_ = false;
};

}  // namespace tarvik
