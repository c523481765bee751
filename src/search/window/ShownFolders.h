#pragma once

#include <string>
#include <vector>

#include "forms/FolderLists.h"
#include "search/SearchFolders.h"
#include "search/icons/FolderReader.h"

namespace tarvik {

// The main window's two list boxes, which a search moves, and the folders on disk. All three outlive this object.
class ShownFolders final : public SearchFolders {
 public:
  ShownFolders(DirListBox& dir1, FileListBox& file1, FolderReader& disk) : dir1_(dir1), file1_(file1), disk_(disk) {}

  std::string Dir1Path() const override { return dir1_.Path(); }
  void SetDir1Path(const std::string& folder) override { dir1_.SetPath(folder); }
  std::vector<WalkedFolder> Dir1SubFolders() override { return disk_.WalkedFolders(dir1_.Path()); }
  std::string FolderIdentity(const std::string& folder) override { return disk_.Identity(folder); }
  std::string File1Path() const override { return file1_.Path(); }
  void SetFile1Path(const std::string& folder) override { file1_.SetPath(folder); }
  std::vector<std::string> File1Names() override { return file1_.Names(); }

 private:
  DirListBox& dir1_;
  FileListBox& file1_;
  FolderReader& disk_;
};

}  // namespace tarvik
