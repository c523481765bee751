#include "driver/Input.h"

#include <chrono>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <thread>

#include "driver/UnixProgram.h"
#include "driver/Waiting.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

// Uses the virtual screen's own mouse and keyboard. Input made by SendInput would conflict with them: each time the
// pointer enters a window, the window takes over the state of the keys and buttons from the screen. The text is a chain
// of commands of that tool.
void Do(const std::string& actions) {
  const UnixAnswer answer = RunUnix("xdotool " + actions);
  if (answer.exitCode != 0) throw std::runtime_error("input is not taken: " + actions + ": " + answer.output);
}

std::string KeyName(WORD key) {
  static const std::map<WORD, const char*> names{{VK_CONTROL, "Control_L"},
                                                 {VK_SHIFT, "Shift_L"},
                                                 {VK_MENU, "Alt_L"},
                                                 {VK_RETURN, "Return"},
                                                 {VK_ESCAPE, "Escape"},
                                                 {VK_TAB, "Tab"},
                                                 {VK_SPACE, "space"},
                                                 {VK_BACK, "BackSpace"},
                                                 {VK_DELETE, "Delete"},
                                                 {VK_HOME, "Home"},
                                                 {VK_END, "End"},
                                                 {VK_PRIOR, "Prior"},
                                                 {VK_NEXT, "Next"},
                                                 {VK_LEFT, "Left"},
                                                 {VK_RIGHT, "Right"},
                                                 {VK_UP, "Up"},
                                                 {VK_DOWN, "Down"},
                                                 {VK_ADD, "KP_Add"},
                                                 {VK_SUBTRACT, "KP_Subtract"},
                                                 {VK_INSERT, "Insert"},
                                                 {VK_APPS, "Menu"},
                                                 {VK_OEM_PLUS, "equal"},
                                                 {VK_OEM_MINUS, "minus"}};
  if (const auto name = names.find(key); name != names.end()) return name->second;
  if (key >= VK_F1 && key <= VK_F24) return "F" + std::to_string(key - VK_F1 + 1);
  if (key >= 'A' && key <= 'Z') return {static_cast<char>(key - 'A' + 'a')};
  if (key >= '0' && key <= '9') return {static_cast<char>(key)};
  throw std::invalid_argument("no name for key " + std::to_string(key));
}

std::string HoldKeys(const std::string& actions, HeldKeys keys) {
  std::string down;
  std::string up;
  for (const WORD key : keys) {
    down += "keydown " + KeyName(key) + " ";
    up = " keyup " + KeyName(key) + up;
  }
  return down + actions + up;
}

// The screen's keyboard focus follows the foreground window with a delay, and a key pressed before that is lost. Waits
// up to a second and returns whether the focus has followed. On a busy machine it sometimes never follows; the focus is
// then set as a window manager would do it.
bool KeysGoToFront() {
  const auto front = reinterpret_cast<ULONG_PTR>(GetPropW(GetForegroundWindow(), L"__wine_x11_whole_window"));
  return RunUnix("front=" + std::to_string(front) + R"sh(
for try in $(seq 50); do
  [ "$(xdotool getwindowfocus -f)" != $front ] || exit 0
  sleep 0.02
done
[ $front = 0 ] || xdotool windowfocus $front
exit 1)sh")
             .exitCode == 0;
}

std::string MoveTo(POINT point) {
  return "mousemove " + std::to_string(point.x) + " " + std::to_string(point.y) + " ";
}

// The last press of the left button.
struct Press {
  POINT point;
  std::chrono::steady_clock::time_point time;
};
Press lastPress{};

// Waits as long as the system would treat a press at that point as the second half of a double click.
void WaitOutDoubleClick(POINT point) {
  if (std::abs(point.x - lastPress.point.x) > GetSystemMetrics(SM_CXDOUBLECLK)) return;
  if (std::abs(point.y - lastPress.point.y) > GetSystemMetrics(SM_CYDOUBLECLK)) return;
  constexpr std::chrono::milliseconds clockStep{20};
  std::this_thread::sleep_until(lastPress.time + std::chrono::milliseconds(GetDoubleClickTime()) + clockStep);
}

void PressLeft(POINT point, const std::string& press, HeldKeys held) {
  WaitOutDoubleClick(point);
  Do(MoveTo(point) + HoldKeys(press, held));
  lastPress = {.point = point, .time = std::chrono::steady_clock::now()};
}

void SendUnit(WORD unit, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = unit;
  input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
  if (SendInput(1, &input, sizeof input) != 1) throw std::runtime_error("text is not taken");
}

}  // namespace

void MovePointer(POINT point) {
  Do(MoveTo(point));
}

void Click(POINT point, HeldKeys held) {
  PressLeft(point, "click 1", held);
}

void DoubleClick(POINT point, HeldKeys held) {
  PressLeft(point, "click --repeat 2 --delay 20 1", held);
}

void DoubleClickAndHold(POINT point) {
  PressLeft(point, "click --delay 20 1 mousedown 1", {});
}

void ReleaseLeft(POINT point) {
  Do(MoveTo(point) + "mouseup 1");
}

void RightClick(POINT point) {
  Do(MoveTo(point) + "click 3");
}

void Drag(POINT from, POINT to) {
  WaitOutDoubleClick(from);
  Do(MoveTo(from) + "mousedown 1 " + MoveTo(to) + "mouseup 1");
  lastPress = {.point = from, .time = std::chrono::steady_clock::now()};
}

void DragAndHold(POINT from, POINT to) {
  WaitOutDoubleClick(from);
  Do(MoveTo(from) + "mousedown 1 " + MoveTo(to));
  lastPress = {.point = from, .time = std::chrono::steady_clock::now()};
}

void TurnWheel(POINT point, int notches) {
  Do(MoveTo(point) + "click --repeat " + std::to_string(std::abs(notches)) + " --delay 1 " + (notches > 0 ? "4" : "5"));
}

POINT MiddleOf(const RECT& bounds) {
  return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

void PressKey(WORD key, HeldKeys held, int times) {
  if (times == 0) return;
  // Meanwhile another window may come to the front.
  if (!Eventually(KeysGoToFront)) throw std::runtime_error("the keys do not go to the window in front");
  std::string presses = "key --delay 1";
  for (int i = 0; i < times; ++i) presses += " " + KeyName(key);
  Do(HoldKeys(presses, held));
}

void TypeText(const std::string& text) {
  for (const wchar_t unit : ToWide(text)) {
    SendUnit(unit, 0);
    SendUnit(unit, KEYEVENTF_KEYUP);
  }
}

}  // namespace tarvik::end_to_end
