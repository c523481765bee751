#include "startup/FormPlacement.h"

#include <windows.h>

#include "platform/Paths.h"
#include "startup/FormSize.h"
#include "startup/Placement.h"
#include "startup/Skin.h"

namespace tarvik::basInitEntry {

void CenterForm(Form& form) {
  const auto [across, down] = DotsPerInchOf(form.Window());
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
