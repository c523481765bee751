#include "forms/Form.h"

#include <windows.h>

#include <windowsx.h>

#include <algorithm>
#include <exception>
#include <utility>

#include "forms/ControlNames.h"
#include "forms/MousePointer.h"
#include "platform/AutomationObject.h"
#include "platform/DroppedFiles.h"
#include "platform/Text.h"
#include "resource.h"

namespace tarvik {
namespace {

// The point at which a context menu was requested; none if it was requested by a key.
std::optional<POINT> PointOf(LPARAM request) {
  if (request == -1) return std::nullopt;
  return POINT{GET_X_LPARAM(request), GET_Y_LPARAM(request)};
}

}  // namespace

Form::Form(Application& application, int dialogId) : application_(application), dialogId_(dialogId) {}

Form::~Form() {
  // A form that is destroyed while loaded does not run Form_Unload: its derived part no longer exists.
  if (IsLoaded()) Close();
}

void Form::Load(HWND owner) {
  if (IsLoaded()) return;
  loadFailure_ = nullptr;
  const HWND window = CreateDialogParamW(application_.Instance(), MAKEINTRESOURCEW(dialogId_), owner, DialogProcedure,
                                         reinterpret_cast<LPARAM>(this));
  if (loadFailure_) {
    if (IsLoaded()) Close();
    std::rethrow_exception(std::exchange(loadFailure_, nullptr));
  }
  if (window == nullptr) throw NoWindowError();
}

void Form::Show(HWND owner) {
  Load(owner);
  // A caption shows the icon at once. Without a caption only the task bar shows it, so it is set later and the window
  // appears sooner.
  const bool hasCaption = (GetWindowLongPtrW(window_, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
  if (hasCaption) SetIcons();
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  if (!hasCaption) SetIcons();
  FocusFirst();
}

// The small one comes first: otherwise the system derives it from the large one.
void Form::SetIcons() {
  for (const int size : {ICON_SMALL, ICON_BIG}) {
    const int side = GetSystemMetrics(size == ICON_BIG ? SM_CXICON : SM_CXSMICON);
    const HANDLE icon =
        LoadImageW(application_.Instance(), MAKEINTRESOURCEW(Icon_Program), IMAGE_ICON, side, side, LR_SHARED);
    SendMessageW(window_, WM_SETICON, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(icon));
  }
}

// We returned FALSE from WM_INITDIALOG, so setting the focus is our job; most systems have done it by now.
void Form::FocusFirst() {
  if (IsChild(window_, GetFocus()) != FALSE) return;
  const HWND first = GetNextDlgTabItem(window_, nullptr, FALSE);
  if (first != nullptr) SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}

void Form::ShowModal(HWND owner) {
  Load(owner);
  wentWithOwner_ = false;
  modalOwner_ = owner;
  EnableWindow(owner, FALSE);
  Show(owner);
  application_.RunWhile([this] { return IsLoaded() && IsWindowVisible(window_); });
  if (modalOwner_ != nullptr) Hide();
  if (wentWithOwner_ || application_.HasEnded()) throw GivenUp();
}

void Form::Hide() {
  // The owner is enabled first; otherwise the system would activate another program's window.
  if (modalOwner_ != nullptr) EnableWindow(std::exchange(modalOwner_, nullptr), TRUE);
  ShowWindow(window_, SW_HIDE);
}

void Form::Unload() {
  if (!IsLoaded()) return;
  Form_Unload();
  Close();
}

void Form::Close() {
  Hide();
  const HWND window = window_;
  SetWindowLongPtrW(window, DWLP_USER, 0);
  Release();
  DestroyWindow(window);
  Skn.reset();
}

// From here on the form has no window.
void Form::Release() {
  application_.Remove(*this);
  window_ = nullptr;
  if (std::exchange(isMoving_, false)) PostThreadMessageW(GetCurrentThreadId(), WM_KEYDOWN, VK_ESCAPE, 0);
}

HWND Form::Item(int id) const {
  return GetDlgItem(window_, id);
}

void Form::SetCaption(std::string_view text) {
  SetWindowTextW(window_, ToWide(text).c_str());
}

void Form::SetItemText(int id, std::string_view text) {
  if (const HWND item = Item(id)) {
    SetWindowTextW(item, ToWide(text).c_str());
  } else {
    menu_.SetText(id, text);
  }
}

std::string Form::ItemText(int id) const {
  const HWND item = Item(id);
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(item)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(item, text.data(), static_cast<int>(text.size()))));
  return ToUtf8(text);
}

void Form::EnableItem(int id, bool enabled) {
  if (const HWND item = Item(id)) {
    EnableWindow(item, enabled ? TRUE : FALSE);
  } else {
    menu_.Enable(id, enabled);
  }
}

void Form::ShowItem(int id, bool shown) const {
  ShowWindow(Item(id), shown ? SW_SHOW : SW_HIDE);
}

bool Form::IsChecked(int id) const {
  return IsDlgButtonChecked(window_, id) == BST_CHECKED;
}

void Form::SetChecked(int id, bool checked) {
  if (Item(id) != nullptr) {
    CheckDlgButton(window_, id, checked ? BST_CHECKED : BST_UNCHECKED);
  } else {
    menu_.SetChecked(id, checked);
  }
}

bool Form::PreviewMessage(const MSG& /*message*/) {
  return false;
}
bool Form::OnCommand(int /*id*/, int /*code*/) {
  return false;
}
void Form::OnScroll(HWND /*scrollBar*/, int /*request*/) {}
void Form::OnTimer(UINT_PTR /*id*/) {}
LRESULT Form::OnNotify(NMHDR& /*header*/) {
  return 0;
}
void Form::OnMessage(UINT /*message*/) {}
void Form::OnPicture(const PictureEvent& /*event*/) {}
void Form::OnDrawItem(const DRAWITEMSTRUCT& /*item*/) {}
void Form::OnHelp() {
  if (application_.onHelp) application_.onHelp(*this);
}
bool Form::OnContextMenu(HWND /*control*/, std::optional<POINT> /*point*/) {
  return false;
}
void Form::OnRuntimeError(const RuntimeError& error) {
  application_.onRuntimeError(*this, error);
}
void Form::OnDrop(const std::string& /*path*/) {}

// Does what the shell's DragAcceptFiles does, without loading the shell at start-up.
void Form::AcceptDrops() const {
  SetWindowLongPtrW(window_, GWL_EXSTYLE, GetWindowLongPtrW(window_, GWL_EXSTYLE) | WS_EX_ACCEPTFILES);
}

// The boundary of every handler: exceptions do not leave it, neither through the system nor out of the message loop. A
// processor exception, such as an access violation, is no std::exception and ends the program.
template <typename Handler>
INT_PTR Form::Guard(Handler handler) {
  try {
    try {
      return handler();
    } catch (const std::exception& error) {
      OnRuntimeError(AsRuntimeError(error));
    }
  } catch (const GivenUp&) {  // NOLINT(bugprone-empty-catch): it is no error
  } catch (const std::exception&) {
    MessageBeep(MB_ICONEXCLAMATION);  // memory does not even suffice for a message
  }
  return TRUE;
}

INT_PTR CALLBACK Form::DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) SetWindowLongPtrW(window, DWLP_USER, lParam);
  auto* form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, DWLP_USER));
  if (form == nullptr) return FALSE;
  if (message == WM_INITDIALOG) {
    form->Initialise(window);
    return FALSE;  // the first control gets the focus when the form is shown
  }
  return form->Guard([&] { return form->Handle(message, wParam, lParam); });
}

// Nothing may be thrown through the system, so the exception is stored and Load rethrows it.
void Form::Initialise(HWND window) {
  window_ = window;
  try {
    application_.Add(*this);
    menu_.Attach(window);
    NameControls(window);
    Form_Load();
  } catch (...) {
    loadFailure_ = std::current_exception();
  }
}

bool Form::TakesMessage(const MSG& message) {
  return Guard([&] { return PreviewMessage(message) ? TRUE : FALSE; }) != FALSE;
}

INT_PTR Form::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      return OnCommand(LOWORD(wParam), HIWORD(wParam)) ? TRUE : FALSE;
    case WM_HSCROLL:
    case WM_VSCROLL:
      OnScroll(reinterpret_cast<HWND>(lParam), LOWORD(wParam));
      return TRUE;
    case WM_TIMER:
      OnTimer(wParam);
      return TRUE;
    case WM_NOTIFY:
      return Answer(OnNotify(*reinterpret_cast<NMHDR*>(lParam)));
    case PictureBox::eventMessage:
      OnPicture(*reinterpret_cast<const PictureEvent*>(lParam));
      return TRUE;
    case WM_DRAWITEM:
      OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_HELP:
      OnHelp();
      return Answer(TRUE);
    case WM_CONTEXTMENU:
      return OnContextMenu(reinterpret_cast<HWND>(wParam), PointOf(lParam)) ? Answer(0) : FALSE;
    case WM_DROPFILES:
      OnDrop(TakeFirstDropped(reinterpret_cast<HDROP>(wParam)));
      return TRUE;
    case WM_SETCURSOR:
      return MaintainHourglass() ? Answer(TRUE) : FALSE;
    case WM_PAINT:
      return Paint();
    case WM_SIZE:
      Form_Resize();
      return FALSE;
    case WM_SYSCOMMAND:
      return MoveOrSize(wParam, lParam);
    case WM_GETMINMAXINFO:
      return Bound(*reinterpret_cast<MINMAXINFO*>(lParam));
    case WM_CLOSE:
      if (Form_QueryUnload()) Unload();
      return TRUE;
    case WM_QUERYENDSESSION:
      return Answer(Form_QueryEndSession() ? TRUE : FALSE);
    case WM_ENDSESSION:
      if (wParam != 0) application_.EndSession();
      return TRUE;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      PassOn(message);
      return FALSE;
    case WM_DESTROY:
      // Not by Close, which releases the window first: the system destroys it together with its owner.
      Form_Unload();
      return FALSE;
    case WM_NCDESTROY:
      wentWithOwner_ = true;
      Release();
      Skn.reset();
      return FALSE;
    default:
      if (message >= WM_APP && message < 0xC000) OnMessage(message);
      return FALSE;
  }
}

// Controls that cache colours or a theme learn of a change only from their parent window.
void Form::PassOn(UINT message) const {
  EnumChildWindows(
      window_,
      [](HWND control, LPARAM which) -> BOOL {
        SendMessageW(control, static_cast<UINT>(which), 0, 0);
        return TRUE;
      },
      static_cast<LPARAM>(message));
  InvalidateRect(window_, nullptr, TRUE);
}

INT_PTR Form::Answer(LRESULT result) {
  if (IsLoaded()) SetWindowLongPtrW(window_, DWLP_MSGRESULT, result);
  return TRUE;
}

// While the user moves or sizes a window, the system serves all messages, WM_CLOSE among them. Wine's loop for it goes
// on after the window is destroyed, until a key ends it: see Release.
INT_PTR Form::MoveOrSize(WPARAM command, LPARAM lParam) {
  constexpr WPARAM withoutPart = 0xFFF0;  // the low bits say where the mouse holds the window
  if ((command & withoutPart) != SC_MOVE && (command & withoutPart) != SC_SIZE) return FALSE;
  isMoving_ = true;
  DefWindowProcW(window_, WM_SYSCOMMAND, command, lParam);
  isMoving_ = false;
  return Answer(0);
}

INT_PTR Form::Bound(MINMAXINFO& bounds) {
  const SIZE smallest = SmallestSize();
  bounds.ptMinTrackSize.x = std::max(bounds.ptMinTrackSize.x, smallest.cx);
  bounds.ptMinTrackSize.y = std::max(bounds.ptMinTrackSize.y, smallest.cy);
  return Answer(0);
}

INT_PTR Form::Paint() {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window_, &paint);
  Form_Paint(dc);
  EndPaint(window_, &paint);
  return TRUE;
}

}  // namespace tarvik
