#include "startup/basInitEntry.h"

#include "base/Integer16.h"
#include "startup/MessageTexts.h"

namespace tarvik::basInitEntry {
namespace {

constexpr int tooFewBitsPerPixel = 8;  // 256 colours
constexpr int minWidth = 800;          // pixels
constexpr int minHeight = 600;         // pixels

constexpr const char* shellLibrary = "\\Shell32.dll";
constexpr const char* scratchIcon = "Abcdwxyz.ico";

// In an unknown language the start ends without a message (deliberate: oddities 3).
void Refuse(const Refusal& refusal, const std::string& code, const StartUpSystem& system) {
  const auto first = Pick(refusal.first, code);
  const auto second = Pick(refusal.second, code);
  if (!first || !second) return;
  system.showCriticalMessage(std::string(productTitle).append(*first).append("\r\n\r\n").append(*second),
                             FailureTitle(code));
}

// Measures and compares; a measurement that does not fit its number ends the check before any message.
template <typename Check>
bool Succeeds(Check check) {
  try {
    return check();
  } catch (const OverflowError&) {
    return false;
  }
}

}  // namespace

void Main(ProgramState& state, const StartUpSystem& system) {
  state.CurrentLanguage = ChooseLanguage(system.readLanguage);
  if (!CheckColorMode(state, system)) return;
  if (!CheckScreenResolution(state, system)) return;
  state.Shell32Path = system.systemFolder() + shellLibrary;
  state.TempIconPath = system.tempFolder() + scratchIcon;
  system.showFrmSpash();
}

bool CheckColorMode(ProgramState& state, const StartUpSystem& system) {
  return Succeeds([&] {
    // The first answer is stored, the second decides (deliberate: oddities 2).
    state.ScreenBitsPerPixel = system.bitsPerPixel();
    const Integer16 bitsPerPixel = system.bitsPerPixel();
    if (bitsPerPixel > tooFewBitsPerPixel) return true;
    Refuse(tooFewColors, state.CurrentLanguage, system);
    return false;
  });
}

bool CheckScreenResolution(const ProgramState& state, const StartUpSystem& system) {
  return Succeeds([&] {
    const Integer16 width = system.screenWidth();
    const Integer16 height = system.screenHeight();
    if (height >= minHeight && width >= minWidth) return true;
    Refuse(tooSmall, state.CurrentLanguage, system);
    return false;
  });
}

}  // namespace tarvik::basInitEntry
