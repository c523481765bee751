#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "base/Finally.h"

namespace tarvik {

// Three controls that together choose a folder: drives in a drop-down list, folders and files in list boxes. The
// functions that read folders are passed in, so the controls do not access the disk themselves. Paths and names are
// UTF-8.

// A drop-down list of drives.
class DriveListBox {
 public:
  struct Drive {
    std::string root;  // "C:\\"
    std::string text;  // as the list shows it
  };

  // `list` reads the drives each time the list opens, so that a drive plugged in meanwhile is listed.
  void Attach(HWND comboBox, std::function<std::vector<Drive>()> list);

  // The chosen drive's root, "C:\"; empty if none is chosen.
  std::string Root() const;
  // Chooses the drive of a path; chooses none if that drive is not in the list.
  void ChooseDriveOf(const std::string& path);
  // Reads the drives again and keeps the choice.
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
  // Points the list at a folder, which need not be readable; then runs `change` if the folder is a different one.
  void SetPath(const std::string& folder);
  // Fills the visible list again.
  void Refresh() { Show(Rows()); }
  // Reads the folder again. If the rows are unchanged, scroll position and choice are kept; otherwise the chosen row
  // stays chosen if it still exists.
  void Reread();
  // While the returned object exists, a changed path does not update the visible list; then the folder is read again.
  Finally Hold();

  // Opens the chosen folder.
  void OpenChosen();
  void Draw(const DRAWITEMSTRUCT& item) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);

  std::vector<std::string> Rows() const;
  void Show(std::vector<std::string> rows);
  int TextLeft(int row, int rowHeight) const;  // x position of a row's text, in pixels

  HWND window_ = nullptr;
  ListFolders list_;
  std::function<void()> change_;
  std::string path_;
  std::string shownPath_;
  std::vector<std::string> shown_;  // full paths, one per row
  int current_ = 0;                 // the row of the shown path; its sub-folders follow
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
  std::vector<std::string> shown_;  // names, one per row
  bool held_ = false;
};

}  // namespace tarvik
