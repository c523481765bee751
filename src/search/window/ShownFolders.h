#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "base/Finally.h"
#include "forms/FolderLists.h"
#include "search/SearchFolders.h"
#include "search/window/FindIconDependencies.h"

namespace tarvik {

// The main window's list of drives and its two lists of folders and files, of which each follows the one before, and
// the box for sub-folders. The user moves the lists, and so does a search. Paths are UTF-8.
class ShownFolders final : public SearchFolders {
 public:
  // `dependencies` outlives this object.
  explicit ShownFolders(const FindIconDependencies& dependencies) : dependencies_(dependencies) {}

  void Attach(HWND drive1, HWND dir1, HWND file1, HWND chkSubDir);

  // Shows a folder, which need not be readable, and chooses its drive.
  void Show(const std::string& folder);
  // As Show, but a folder on another computer is not contacted: the lists stay empty until the user opens or searches
  // it.
  void ShowUnread(const std::string& folder);
  // Opens the row chosen in Dir1.
  void OpenChosen();
  // Reads drives, folders and files again.
  void Reread();
  // Reads the drives again and keeps the choice.
  void RefreshDrives() { drive1_.Refresh(); }
  // The root of the drive that the user has chosen in Drive1, "C:\"; empty if none is.
  std::string ChosenDrive() const { return drive1_.Root(); }
  // Chooses the drive of Dir1's folder.
  void ChooseShownDrive() { drive1_.ChooseDriveOf(dir1_.Path()); }
  // File1 lists the files that match this pattern; see FilePattern.h.
  void SetPattern(const std::string& pattern) { file1_.SetPattern(pattern); }
  // While this exists, a walk may move Dir1 and File1 without updating them on the screen; then Dir1 is updated first.
  struct Held {
    Finally files;
    Finally folders;
  };
  [[nodiscard]] Held HoldForWalk();
  // Draws a row of Dir1.
  void DrawRow(const DRAWITEMSTRUCT& item) const { dir1_.Draw(item); }

  // SearchFolders
  bool chkSubDir() const override;
  std::string Dir1Path() const override { return dir1_.Path(); }
  void SetDir1Path(const std::string& folder) override { dir1_.SetPath(folder); }
  std::vector<WalkedFolder> Dir1SubFolders() override { return dependencies_.folders.WalkedFolders(dir1_.Path()); }
  std::string FolderIdentity(const std::string& folder) override { return dependencies_.folders.Identity(folder); }
  std::string File1Path() const override { return file1_.Path(); }
  void SetFile1Path(const std::string& folder) override { file1_.SetPath(folder); }
  std::vector<std::string> File1Names() override { return file1_.Names(); }

 private:
  void Dir1_Change();

  const FindIconDependencies& dependencies_;
  DriveListBox drive1_;
  DirListBox dir1_;
  FileListBox file1_;
  HWND chkSubDir_ = nullptr;
  std::string unread_;  // the folder that is shown and not contacted; empty if there is none
};

}  // namespace tarvik
