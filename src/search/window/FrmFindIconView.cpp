// The main window as the enhanced view sees it, and how the view opens.

#include <windows.h>

#include "search/window/FrmFindIcon.h"

namespace tarvik {

// The release of the same click came before, so the current entry is the icon under the pointer.
void FrmFindIcon::PicIcons_DblClick() {
  if (state_.IsSearching) return;
  EnhancedViewHost& owner = *this;
  if (!view_) view_.emplace(TheApplication(), owner, dependencies_.state, dependencies_.settings);
  view_->ShowSelectedEntry(Window());
}

int FrmFindIcon::EntryCount() const {
  return list_.Count();
}

const IconListEntry* FrmFindIcon::Entry(int number) const {
  return list_.Has(number) ? &list_.Item(number) : nullptr;
}

Integer16 FrmFindIcon::CurrentIndex() const {
  return state_.CurrentIndex;
}

bool FrmFindIcon::ViewOpen() const {
  return viewOpen_;
}

void FrmFindIcon::SetViewOpen(bool open) {
  viewOpen_ = open;
}

const Surface& FrmFindIcon::PicIcon() const {
  return surfaces_.Composed();
}

}  // namespace tarvik
