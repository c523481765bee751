// The main window's grid and list, in which icons are chosen, and the menu commands that act on the choice.

#include <windows.h>

#include <utility>

#include "resource.h"
#include "search/window/FrmFindIcon.h"
#include "search/window/FrmFindIconTexts.h"

namespace tarvik {

void FrmFindIcon::OnPicture(const PictureEvent& event) {
  if (event.id != FrmFindIcon_PicIcons) return;
  switch (event.kind) {
    case PictureEvent::Kind::MouseDown:
      releaseBelongsToDblClick_ = false;
      break;
    case PictureEvent::Kind::MouseUp:
      if (!std::exchange(releaseBelongsToDblClick_, false))
        selection_.PicIcons_MouseUp(event.heldKeys, event.x, event.y);
      break;
    case PictureEvent::Kind::DblClick:
      // The view opens between the second press and its release. The release belongs to the double click and is no
      // click of its own: with the capture released, it goes to whatever is under the pointer, or, if the view was
      // closed first, nowhere.
      ReleaseCapture();
      PicIcons_DblClick();
      releaseBelongsToDblClick_ = GetKeyState(VK_LBUTTON) < 0;
      break;
    case PictureEvent::Kind::MouseMove:
      ShowTipAt(event.x, event.y);
      break;
  }
}

void FrmFindIcon::ShowTipAt(double x, double y) {
  const std::optional<int> number = selection_.EntryAt(x, y);
  if (!number) return gridTip_.Say({});
  const IconListEntry& entry = list_.Item(*number);
  const std::string path = gridTip_.Wrap(entry.path);
  const auto text = Compose(gridTip, dependencies_.state.CurrentLanguage, {path, std::to_string(entry.index)});
  gridTip_.Say(text.value_or(path));
}

bool FrmFindIcon::NumbersByFile() const {
  return TheMenu().IsChecked(FrmFindIcon_mnuIL2);
}

// The control changes the selection of its rows before it sends the notification. The rule that applies is derived from
// the keys, and the rows are then set to that rule's result.
void FrmFindIcon::Lv_Choose(const ReportList::Choice& choice) {
  const int number = choice.row + 1;
  if (!list_.Has(number)) {
    ListChanged();
  } else if (choice.asked) {
    selection_.ChooseRange(number, number, true);
  } else if (choice.shift) {
    selection_.ChooseRange(choice.anchor + 1, number, choice.ctrl);
  } else {
    selection_.ChooseRow(number, choice.ctrl ? ctrlAlone : 0);
  }
  ShowSelectionInList();
}

void FrmFindIcon::ShowSelectionInList() {
  lv_.SetSelection([this](int row) { return list_.Has(row + 1) && list_.Item(row + 1).selected; });
  // After a search the keys start at the current icon. Later the list keeps its own focused row: Wine would scroll a
  // newly focused row into view at the next click, which would then hit another row than the one under the pointer.
  if (lv_.FocusedRow() < 0 && list_.Has(state_.CurrentIndex + 1)) lv_.SetFocusedRow(state_.CurrentIndex);
}

void FrmFindIcon::mnuShowLabel_Click() {
  const bool shown = !TheMenu().IsChecked(FrmFindIcon_mnuShowLabel);
  SetChecked(FrmFindIcon_mnuShowLabel, shown);
  ShowItem(FrmFindIcon_lblInfo, shown);
}

void FrmFindIcon::mnuIL_Click(int index) {
  SetChecked(FrmFindIcon_mnuIL1, index == 0);
  SetChecked(FrmFindIcon_mnuIL2, index == 1);
  selection_.ShowCurrentLabel();
}

// The release of the same click came first, so the current entry is the icon under the pointer.
void FrmFindIcon::PicIcons_DblClick() {
  if (state_.IsSearching) return;
  if (!view_) view_.emplace(TheApplication(), captured_, dependencies_.state, dependencies_.settings);
  view_->ShowSelectedEntry(Window());
}

// The entry in the current frame.
std::optional<PictureContent::CurrentPart> FrmFindIcon::CurrentItem() const {
  const int number = state_.CurrentIndex + 1;
  if (!list_.Has(number)) return std::nullopt;
  const IconListEntry& entry = list_.Item(number);
  const auto name = Compose(gridItemName, dependencies_.state.CurrentLanguage,
                            {std::to_string(number), entry.path, std::to_string(entry.index)});
  const int end = state_.Geometry.FrameExtent + 1;
  return PictureContent::CurrentPart{name.value_or(entry.path),
                                     {state_.FrameX, state_.FrameY, state_.FrameX + end, state_.FrameY + end},
                                     entry.selected};
}

}  // namespace tarvik
