#include "search/FolderWalk.h"

#include <algorithm>
#include <utility>

namespace tarvik {

FolderWalk::FolderWalk(SearchFolders& folders, std::string root) : folders_(folders), root_(std::move(root)) {}

bool FolderWalk::Next() {
  if (!hasBegun_) {
    hasBegun_ = true;
    hasEntered_ = true;
    open_.push_back({.path = root_});
    return true;
  }
  if (hasEntered_) {
    ReadSubFolders(open_.back());
  } else {
    open_.pop_back();
  }
  if (open_.empty()) return false;
  hasEntered_ = EnterSubFolder();
  return true;
}

void FolderWalk::ReadSubFolders(OpenFolder& folder) {
  if (!folders_.chkSubDir()) return;
  folders_.SetDir1Path(folder.path);
  folder.subFolders = folders_.Dir1SubFolders();
}

bool FolderWalk::EnterSubFolder() {
  OpenFolder& folder = open_.back();
  while (folder.next < folder.subFolders.size()) {
    WalkedFolder subFolder = std::move(folder.subFolders[folder.next++]);
    const bool isBeyondMount = folder.isBeyondMount || subFolder.isMounted;
    if (isBeyondMount && LeadsBack(subFolder.path)) continue;
    folders_.SetDir1Path(folder.path);
    open_.push_back({.path = std::move(subFolder.path), .isBeyondMount = isBeyondMount});
    return true;
  }
  return false;
}

// Whether the walk is already inside that folder, by whatever path it was reached. A folder that cannot be opened has
// nothing to list and is not entered either.
bool FolderWalk::LeadsBack(const std::string& folder) {
  const std::string identity = folders_.FolderIdentity(folder);
  if (identity.empty()) return true;
  return std::ranges::any_of(open_, [&](OpenFolder& entered) {
    if (entered.identity.empty()) entered.identity = folders_.FolderIdentity(entered.path);
    return entered.identity == identity;
  });
}

}  // namespace tarvik
