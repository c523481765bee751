#pragma once

#include <string>

#include "base/Finally.h"
#include "base/Progress.h"
#include "grid/SearchState.h"

namespace tarvik {

// What a search enables and disables of the window.
enum class SearchControl { CmdFind, CmdOk, CmdClose, mnuFile, mnuEdit };

// The main window as a search sees it, apart from its grid and its folder lists: options, texts and the list of icons.
// Texts are UTF-8.
class SearchWindow {
 public:
  virtual ~SearchWindow() = default;

  virtual void CloseEnhancedView() = 0;
  virtual void Enable(SearchControl control, bool enabled) = 0;

  // The options as they are now; the user can change them during a search.
  virtual bool chkSubDir() const = 0;
  virtual std::string txtMax() const = 0;

  // Texts. The window decides nothing about them.
  virtual void SetCaption(const std::string& text) = 0;
  virtual void SetStatusText(const std::string& text) = 0;    // panel 1 of sbMain
  virtual void SetInfoText(const std::string& text) = 0;      // lblInfo
  virtual void ShowInformation(const std::string& text) = 0;  // information box with OK, titled "Brindle Tarvik"

  // How far the search is. It is called often and costs next to nothing.
  virtual void SetProgress(const Progress& progress) = 0;

  // The icon list's view, and with it the menu items that need an entry to act on.
  virtual void ClearListView() = 0;  // no rows, then the three columns again
  virtual void ListChanged() = 0;    // entries or selection changed

  virtual void DoEvents() = 0;  // serves the messages once, and first shows the rows added so far if the list is shown
  virtual Finally ShowHourglass() = 0;  // puts the former pointer back at its end
};

}  // namespace tarvik
