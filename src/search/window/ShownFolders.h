#pragma once

#include <string>
#include <vector>

#include "forms/FolderLists.h"
#include "search/SearchFolders.h"

namespace tarvik {

// The two list boxes of the main window as a search moves them. Both outlive this object.
class ShownFolders final : public SearchFolders {
 public:
  ShownFolders(DirListBox& dir1, FileListBox& file1) : dir1_(dir1), file1_(file1) {}

  std::string Dir1Path() const override { return dir1_.Path(); }
  void SetDir1Path(const std::string& folder) override { dir1_.SetPath(folder); }
  std::vector<std::string> Dir1SubFolders() override { return dir1_.SubFolders(); }
  std::string File1Path() const override { return file1_.Path(); }
  void SetFile1Path(const std::string& folder) override { file1_.SetPath(folder); }
  std::vector<std::string> File1Names() override { return file1_.Names(); }

 private:
  DirListBox& dir1_;
  FileListBox& file1_;
};

}  // namespace tarvik
