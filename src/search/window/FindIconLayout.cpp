#include "search/window/FindIconLayout.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string>

#include "forms/Bounds.h"
#include "platform/Handles.h"
#include "resource.h"

namespace tarvik {
namespace {

// How an edge of a control follows the window's extra size, horizontally and vertically.
enum class Across { Stays, Half, Whole };
enum class Down { Stays, UpperLists };

struct Following {
  int firstId;
  int lastId;  // a run of controls with consecutive ids
  Across left;
  Across right;
  Down top;
  Down bottom;
};

// Grid and icon list are placed separately.
constexpr auto followings = std::to_array<Following>({
    {FrmFindIcon_Drive1, FrmFindIcon_Drive1, Across::Stays, Across::Half, Down::Stays, Down::Stays},
    {FrmFindIcon_Dir1, FrmFindIcon_Dir1, Across::Stays, Across::Half, Down::Stays, Down::UpperLists},
    {FrmFindIcon_File1, FrmFindIcon_File1, Across::Half, Across::Whole, Down::Stays, Down::UpperLists},
    {FrmFindIcon_Label3, FrmFindIcon_CmdClose, Across::Whole, Across::Whole, Down::Stays, Down::Stays},
    {FrmFindIcon_lblIconSize, FrmFindIcon_lblIconSize, Across::Whole, Across::Whole, Down::Stays, Down::Stays},
    {FrmFindIcon_OptView0, FrmFindIcon_OptView1, Across::Whole, Across::Whole, Down::UpperLists, Down::UpperLists},
    {FrmFindIcon_lblInfo, FrmFindIcon_lblInfo, Across::Stays, Across::Stays, Down::UpperLists, Down::UpperLists},
});

int Shift(Across edge, const ExtraRoom& room) {
  if (edge == Across::Stays) return 0;
  return edge == Across::Half ? room.across / 2 : room.across;
}

int Shift(Down edge, const ExtraRoom& room) {
  return edge == Down::Stays ? 0 : room.upperLists;
}

SIZE InsideOf(HWND window) {
  RECT inside{};
  GetClientRect(window, &inside);
  return {inside.right, inside.bottom};
}

void Move(HWND item, const RECT& bounds) {
  SetWindowPos(item, nullptr, bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

// The width of a control's text in its own font, in pixels.
int TextWidth(HWND item) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(item)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(item, text.data(), static_cast<int>(text.size()))));
  const WindowDc dc(item);
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(item, WM_GETFONT, 0, 0)));
  RECT bounds{};
  DrawTextW(dc.get(), text.c_str(), -1, &bounds, DT_CALCRECT | DT_SINGLELINE);
  return bounds.right;
}

// The height of the drive list in the template: with the list open, in dialog units. The closed control keeps a height
// of its own.
constexpr int openDriveList = 120;

int OpenHeight(HWND form) {
  RECT units{0, 0, 0, openDriveList};
  MapDialogRect(form, &units);
  return units.bottom;
}

}  // namespace

void FindIconLayout::Begin(const Form& form, IconGrid& grid) {
  form_ = nullptr;  // nothing is arranged while the window gets its needed width
  extraListWidth_ = 0;
  const HWND window = form.Window();
  LayOutLimit(form);
  Record(form);
  gridBounds_ = grid.Bounds();
  needed_ = InsideOf(window);
  smallestInside_ = NeededWithGrid(form);
  RECT bounds{};
  GetWindowRect(window, &bounds);
  smallest_ = {bounds.right - bounds.left + smallestInside_.cx - needed_.cx,
               bounds.bottom - bounds.top + smallestInside_.cy - needed_.cy};
  SetWindowPos(window, nullptr, 0, 0, smallest_.cx, smallest_.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  form_ = &form;
  grid_ = &grid;
  Arrange(false);
}

// The grid has a fixed size in pixels on this display, while the other controls follow the dialog's font: the window
// may have to be larger than they need.
SIZE FindIconLayout::NeededWithGrid(const Form& form) const {
  const RECT status = BoundsInParent(form.Item(FrmFindIcon_sbMain));
  const int margin = gridBounds_.left;
  return {std::max<LONG>(needed_.cx, gridBounds_.right + margin),
          std::max<LONG>(needed_.cy, gridBounds_.bottom + margin / 2 + status.bottom - status.top)};
}

// In every language the limit's box directly follows its label, and the rest of the row follows the box. Both labels
// are as wide as their texts: a label that extended under the box would erase it when the label alone is repainted.
void FindIconLayout::LayOutLimit(const Form& form) {
  const HWND label = form.Item(FrmFindIcon_SkinLabel1);
  RECT bounds = BoundsInParent(label);
  const int space = bounds.bottom - bounds.top;
  bounds.right = bounds.left + TextWidth(label);
  Move(label, bounds);
  const int shift = bounds.right + space / 2 - BoundsInParent(form.Item(FrmFindIcon_txtMax)).left;
  for (const int id : {FrmFindIcon_txtMax, FrmFindIcon_udMain, FrmFindIcon_SkinLabel2}) {
    const HWND item = form.Item(id);
    RECT itemBounds = BoundsInParent(item);
    OffsetRect(&itemBounds, shift, 0);
    if (id == FrmFindIcon_SkinLabel2) itemBounds.right = itemBounds.left + TextWidth(item);
    Move(item, itemBounds);
  }
}

void FindIconLayout::Record(const Form& form) {
  placed_.clear();
  for (std::size_t row = 0; row < followings.size(); ++row) {
    for (int id = followings.at(row).firstId; id <= followings.at(row).lastId; ++id) {
      if (const HWND control = form.Item(id)) placed_.push_back({control, BoundsInParent(control), row});
    }
  }
}

void FindIconLayout::Arrange(bool listShown) {
  if (form_ == nullptr || IsIconic(form_->Window()) != FALSE) return;
  const SIZE inside = InsideOf(form_->Window());
  const ExtraRoom room = ShareRoom(inside.cx - needed_.cx, inside.cy - smallestInside_.cy, listShown);
  for (const Placed& placed : placed_) ArrangeControl(placed, room);
  extraListWidth_ = std::max<int>(0, inside.cx - smallestInside_.cx);
  ArrangeGrid(room);
  SendMessageW(form_->Item(FrmFindIcon_sbMain), WM_SIZE, 0, 0);
  // Controls were moved one by one and may have passed over each other.
  if (room != arranged_) RedrawWindow(form_->Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  arranged_ = room;
}

void FindIconLayout::ArrangeControl(const Placed& placed, const ExtraRoom& room) const {
  const Following& row = followings.at(placed.row);
  const RECT bounds{placed.bounds.left + Shift(row.left, room), placed.bounds.top + Shift(row.top, room),
                    placed.bounds.right + Shift(row.right, room), placed.bounds.bottom + Shift(row.bottom, room)};
  const RECT now = BoundsInParent(placed.control);
  if (EqualRect(&bounds, &now) != FALSE) return;
  if (row.left == row.right && row.top == row.bottom) {
    SetWindowPos(placed.control, nullptr, bounds.left, bounds.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  } else if (GetDlgCtrlID(placed.control) == FrmFindIcon_Drive1) {
    Move(placed.control, {bounds.left, bounds.top, bounds.right, bounds.top + OpenHeight(form_->Window())});
  } else {
    Move(placed.control, bounds);
  }
}

void FindIconLayout::ArrangeGrid(const ExtraRoom& room) const {
  const int height = gridBounds_.bottom - gridBounds_.top;
  const int left = gridBounds_.left;
  const int top = gridBounds_.top + room.upperLists;
  const int width = gridBounds_.right - left + extraListWidth_;
  grid_->Place({left, top}, width);
  Move(form_->Item(FrmFindIcon_Lv), {left, top, left + width, top + height + room.iconList});
}

}  // namespace tarvik
