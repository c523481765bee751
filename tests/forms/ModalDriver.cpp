#include "forms/ModalDriver.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace tarvik::support {
namespace {

constexpr UINT period = 10;               // ms
constexpr ULONGLONG longestWait = 20000;  // ms

ModalDriver* driver = nullptr;

std::vector<HWND> WindowsInSight() {
  std::vector<HWND> windows;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM list) -> BOOL {
        if (IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE)
          reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&windows));
  return windows;
}

}  // namespace

struct ModalDriverTimer {
  static void CALLBACK Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
    if (driver != nullptr) driver->Tick();
  }
};

ModalDriver::ModalDriver()
    : timer_(SetTimer(nullptr, 0, period, ModalDriverTimer::Tick)), waitingSince_(GetTickCount64()) {
  driver = this;
}

ModalDriver::~ModalDriver() {
  KillTimer(nullptr, timer_);
  driver = nullptr;
}

void ModalDriver::Tick() {
  if (steps_.empty()) {
    waitingSince_ = GetTickCount64();
    return;
  }
  for (const HWND window : WindowsInSight()) {
    if (GetDlgItem(window, steps_.front().id) == nullptr) continue;
    const Waiting now = std::move(steps_.front());
    steps_.pop_front();
    waitingSince_ = GetTickCount64();
    return now.step(window);
  }
  if (GetTickCount64() - waitingSince_ < longestWait) return;
  ADD_FAILURE() << "no window with the control " << steps_.front().id;
  steps_.clear();
  for (const HWND window : WindowsInSight()) PostMessageW(window, WM_CLOSE, 0, 0);
}

}  // namespace tarvik::support
