#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/Application.h"
#include "platform/Handles.h"
#include "platform/Surface.h"
#include "platform/Text.h"
#include "resource.h"
#include "support/FakeHost.h"
#include "support/MemoryIni.h"
#include "view/frmBit.h"

namespace tarvik::support {

// A main window in memory. Each entry has its own picture, in which all pixels differ.
class PictureHost final : public FakeHost {
 public:
  PictureHost(int count, Integer16 selection, int size) : FakeHost(count, selection), picIcon_(size, size, white) {}

  const Surface& PicIcon() const override {
    if (picturesLeft && (*picturesLeft)-- == 0) throw OutOfMemoryError();
    return picIcon_;
  }
  static Color ColorOf(int number, int x, int y) {
    return static_cast<Color>(number * 37 % 256) * 0x10000U + static_cast<Color>(x * 4) * 0x100U +
           static_cast<Color>(y * 4);
  }

  std::function<void()> onDraw = [] {};
  mutable std::optional<int> picturesLeft;  // how often PicIcon succeeds before it runs out of memory

 protected:
  bool Draw(int number) override {
    onDraw();
    for (int y = 0; y < picIcon_.Height(); ++y) {
      for (int x = 0; x < picIcon_.Width(); ++x) SetPixel(picIcon_.Dc(), x, y, ColorOf(number, x, y));
    }
    return true;
  }

 private:
  Surface picIcon_;
};

// The real enhanced view over a main window in memory. A test's body runs while the view is shown modally.
class ViewFixture : public ::testing::Test {
 protected:
  ViewFixture();
  ~ViewFixture() override;

  // Makes the list: that many entries, one of them selected (counted from 0), icons of that size.
  void MakeList(int count, Integer16 selection = 0, int size = 32);
  // Opens the view on the selected entry, runs `body` in its modal loop, and closes the view unless the body did.
  void WhileOpen(const std::function<void()>& body);

  // One whole click of the mouse on a toolbar button.
  void Click(int button);
  // One key press, as it arrives at the zoom list, which has the focus.
  void Press(int key, UINT message = WM_KEYDOWN);
  void Tick() const { SendMessageW(view->Window(), WM_TIMER, frmBit_tim_nextpic, 0); }
  void ChooseZoom(int row);
  void Close() const { SendMessageW(view->Window(), WM_CLOSE, 0, 0); }
  // Processes messages until the condition is true; false if it does not become true in time.
  bool WaitFor(const std::function<bool()>& condition);
  // Stops the slide show's timer. Returns whether it was running.
  bool TakeTimer() const { return KillTimer(view->Window(), frmBit_tim_nextpic) != FALSE; }

  HWND Item(int id) const { return view->Item(id); }
  std::string Caption() const;
  std::string Status() const;
  std::string Tooltip(int button) const;
  bool IsButtonEnabled(int button) const;
  RECT BoundsOf(int id) const;          // in client coordinates
  RECT ButtonBounds(int button) const;  // in the toolbar's client coordinates
  SIZE WindowSize() const;

  ProgramState state;
  MemoryIni store;
  Settings settings{store, "C:\\program\\tarvik.exe"};
  Application application{GetModuleHandleW(nullptr)};
  int errors = 0;  // run-time errors that reached a handler's boundary
  std::unique_ptr<PictureHost> host;
  std::unique_ptr<frmBit> view;
  HWND owner = nullptr;
};

}  // namespace tarvik::support
