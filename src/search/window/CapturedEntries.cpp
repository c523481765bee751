#include "search/window/CapturedEntries.h"

#include "platform/Clipboard.h"

namespace tarvik {

bool CapturedEntries::RenderEntry(int number) {
  if (!list_.Has(number)) return false;
  ModMicroArt::CaptureEntry(icons_, list_.Item(number), search_.Geometry.IconSize, surfaces_.Clear());
  return true;
}

const Surface& CapturedEntries::PicMain() {
  const int side = state_.MagnifiedSide;
  const int magnified = search_.Geometry.IconSize * state_.Magnification;
  if (!picMain_) picMain_.emplace(side, side, surfaceBackground);
  const Surface& icon = surfaces_.Composed();
  SetStretchBltMode(picMain_->Dc(), COLORONCOLOR);
  StretchBlt(picMain_->Dc(), 0, 0, magnified, magnified, icon.Dc(), 0, 0, icon.Width(), icon.Height(), SRCCOPY);
  return *picMain_;
}

bool CapturedEntries::CopyPicClip(HWND owner) const {
  const Surface& mask = surfaces_.Mask();
  Surface picClip(mask.Width(), mask.Height(), surfaceBackground);
  picClip.Combine(mask, SRCAND);
  picClip.Combine(surfaces_.Image(), SRCINVERT);
  return CopyToClipboard(picClip, owner);
}

}  // namespace tarvik
