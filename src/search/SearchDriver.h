#pragma once

#include <string>

#include "search/IconList.h"
#include "search/IconSource.h"
#include "search/SearchWindow.h"

namespace tarvik {

// The search behind the Find button. Two passes over the same folders: the first only counts, so that a
// search over the limit is refused before an icon is drawn; the second lists and draws.
class SearchDriver {
 public:
  // All four outlive the driver. `language` is read when a text is chosen.
  SearchDriver(SearchWindow& window, IconSource& icons, IconList& list, SearchState& state,
               const std::string& language);

  // Runs one search to its end. A run-time error takes the failure exit, so that the window stays usable, and
  // is thrown on for the handler's boundary to show.
  void CmdFind_Click();

  // How many steps an animated cursor has: found by drawing them until one fails. 0 where there is no
  // picture.
  int CountAnimationFrames(const std::string& path);

 private:
  void Search();
  bool CountIconsInFolder(const std::string& folder);
  void CountIconsOfFile(const std::string& path);
  void ListIcons();
  void ListIconsInFolder(const std::string& folder);
  void ListIconsOfFile(const std::string& path);
  void ListAnimation(const std::string& path);
  void AdvanceCell();
  void UpdateTitle();
  void FailureExit();

  SearchWindow& window_;
  IconSource& icons_;
  IconList& list_;
  SearchState& state_;
  const std::string& language_;
};

}  // namespace tarvik
