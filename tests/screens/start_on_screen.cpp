// Starts the real program on the current screen, in each language, and checks whether it refuses. The screen and the
// expected result are in the environment, set by the script that made the screen.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "base/NonCopyable.h"
#include "driver/Machine.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Waiting.h"
#include "platform/Handles.h"
#include "platform/TemporaryFolder.h"
#include "resource.h"

namespace tarvik::end_to_end {
namespace {

struct Refusal {
  const char* answer;
  const char* code;
  const char* text;
  const char* title;
};

constexpr Refusal refusals[] = {
    {"colors", "ENG",
     "Brindle Tarvik requires at least high color mode.\r\n\r\nPlease adjust your color mode and try again.",
     "Brindle Tarvik - Error"},
    {"colors", "CHS", "Brindle Tarvik 颜色模式需设置为真彩色.\r\n\r\n请在调整颜色模式后重新运行程序.",
     "Brindle Tarvik - 错误"},
    {"colors", "CHT", "Brindle Tarvik 顏色模式需設置為真彩色.\r\n\r\n請在調整顏色模式後重新運行程式.",
     "Brindle Tarvik - 錯誤"},
    {"small", "ENG",
     "Brindle Tarvik requires a screen resolution of at least 800 x 600 pixels.\r\n\r\n"
     "Please adjust your screen resolution and try again.",
     "Brindle Tarvik - Error"},
    {"small", "CHS", "Brindle Tarvik 显示屏分辨率需设置为800×600以上.\r\n\r\n请在调整分辨率后重新运行程序.",
     "Brindle Tarvik - 错误"},
    {"small", "CHT", "Brindle Tarvik 顯示幕解析度需設置為800×600以上.\r\n\r\n請在調整解析度後重新運行程式.",
     "Brindle Tarvik - 錯誤"},
};

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

int DepthAsSeen() {
  const WindowDc dc(nullptr);
  return GetDeviceCaps(dc.get(), BITSPIXEL);
}

// While it lives, the screen has this depth if the system supports it. Newer versions of Wine, like Windows, report at
// least 16 bits to programs, however few the display has, until a program requests fewer.
class ScreenDepth : NonCopyable {
 public:
  explicit ScreenDepth(int depth) : changed_(depth < 16 && DepthAsSeen() != depth) {
    if (changed_) Change(depth);
  }
  ~ScreenDepth() {
    if (changed_) ChangeDisplaySettingsExW(nullptr, nullptr, nullptr, 0, nullptr);
  }

 private:
  static void Change(int depth) {
    DEVMODEW mode{};
    mode.dmSize = sizeof mode;
    EnumDisplaySettingsW(nullptr, ENUM_CURRENT_SETTINGS, &mode);
    mode.dmFields = DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT;
    mode.dmBitsPerPel = static_cast<DWORD>(depth);
    ChangeDisplaySettingsExW(nullptr, &mode, nullptr, 0, nullptr);
  }

  bool changed_;
};

// "WIDTHxHEIGHTxDEPTH". Only the X server can distinguish 24 bits from 32.
std::string ScreenAsSeen() {
  const int depth = DepthAsSeen();
  return std::to_string(GetSystemMetrics(SM_CXSCREEN)) + "x" + std::to_string(GetSystemMetrics(SM_CYSCREEN)) + "x" +
         std::to_string(depth == 32 ? 24 : depth);
}

// With few colours the icon is not drawn in quite its own, but no other icon is red. Wine 8 draws nearly all of it red.
// Wine 10 then finds few of the display's colours: it draws most of the box black and 83 pixels of the icon red.
bool ShowsCriticalSign(const Box& box) {
  if (DepthAsSeen() > 8) return ShowsSign(box, IDI_HAND);
  constexpr int fewestRed = 60;
  return Eventually([&] {
    const Screenshot sign(box.Sign().Inside());
    int red = 0;
    for (int y = 0; y < sign.Height(); ++y) {
      for (int x = 0; x < sign.Width(); ++x) {
        const Color pixel = sign.Pixel(x, y);
        if (GetRValue(pixel) > GetGValue(pixel) + 64 && GetRValue(pixel) > GetBValue(pixel) + 64) ++red;
      }
    }
    return red >= fewestRed;
  });
}

class StartOnScreen : public ::testing::TestWithParam<const char*> {
 protected:
  const std::string screen_ = Variable("TARVIK_TEST_SCREEN");
  const std::string answer_ = Variable("TARVIK_TEST_ANSWER");
  const ScreenDepth depth_{std::stoi(screen_.substr(screen_.rfind('x') + 1))};
  const support::TemporaryFolder folder_;
  const LanguageValue language_{GetParam()};
  Program program_{folder_.Path()};
};

TEST_P(StartOnScreen, StartsOrRefusesInTheLanguage) {
  ASSERT_EQ(ScreenAsSeen(), screen_) << "this is not the screen that was asked for";
  program_.Launch();
  if (answer_ == "passes") {
    EXPECT_NE(program_.WaitForStartUpWindow().Window(), nullptr);
    return;
  }
  for (const Refusal& refusal : refusals) {
    if (answer_ != refusal.answer || std::string(GetParam()) != refusal.code) continue;
    const Box box = program_.WaitForBox();
    EXPECT_EQ(box.Text(), refusal.text);
    EXPECT_EQ(box.Title(), refusal.title);
    EXPECT_TRUE(ShowsCriticalSign(box));
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    EXPECT_EQ(program_.CountWindowsWith(FrmSpash_lblDescription), 0);
    box.Press(IDOK);
  }
  // In an unknown language it ends by itself, without a message that would block it.
  EXPECT_EQ(program_.WaitForEnd(), 0U);
  EXPECT_FALSE(std::filesystem::exists(program_.SettingsFile()));
}

INSTANTIATE_TEST_SUITE_P(Languages, StartOnScreen, ::testing::Values("ENG", "CHS", "CHT", "Chinese"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace tarvik::end_to_end
