#include "startup/FormPlacement.h"

#include <windows.h>

#include "platform/Handles.h"
#include "platform/Paths.h"
#include "startup/Placement.h"
#include "startup/Skin.h"

namespace tarvik::basInitEntry {
namespace {

struct DotsPerInch {
  int across;
  int down;
};

DotsPerInch ResolutionOf(HWND window) {
  const WindowDc dc(window);
  return {GetDeviceCaps(dc.get(), LOGPIXELSX), GetDeviceCaps(dc.get(), LOGPIXELSY)};
}

}  // namespace

void CenterForm(Form& form) {
  const auto [across, down] = ResolutionOf(form.Window());
  RECT bounds;
  GetWindowRect(form.Window(), &bounds);
  const TwipSize screen{ToTwips(GetSystemMetrics(SM_CXSCREEN), across), ToTwips(GetSystemMetrics(SM_CYSCREEN), down)};
  const TwipSize size{ToTwips(bounds.right - bounds.left, across), ToTwips(bounds.bottom - bounds.top, down)};
  const auto [left, top] = CenteredCorner(screen, size);
  SetWindowPos(form.Window(), nullptr, ToPixels(left, across), ToPixels(top, down), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ApplySkinToForm(Form& form) {
  static Skin skin(ProgramFolder());
  return skin.Apply(form);
}

}  // namespace tarvik::basInitEntry
