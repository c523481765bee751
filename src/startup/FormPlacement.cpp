#include "startup/FormPlacement.h"

#include <windows.h>

#include "platform/Display.h"
#include "platform/Paths.h"
#include "startup/Placement.h"
#include "startup/Skin.h"

namespace tarvik::basInitEntry {

void CenterForm(Form& form) {
  const int dotsPerInch = DotsOfDisplay();
  RECT bounds;
  GetWindowRect(form.Window(), &bounds);
  const TwipSize screen{ToTwips(GetSystemMetrics(SM_CXSCREEN), dotsPerInch),
                        ToTwips(GetSystemMetrics(SM_CYSCREEN), dotsPerInch)};
  const TwipSize size{ToTwips(bounds.right - bounds.left, dotsPerInch),
                      ToTwips(bounds.bottom - bounds.top, dotsPerInch)};
  const auto [left, top] = CenteredCorner(screen, size);
  SetWindowPos(form.Window(), nullptr, ToPixels(left, dotsPerInch), ToPixels(top, dotsPerInch), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ApplySkinToForm(Form& form) {
  static Skin skin(ProgramFolder());
  return skin.Apply(form);
}

}  // namespace tarvik::basInitEntry
