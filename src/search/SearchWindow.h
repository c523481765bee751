#pragma once

#include <memory>
#include <string>

#include "base/Integer16.h"
#include "grid/GridGeometry.h"

namespace tarvik {

// What one search and the grid share; the main window owns it. Every search resets it.
struct SearchState {
  Integer16 IconCount;     // icons that the counting pass found
  int NextIconNumber = 1;  // the number that the next entry gets
  Integer16 CellX = 3;     // where the next icon is drawn, in grid pixels
  Integer16 CellY = 3;
  Integer16 CurrentIndex;  // zero-based index of the entry last clicked
  Integer16 FrameX = 1;    // top-left corner of the current entry's frame
  Integer16 FrameY = 1;
  bool IsSearching = false;
  bool IsAnimatedFile = false;
  GridGeometry Geometry = gridGeometries[1];
  std::string SavedDirPath;  // while a walk moves Dir1: the folder that it is put back to; otherwise empty
};

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

  // The icon list's view, and with it the menu items that need an entry to act on.
  virtual void ClearListView() = 0;  // no rows, then the three columns again
  virtual void ListChanged() = 0;    // entries or selection changed

  virtual void DoEvents() = 0;                        // shows the rows added so far, and serves the messages once
  virtual std::shared_ptr<void> ShowHourglass() = 0;  // puts the former pointer back when released
};

}  // namespace tarvik
