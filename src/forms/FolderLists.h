#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "base/Finally.h"

namespace tarvik {

// Three controls that together choose a folder: drives in a drop-down list, folders and files in list boxes. They are
// told how to read folders, so that they know nothing of the disk. Paths and names are UTF-8.

// A drop-down list of drives.
class DriveListBox {
 public:
  struct Drive {
    std::string root;  // "C:\\"
    std::string text;  // as the list shows it
  };

  // `list` reads the drives each time the list opens, so that one that was plugged in is there.
  void Attach(HWND comboBox, std::function<std::vector<Drive>()> list);

  // The chosen drive's root, "C:\"; empty where none is chosen.
  std::string Root() const;
  // Chooses the drive that a path is on; no choice where the path has no drive of the list.
  void ChooseDriveOf(const std::string& path);
  // Reads the drives anew and keeps the choice.
  void Refresh();

 private:
  HWND window_ = nullptr;
  std::function<std::vector<Drive>()> list_;
  std::vector<Drive> drives_;
};

// A list of a folder's ancestors, itself and its sub-folders, indented. A double click or Enter opens the chosen one. A
// list box with WS_HSCROLL scrolls to the end of the longest row; so does that of files.
class DirListBox {
 public:
  using ListFolders = std::function<std::vector<std::string>(const std::string& folder)>;

  // `list` gives a folder's sub-folders as full paths; `change` runs after the path changed. The list box is
  // owner-drawn with strings.
  void Attach(HWND listBox, ListFolders list, std::function<void()> change);

  const std::string& Path() const { return path_; }
  // Points the list at a folder, which need not be readable; then runs `change` where that is another folder.
  void SetPath(const std::string& folder);
  // Fills the visible list anew.
  void Refresh() { Show(Rows()); }
  // Reads the folder again. Rows that are right already keep their place and choice; if others came or went, the chosen
  // one stays chosen if it is still there.
  void Reread();
  // Until the end of what this returns, a changed path leaves the visible list alone; then the folder is read again.
  Finally Hold();

  // Opens the chosen folder.
  void OpenChosen();
  void Draw(const DRAWITEMSTRUCT& item) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);

  std::vector<std::string> Rows() const;
  void Show(std::vector<std::string> rows);
  int TextLeft(int row, int rowHeight) const;  // where a row's text begins, in pixels

  HWND window_ = nullptr;
  ListFolders list_;
  std::function<void()> change_;
  std::string path_;
  std::string shownPath_;
  std::vector<std::string> shown_;  // full paths, one a row
  int current_ = 0;                 // the row of the shown path; sub-folders stand below it
  bool held_ = false;
};

// A list of the files of a folder that match a pattern.
class FileListBox {
 public:
  using ListFiles = std::function<std::vector<std::string>(const std::string& folder, const std::string& pattern)>;

  void Attach(HWND listBox, ListFiles list);

  const std::string& Path() const { return path_; }
  void SetPath(const std::string& folder);
  void SetPattern(const std::string& pattern);
  // The names of the matching files as they are on the disk now.
  std::vector<std::string> Names() const { return list_(path_, pattern_); }
  void Refresh() { Show(Names()); }
  // As DirListBox does.
  void Reread();
  Finally Hold();

 private:
  void Update();
  void Show(std::vector<std::string> names);

  HWND window_ = nullptr;
  ListFiles list_;
  std::string path_;
  std::string pattern_;
  std::string shownPath_;
  std::string shownPattern_;
  std::vector<std::string> shown_;  // names, one a row
  bool held_ = false;
};

}  // namespace tarvik
