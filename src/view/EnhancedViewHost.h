#pragma once

#include "base/Integer16.h"
#include "base/PixelView.h"
#include "search/icons/IconList.h"

namespace tarvik {

// The interface of the main window that the enhanced view uses. Entries are numbered from 1.
class EnhancedViewHost {
 public:
  virtual ~EnhancedViewHost() = default;

  // Draws the entry into PicIcon, whose size is the grid's icon size; blank if its file no longer yields the icon.
  // Returns false and leaves PicIcon unchanged if the list holds no entry of that number.
  virtual bool RenderEntry(int number) = 0;
  // The picture that RenderEntry draws into. Its size does not change while the view is open.
  virtual const PixelView& PicIcon() const = 0;

  virtual int EntryCount() const = 0;
  // The entry of that number, or null if the list holds none. Valid until the list changes.
  virtual const IconListEntry* Entry(int number) const = 0;

  // The current entry, counted from 0.
  virtual Integer16 CurrentIndex() const = 0;

  // Whether the view is open. The view sets this from its load to its unload.
  virtual bool ViewOpen() const = 0;
  virtual void SetViewOpen(bool open) = 0;
};

}  // namespace tarvik
