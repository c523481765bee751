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

// A refusal: the product's name and the first sentence, an empty line, the second sentence.
struct Refusal {
  Text first;
  Text second;
};

constexpr Refusal tooFewColors{
    {" requires at least high color mode.", " 颜色模式需设置为真彩色.", " 顏色模式需設置為真彩色."},
    {"Please adjust your color mode and try again.", "请在调整颜色模式后重新运行程序.",
     "請在調整顏色模式後重新運行程式."}};

constexpr Refusal tooSmall{{" requires a screen resolution of at least 800 x 600 pixels.",
                            " 显示屏分辨率需设置为800×600以上.", " 顯示幕解析度需設置為800×600以上."},
                           {"Please adjust your screen resolution and try again.", "请在调整分辨率后重新运行程序.",
                            "請在調整解析度後重新運行程式."}};

// In an unknown language the start ends without a message (deliberate: oddities 3).
void Refuse(const Refusal& refusal, const std::string& code, StartUpSystem& system) {
  const auto first = Pick(refusal.first, code);
  const auto second = Pick(refusal.second, code);
  if (!first || !second) return;
  system.ShowCriticalMessage(std::string(productTitle).append(*first).append("\r\n\r\n").append(*second),
                             FailureTitle(code));
}

// Measures and compares; a measure that does not fit its number stops the check before it can say anything.
template <typename Check>
bool Succeeds(Check check) {
  try {
    return check();
  } catch (const OverflowError&) {
    return false;
  }
}

}  // namespace

void Main(ProgramState& state, StartUpSystem& system) {
  state.CurrentLanguage = ChooseLanguage([&system](const std::string& name) { return system.ReadLanguage(name); });
  if (!CheckColorMode(state, system)) return;
  if (!CheckScreenResolution(state, system)) return;
  state.Shell32Path = system.SystemFolder() + shellLibrary;
  state.TempIconPath = system.TempFolder() + scratchIcon;
  system.ShowFrmSpash();
}

bool CheckColorMode(ProgramState& state, StartUpSystem& system) {
  return Succeeds([&] {
    // The first answer is stored, the second decides (deliberate: oddities 2).
    state.ScreenBitsPerPixel = system.BitsPerPixel();
    const Integer16 bitsPerPixel = system.BitsPerPixel();
    if (bitsPerPixel > tooFewBitsPerPixel) return true;
    Refuse(tooFewColors, state.CurrentLanguage, system);
    return false;
  });
}

bool CheckScreenResolution(const ProgramState& state, StartUpSystem& system) {
  return Succeeds([&] {
    const Integer16 width = system.ScreenWidth();
    const Integer16 height = system.ScreenHeight();
    if (height >= minHeight && width >= minWidth) return true;
    Refuse(tooSmall, state.CurrentLanguage, system);
    return false;
  });
}

}  // namespace tarvik::basInitEntry
