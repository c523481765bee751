#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/Finally.h"
#include "grid/GridView.h"
#include "search/FolderWalk.h"
#include "search/SearchFolders.h"
#include "search/SearchWindow.h"
#include "search/icons/IconList.h"
#include "search/icons/IconSource.h"
#include "startup/Language.h"

namespace tarvik {

// The search that the Find button starts. Two passes over the same folders: the first only counts, so that a
// search over the limit is refused before an icon is drawn; the second lists and draws.
class SearchDriver {
 public:
  // All of them outlive the driver.
  struct Dependencies {
    SearchWindow& window;
    SearchFolders& folders;
    GridView& grid;
    DrawSurface& ownSurface;  // the window's own, on which animation steps are tried out
    IconSource& icons;
    IconList& list;
    SearchState& state;
    const std::string& language;  // read when a text is chosen
  };

  explicit SearchDriver(const Dependencies& dependencies);

  // Runs one search to its end; does nothing while one runs. On a run-time error the list is emptied, the failure exit
  // runs so that the window stays usable, and the error is rethrown to the form's handler boundary, which shows it.
  void CmdFind_Click();

  // How many steps an animated cursor has, found by drawing them until one fails. 0 if there is no picture.
  int CountAnimationFrames(const std::string& path);

 private:
  void Search();
  bool IsRefused();
  void FailureExit();
  FolderWalk WalkOverScope();
  Finally KeepDir1();

  void CountIcons();
  void CountFilesOf(const std::string& folder);
  void CountIconsOfFile(const std::string& path);

  void ListIcons();
  void ShowList();
  void ListFilesOf(const std::string& folder);
  void ListIconsOfFile(const std::string& path);
  void ListAnimation(const std::string& path);
  void DrawInNextCell(ExtractedIcon* icon, int step);

  void UpdateTitle();
  void TellLeftOut();
  void SetStatus(const Text& text, std::initializer_list<std::string_view> values);
  void ShowBox(const Text& text, std::initializer_list<std::string_view> values);

  SearchWindow& window_;
  SearchFolders& folders_;
  GridView& grid_;
  DrawSurface& ownSurface_;
  IconSource& icons_;
  IconList& list_;
  SearchState& state_;
  const std::string& language_;
  int leftOut_ = 0;  // in the running search: files whose paths cannot be passed to the system
  std::string firstLeftOut_;
};

}  // namespace tarvik
