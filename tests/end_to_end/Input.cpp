#include "end_to_end/Input.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

void Send(INPUT input) {
  if (SendInput(1, &input, sizeof input) != 1) throw std::runtime_error("input is not taken");
}

INPUT KeyInput(WORD key, WORD character, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = character;
  input.ki.dwFlags = flags;
  return input;
}

// The coordinate that the system scales back to that pixel: it counts 65,536 steps over the whole screen.
LONG Scaled(LONG pixel, int screenSize) {
  return (pixel * 65536 + screenSize - 1) / screenSize;
}

// Every mouse event says where it happens. What the real pointer's own late reports say in between does not count then.
void SendMouse(POINT place, DWORD flags, int wheel = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = Scaled(place.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = Scaled(place.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
  input.mi.mouseData = static_cast<DWORD>(wheel);
  Send(input);
}

void SendKey(WORD key, WORD character, DWORD flags) {
  Send(KeyInput(key, character, flags));
}

// Holds keys down for as long as it lives.
class Holding {
 public:
  explicit Holding(HeldKeys keys) : keys_(keys) {
    for (const WORD key : keys_) SendKey(key, 0, 0);
  }
  ~Holding() {
    for (auto key = keys_.rbegin(); key != keys_.rend(); ++key) {
      INPUT input = KeyInput(*key, 0, KEYEVENTF_KEYUP);
      SendInput(1, &input, sizeof input);
    }
  }
  Holding(const Holding&) = delete;
  Holding& operator=(const Holding&) = delete;

 private:
  std::vector<WORD> keys_;
};

// The last press of the left button.
struct Press {
  POINT place;
  std::chrono::steady_clock::time_point time;
};
Press lastPress{};

// Waits while the system would take a press at that place for the second half of a double click.
void WaitOutDoubleClick(POINT place) {
  if (std::abs(place.x - lastPress.place.x) > GetSystemMetrics(SM_CXDOUBLECLK)) return;
  if (std::abs(place.y - lastPress.place.y) > GetSystemMetrics(SM_CYDOUBLECLK)) return;
  constexpr std::chrono::milliseconds clockStep{20};
  std::this_thread::sleep_until(lastPress.time + std::chrono::milliseconds(GetDoubleClickTime()) + clockStep);
}

void PressLeft(POINT place) {
  lastPress = {.place = place, .time = std::chrono::steady_clock::now()};
  SendMouse(place, MOUSEEVENTF_LEFTDOWN);
  SendMouse(place, MOUSEEVENTF_LEFTUP);
}

}  // namespace

void MovePointer(POINT place) {
  SendMouse(place, 0);
}

void Click(POINT place, HeldKeys held) {
  WaitOutDoubleClick(place);
  const Holding holding(held);
  PressLeft(place);
}

void DoubleClick(POINT place, HeldKeys held) {
  WaitOutDoubleClick(place);
  const Holding holding(held);
  PressLeft(place);
  PressLeft(place);
}

void RightClick(POINT place) {
  SendMouse(place, MOUSEEVENTF_RIGHTDOWN);
  SendMouse(place, MOUSEEVENTF_RIGHTUP);
}

void TurnWheel(POINT place, int notches) {
  SendMouse(place, MOUSEEVENTF_WHEEL, notches * WHEEL_DELTA);
}

POINT MiddleOf(const RECT& place) {
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

void PressKey(WORD key, HeldKeys held, int times) {
  const Holding holding(held);
  for (int i = 0; i < times; ++i) {
    SendKey(key, 0, 0);
    SendKey(key, 0, KEYEVENTF_KEYUP);
  }
}

void TypeText(const std::string& text) {
  for (const wchar_t unit : ToWide(text)) {
    SendKey(0, unit, KEYEVENTF_UNICODE);
    SendKey(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
  }
}

}  // namespace tarvik::end_to_end
