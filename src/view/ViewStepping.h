#pragma once

#include <functional>
#include <string>

#include "base/Integer16.h"
#include "view/EnhancedViewHost.h"

namespace tarvik {

// Where an entry is shown: the enlarged picture and the status bar.
struct ViewDisplay {
  std::function<void()> showPicture;                            // copies PicIcon's image into `img`
  std::function<void(const std::string& text)> showStatusText;  // puts it, UTF-8, into panel 1 of `sbMain`
};

// Steps through the icon list. Showing an entry has three steps: it is rendered, its picture is copied, and its source
// is written to the status bar. For an entry that is not in the list, the picture does not change and the status is
// empty.
class ViewStepping {
 public:
  // The host, and everything that the display's functions use, outlive this object.
  ViewStepping(EnhancedViewHost& host, ViewDisplay display);

  // Starts at the host's selection, which is counted from 0: one below the entry on screen. So the first Next shows the
  // same entry again, and the first Previous goes two back (deliberate: oddities 48).
  void Begin();

  // The number that the last step reached. It may lie outside the list but not outside 16 bits: a step beyond is an
  // overflow error.
  Integer16 CurrentEntry() const { return currentEntry_; }

  void ShowFirst();
  // Throws OverflowError, without moving, if the list is longer than a 16-bit number counts.
  void ShowLast();

  // Moves one entry on or back. From the last entry Next goes to entry 2, from entry 1 Previous goes to the last but
  // one: the number wraps first and then moves (deliberate: oddities 49). It can leave the list at both ends, and the
  // picture then does not change (deliberate: oddities 50). A run-time error in one of the steps that show the entry is
  // skipped; the next step follows.
  void ShowNext();
  void ShowPrevious();

  // Empties the status, then shows the entry's path and index, if there is such an entry.
  void UpdateStatus(int number);

 private:
  void Render();
  void ShowEntry();
  void ShowEntryAndSkipErrors();

  EnhancedViewHost& host_;
  ViewDisplay display_;
  Integer16 currentEntry_;
};

}  // namespace tarvik
