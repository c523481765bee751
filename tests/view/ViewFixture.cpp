#include "view/ViewFixture.h"

#include <windows.h>

#include <commctrl.h>

#include <array>

namespace tarvik::support {
namespace {

constexpr DWORD deadline = 20000;  // milliseconds until waiting for a condition fails
constexpr DWORD turn = 20;         // milliseconds of waiting for a message at a time

std::function<void()> pendingBody;

void CALLBACK RunBody(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  if (const auto body = std::exchange(pendingBody, nullptr)) body();
}

}  // namespace

ViewFixture::ViewFixture()
    : owner(CreateWindowExW(0, L"STATIC", L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 400, 300, nullptr,
                            nullptr, GetModuleHandleW(nullptr), nullptr)) {
  state.CurrentLanguage = "ENG";
  application.onRuntimeError = [this](Form&, const RuntimeError&) { ++errors; };
  MakeList(5);
}

ViewFixture::~ViewFixture() {
  view.reset();
  DestroyWindow(owner);
}

void ViewFixture::MakeList(int count, Integer16 selection, int size) {
  view.reset();
  host = std::make_unique<PictureHost>(count, selection, size);
  view = std::make_unique<frmBit>(application, *host, state, settings);
}

void ViewFixture::WhileOpen(const std::function<void()>& body) {
  bool ran = false;
  pendingBody = [&] {
    ran = true;
    application.DoEvents();
    body();
    view->Unload();
  };
  SetTimer(nullptr, 0, 1, RunBody);
  view->ShowSelectedEntry(owner);
  ASSERT_TRUE(ran) << "the view did not open";
}

void ViewFixture::Click(int button) {
  const RECT bounds = ButtonBounds(button);
  const LPARAM middle = MAKELPARAM((bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2);
  PostMessageW(Item(frmBit_tlb_control), WM_LBUTTONDOWN, MK_LBUTTON, middle);
  PostMessageW(Item(frmBit_tlb_control), WM_LBUTTONUP, 0, middle);
  application.DoEvents();
}

void ViewFixture::Press(int key, UINT message) {
  PostMessageW(Item(frmBit_CboZoom), message, static_cast<WPARAM>(key), 1);
  application.DoEvents();
}

void ViewFixture::ChooseZoom(int row) {
  SendMessageW(Item(frmBit_CboZoom), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  SendMessageW(view->Window(), WM_COMMAND, MAKEWPARAM(frmBit_CboZoom, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(Item(frmBit_CboZoom)));
  application.DoEvents();
}

bool ViewFixture::WaitFor(const std::function<bool()>& condition) {
  const ULONGLONG start = GetTickCount64();
  while (!condition()) {
    if (GetTickCount64() - start > deadline) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, turn, QS_ALLINPUT);
    application.DoEvents();
  }
  return true;
}

std::string ViewFixture::Caption() const {
  std::array<wchar_t, 256> text{};
  GetWindowTextW(view->Window(), text.data(), static_cast<int>(text.size()));
  return ToUtf8(text.data());
}

std::string ViewFixture::Status() const {
  std::array<wchar_t, 512> text{};
  SendMessageW(Item(frmBit_sbMain), SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text.data()));
  return ToUtf8(text.data());
}

std::string ViewFixture::Tooltip(int button) const {
  const HWND toolbar = Item(frmBit_tlb_control);
  const auto tooltips = reinterpret_cast<HWND>(SendMessageW(toolbar, TB_GETTOOLTIPS, 0, 0));
  std::array<wchar_t, 256> text{};
  TOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.hwnd = toolbar;
  tool.uId = static_cast<UINT_PTR>(button);
  tool.lpszText = text.data();
  SendMessageW(tooltips, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
  return ToUtf8(text.data());
}

bool ViewFixture::IsButtonEnabled(int button) const {
  return SendMessageW(Item(frmBit_tlb_control), TB_ISBUTTONENABLED, static_cast<WPARAM>(button), 0) != 0;
}

RECT ViewFixture::ButtonBounds(int button) const {
  RECT bounds{};
  SendMessageW(Item(frmBit_tlb_control), TB_GETRECT, static_cast<WPARAM>(button), reinterpret_cast<LPARAM>(&bounds));
  return bounds;
}

RECT ViewFixture::BoundsOf(int id) const {
  RECT bounds{};
  GetWindowRect(Item(id), &bounds);
  MapWindowPoints(nullptr, view->Window(), reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

SIZE ViewFixture::WindowSize() const {
  RECT bounds{};
  GetWindowRect(view->Window(), &bounds);
  return {bounds.right - bounds.left, bounds.bottom - bounds.top};
}

}  // namespace tarvik::support
