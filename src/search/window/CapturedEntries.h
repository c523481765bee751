#pragma once

#include <windows.h>

#include <optional>

#include "export/IconSurfaces.h"
#include "grid/SearchState.h"
#include "platform/Surface.h"
#include "search/icons/IconList.h"
#include "search/icons/IconSource.h"
#include "startup/ProgramState.h"
#include "view/EnhancedViewHost.h"

namespace tarvik {

// The entries of the icon list as pictures: what the enhanced view shows and the save commands write. All constructor
// arguments outlive it.
class CapturedEntries final : public EnhancedViewHost {
 public:
  CapturedEntries(IconSource& icons, const IconList& list, const SearchState& search, const ProgramState& state)
      : icons_(icons), list_(list), search_(search), state_(state), surfaces_(search.Geometry.IconSize) {}

  // Renders the pictures at the grid's icon size from now on.
  void Resize() { surfaces_.Resize(search_.Geometry.IconSize); }

  // Renders the icon of entry `number`, counted from 1, into the three surfaces. Returns false for a number outside the
  // list and leaves the surfaces unchanged; if the file no longer yields the icon, they are cleared.
  bool RenderEntry(int number) override;
  // PicIcon, PicMask and PicImage.
  const IconSurfaces& Surfaces() const { return surfaces_; }
  const Surface& PicIcon() const override { return surfaces_.Composed(); }
  // The icon in PicIcon magnified by the program's Magnification, at the top-left corner of a square of MagnifiedSide.
  const Surface& PicMain();
  // Combines the icon of PicMask and PicImage in PicClip and copies that to the clipboard for `owner`; returns false if
  // the clipboard could not be opened.
  bool CopyPicClip(HWND owner) const;

  int EntryCount() const override { return list_.Count(); }
  const IconListEntry* Entry(int number) const override { return list_.Has(number) ? &list_.Item(number) : nullptr; }
  Integer16 CurrentIndex() const override { return search_.CurrentIndex; }
  bool ViewOpen() const override { return viewOpen_; }
  void SetViewOpen(bool open) override { viewOpen_ = open; }

 private:
  IconSource& icons_;
  const IconList& list_;
  const SearchState& search_;
  const ProgramState& state_;
  IconSurfaces surfaces_;
  std::optional<Surface> picMain_;
  bool viewOpen_ = false;
};

}  // namespace tarvik
