#include "export/FrmHotSpot.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "export/FrmHotSpotTexts.h"
#include "export/HotSpotPick.h"
#include "export/IconSurfaces.h"
#include "forms/Bounds.h"
#include "platform/Display.h"
#include "resource.h"
#include "startup/FormPlacement.h"
#include "startup/FormSize.h"

namespace tarvik {
namespace {

constexpr int formWidth = 7510;  // twips
constexpr int formHeight = 6295;
constexpr int edge = 2;  // pixels of a sunken edge on each side
constexpr int leftButton = 1;
constexpr int minReadingsGap = 8;  // pixels at 96 dpi between the picture and what is to the right of it

// Draws a sunken edge on the form, directly around a control.
void DrawEdgeAround(HDC dc, HWND control) {
  RECT frame = BoundsInParent(control);
  InflateRect(&frame, edge, edge);
  DrawEdge(dc, &frame, BDR_SUNKENOUTER, BF_RECT);
}

}  // namespace

FrmHotSpot::FrmHotSpot(Application& application, ProgramState& state)
    : Form(application, Dialog_FrmHotSpot), state_(state) {}

void FrmHotSpot::Form_Load() {
  SizeInTwips(*this, formWidth, formHeight);
  Surface& picture = picCursor_.emplace(state_.MagnifiedSide, state_.MagnifiedSide, surfaceBackground);
  if (picMain_ != nullptr) picture.Copy(*picMain_);
  ShowPicture(picture);
  ClearPicture();
  hotX_ = 0;
  hotY_ = 0;
  ShowHotSpot();
  state_.HotSpotCancelled = true;
  SetTexts(*this, hotSpotTexts, state_.CurrentLanguage);
  basInitEntry::ApplySkinToForm(*this);
  basInitEntry::CenterForm(*this);
}

// The picture's size is in the program's pixels, whatever the size of the dialog's font. Its left margin equals those
// at the top and bottom.
void FrmHotSpot::ShowPicture(const Surface& picture) {
  PictureBox box(Item(FrmHotSpot_PicCursor));
  const DisplayScale scale = ScaleOfDisplay();
  box.Show(&picture);
  box.EnlargeBy(scale);
  box.FitPicture();
  RECT client;
  GetClientRect(Window(), &client);
  const int corner = std::max<int>(edge, (client.bottom - scale.ToDisplay(state_.MagnifiedSide)) / 2);
  SetWindowPos(box.Window(), nullptr, corner, corner, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FrmHotSpot::Form_Paint(HDC dc) {
  DrawEdgeAround(dc, Item(FrmHotSpot_PicCursor));
  DrawEdgeAround(dc, Item(FrmHotSpot_ImgXY));
}

// The other controls are placed in dialog units, which grow with the font and not quite with the dpi. So the picture
// could cover them; they are then moved to the right.
void FrmHotSpot::ClearPicture() const {
  const HWND picture = Item(FrmHotSpot_PicCursor);
  const int minLeft = BoundsInParent(picture).right + ScaleOfDisplay().ToDisplay(minReadingsGap);
  const int shift = minLeft - BoundsInParent(Item(FrmHotSpot_ImgXY)).left;
  if (shift <= 0) return;
  for (HWND item = GetWindow(Window(), GW_CHILD); item != nullptr; item = GetWindow(item, GW_HWNDNEXT)) {
    const RECT bounds = BoundsInParent(item);
    if (item == picture) continue;
    SetWindowPos(item, nullptr, bounds.left + shift, bounds.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

bool FrmHotSpot::OnCommand(int id, int code) {
  static constexpr Event<FrmHotSpot> events[] = {
      {FrmHotSpot_CmdOk, FrmHotSpot_CmdOk, BN_CLICKED, Call<&FrmHotSpot::CmdOk_Click>},
      {FrmHotSpot_CmdCancel, FrmHotSpot_CmdCancel, BN_CLICKED, Call<&FrmHotSpot::CmdCancel_Click>},
      {IDCANCEL, IDCANCEL, BN_CLICKED, Call<&FrmHotSpot::CmdCancel_Click>},  // Esc
  };
  return Dispatch<FrmHotSpot>(*this, events, id, code);
}

void FrmHotSpot::OnPicture(const PictureEvent& event) {
  if (event.kind == PictureEvent::Kind::MouseMove) return PicCursor_MouseMove(event);
  // The second press of a double click counts as a press.
  if (event.kind == PictureEvent::Kind::MouseDown || event.kind == PictureEvent::Kind::DblClick)
    PicCursor_MouseDown(event);
}

void FrmHotSpot::PicCursor_MouseDown(const PictureEvent& event) {
  if (event.button != leftButton) return;
  const int scale = HotSpotScale(state_.MagnifiedSide);
  hotX_ = PickedCoordinate(event.x, scale, state_.HotSpotBound);
  hotY_ = PickedCoordinate(event.y, scale, state_.HotSpotBound);
  ShowHotSpot();
}

void FrmHotSpot::ShowHotSpot() {
  SetItemText(FrmHotSpot_LblHotX, TwoDigits(hotX_));
  SetItemText(FrmHotSpot_LblHotY, TwoDigits(hotY_));
}

void FrmHotSpot::PicCursor_MouseMove(const PictureEvent& event) {
  const int scale = HotSpotScale(state_.MagnifiedSide);
  SetItemText(FrmHotSpot_lblxy, TwoDigits(PointedCoordinate(event.x, scale, state_.HotSpotBound)) + ", " +
                                    TwoDigits(PointedCoordinate(event.y, scale, state_.HotSpotBound)));
}

void FrmHotSpot::CmdOk_Click() {
  state_.HotSpotX = hotX_;
  state_.HotSpotY = hotY_;
  state_.HotSpotCancelled = false;
  Unload();
}

void FrmHotSpot::CmdCancel_Click() {
  Unload();
}

}  // namespace tarvik
