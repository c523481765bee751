#pragma once

#include <string>

#include "base/Finally.h"
#include "base/Progress.h"
#include "grid/SearchState.h"

namespace tarvik {

// Controls and menus that a search enables and disables.
enum class SearchControl { CmdFind, CmdOk, CmdClose, mnuFile, mnuEdit };

// The interface of the main window that a search uses, apart from its grid and its folder lists: the limit, texts and
// the list of icons. Texts are UTF-8.
class SearchWindow {
 public:
  virtual ~SearchWindow() = default;

  virtual void CloseEnhancedView() = 0;
  virtual void Enable(SearchControl control, bool enabled) = 0;

  virtual std::string txtMax() const = 0;  // the current limit; the user can change it during a search

  // Texts. The window shows them unchanged.
  virtual void SetCaption(const std::string& text) = 0;
  virtual void SetStatusText(const std::string& text) = 0;    // panel 1 of sbMain
  virtual void SetInfoText(const std::string& text) = 0;      // lblInfo
  virtual void ShowInformation(const std::string& text) = 0;  // information box with OK, titled "Brindle Tarvik"

  // The progress of the search. Called often, so it must be cheap.
  virtual void SetProgress(const Progress& progress) = 0;

  // The icon list's view, and the menu items that need an entry to act on.
  virtual void ClearListView() = 0;  // no rows, then the three columns again
  virtual void ListChanged() = 0;    // entries or selection changed

  virtual void DoEvents() = 0;  // serves the messages once; first shows the rows added so far if the list is shown
  virtual Finally ShowHourglass() = 0;  // the former pointer is restored when the returned object is destroyed
};

}  // namespace tarvik
