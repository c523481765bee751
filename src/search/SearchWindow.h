#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "grid/GridGeometry.h"
#include "numbers/Integer16.h"
#include "search/IconList.h"
#include "search/IconSource.h"

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
};

// What a search enables and disables of the window.
enum class SearchControl { CmdFind, CmdOk, CmdClose, mnuFile, mnuEdit };

// The main window as a search sees it: its options, its folder and file lists, its texts and its grid. Paths
// and texts are UTF-8.
class SearchWindow {
 public:
  virtual ~SearchWindow() = default;

  virtual void CloseEnhancedView() = 0;
  virtual void Enable(SearchControl control, bool enabled) = 0;

  // The options as they stand now; the user can change them during a search.
  virtual bool chkSubDir() const = 0;
  virtual std::string txtMax() const = 0;
  virtual int udMainUpperEnd() const = 0;

  // The two lists as the walk moves them. Setting Dir1's path points File1 at the same folder, as a change of
  // the folder always does. The visible lists are not refilled while IsSearching is true.
  virtual std::string Dir1Path() const = 0;
  virtual void SetDir1Path(const std::string& folder) = 0;
  virtual std::vector<std::string> Dir1SubFolders() = 0;  // full paths
  virtual std::string File1Path() const = 0;
  virtual void SetFile1Path(const std::string& folder) = 0;
  virtual std::vector<std::string> File1Names() = 0;

  // Texts. The window decides nothing about them.
  virtual void SetCaption(const std::string& text) = 0;
  virtual void SetStatusText(const std::string& text) = 0;    // panel 1 of sbMain
  virtual void SetInfoText(const std::string& text) = 0;      // lblInfo
  virtual void ShowInformation(const std::string& text) = 0;  // information box with OK, titled "Brindle Tarvik"

  // The icon list's view: its rows changed.
  virtual void ClearListView() = 0;  // no rows, then the three columns anew
  virtual void ListChanged() = 0;    // entries or selection changed

  // The grid picture.
  virtual void ClearGrid() = 0;                         // blank, and no lasting picture
  virtual void SizeGrid(const GridExtent& extent) = 0;  // sizes picture and scroll bar
  virtual void ScrollGridToTop() = 0;
  virtual DrawSurface& Grid() = 0;        // what icons are drawn on
  virtual DrawSurface& OwnSurface() = 0;  // the window's own surface, where frames are tried out
  virtual void DrawFrame(Point corner, Point farCorner,
                         bool shown) = 0;  // black when shown, white when erased
  virtual void KeepGridPicture() = 0;      // what was drawn becomes the lasting picture; repaints

  virtual void DoEvents() = 0;                        // serves the waiting messages once
  virtual std::shared_ptr<void> ShowHourglass() = 0;  // puts the former pointer back when released
  virtual void UpdateSaveMenus() = 0;                 // enables save and copy items while the list holds an entry
};

}  // namespace tarvik
