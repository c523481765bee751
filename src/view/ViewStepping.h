#pragma once

#include <functional>
#include <string>

#include "base/Integer16.h"
#include "view/EnhancedViewHost.h"

namespace tarvik {

// What an entry is shown on: the enlarged picture and the status bar.
struct ViewDisplay {
  std::function<void()> showPicture;                            // takes PicIcon's image into `img`
  std::function<void(const std::string& text)> showStatusText;  // puts it, UTF-8, into panel 1 of `sbMain`
};

// Steps through the icon list. Showing an entry means three things: it is rendered, its picture is taken over, and its
// source goes to the status bar. An entry that the list does not hold leaves the picture as it is and the status
// empty.
class ViewStepping {
 public:
  // The host, and what the display's functions use, outlive the stepping.
  ViewStepping(EnhancedViewHost& host, ViewDisplay display);

  // Starts at the host's selection, which is counted from 0: one below the entry on screen. So the first Next shows the
  // same entry again, and the first Previous goes two back (deliberate: oddities 48).
  void Begin();

  // The number that the last step arrived at. It may lie outside the list, and never outside 16 bits: a step there
  // is an overflow error.
  Integer16 CurrentEntry() const { return currentEntry_; }

  void ShowFirst();
  // Throws OverflowError, and nothing moves, where the list is longer than a 16-bit number counts.
  void ShowLast();

  // One entry on or back. From the last entry Next goes to entry 2, from entry 1 Previous goes to the last but one:
  // the number wraps first and then moves (deliberate: oddities 49). It can leave the list at both ends, and the
  // picture then stays as it is (deliberate: oddities 50). A run-time error in one step of it is skipped; the next step
  // follows.
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
