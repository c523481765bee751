#pragma once

#include <windows.h>

#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "base/NonCopyable.h"
#include "forms/Application.h"
#include "forms/Menu.h"
#include "forms/PictureBox.h"

namespace tarvik {

class AutomationObject;

// One row of a window's event table: which notification of which control, or of which run of controls with consecutive
// ids, goes to which handler. A menu item's notification code is 0, as a button's click is.
template <typename Window>
struct Event {
  int firstId;
  int lastId;
  int code;
  void (*handler)(Window& window, int index);  // index counts from firstId
};

namespace detail {
template <typename>
struct OwnerOf;
template <typename Window, typename Result, typename... Arguments>
struct OwnerOf<Result (Window::*)(Arguments...)> {
  using Type = Window;
};
template <typename Window, typename Part>
struct OwnerOf<Part Window::*> {
  using Type = Window;
};
}  // namespace detail

// A member function as an event's handler; one that takes an int gets the index.
template <auto Method>
void Call(typename detail::OwnerOf<decltype(Method)>::Type& window, int index) {
  if constexpr (std::is_invocable_v<decltype(Method), decltype(window), int>) {
    (window.*Method)(index);
  } else {
    (window.*Method)();
  }
}

// A member function of one of the window's data members, as an event's handler.
template <auto Part, auto Method>
void CallOn(typename detail::OwnerOf<decltype(Part)>::Type& window, int /*index*/) {
  (window.*Part.*Method)();
}

// A window made from a dialog template. It is loaded (the window exists, hidden, and Form_Load has run), shown modeless
// or modal, hidden, and unloaded. A std::exception thrown by a handler is shown by the application as a run-time error;
// the window stays open.
class Form : NonCopyable {
 public:
  Form(Application& application, int dialogId);
  virtual ~Form();

  // Creates the window, hidden, owned by `owner` or by none, and runs Form_Load. Does nothing if it is loaded. Throws
  // NoWindowError if the system creates no window, and what Form_Load throws; the form is then not loaded, and
  // Form_Unload does not run.
  void Load(HWND owner = nullptr);
  // Loads the form if it is not loaded, and shows it.
  void Show(HWND owner = nullptr);
  // The same, and serves messages until the form is hidden or unloaded; the owner is disabled meanwhile. Throws GivenUp
  // if the owner is closed first, or the session ends.
  void ShowModal(HWND owner);
  void Hide();
  // Runs Form_Unload and destroys the window together with the windows that it owns: forms among them are unloaded.
  // Does nothing if it is not loaded.
  void Unload();

  bool IsLoaded() const { return window_ != nullptr; }
  HWND Window() const { return window_; }
  HWND Item(int id) const;
  Application& TheApplication() const { return application_; }

  // The window's own caption, UTF-8.
  void SetCaption(std::string_view text);
  // The text of the control or menu item with that id, UTF-8.
  void SetItemText(int id, std::string_view text);
  std::string ItemText(int id) const;
  void EnableItem(int id, bool enabled);
  void ShowItem(int id, bool shown) const;
  bool IsChecked(int id) const;
  void SetChecked(int id, bool checked);
  const Menu& TheMenu() const { return menu_; }

  // The component that paints the window in a skin, or null; kept until the window is destroyed.
  std::unique_ptr<AutomationObject> Skn;

  // Called before a message reaches its window; true swallows it.
  virtual bool PreviewMessage(const MSG& message);

 protected:
  virtual void Form_Load() {}
  // Asked before the window closes by its close box or by Alt+F4; false refuses.
  virtual bool Form_QueryUnload() { return true; }
  // Asked before the session ends; false refuses, and the user is asked what to do.
  virtual bool Form_QueryEndSession() { return true; }
  virtual void Form_Unload() {}
  virtual void Form_Resize() {}
  // The smallest size that the user can give the window, frame and caption included, in display pixels; 0 sets no
  // limit.
  virtual SIZE SmallestSize() const { return {}; }
  virtual void Form_Paint(HDC) {}

  // A command of a control or menu item; returns false if there is no handler. Forms pass it to Dispatch with their
  // table.
  virtual bool OnCommand(int id, int code);
  virtual void OnScroll(HWND scrollBar, int request);
  virtual void OnTimer(UINT_PTR id);
  virtual LRESULT OnNotify(NMHDR& header);
  // A message that a part of the program posted to itself, WM_APP and above.
  virtual void OnMessage(UINT message);
  virtual void OnPicture(const PictureEvent& event);
  virtual void OnDrawItem(const DRAWITEMSTRUCT& item);
  // F1, wherever the focus is in the window, in one of its menus or in a message box over it. Opens the user's guide.
  virtual void OnHelp();
  // A right click on a control, Shift+F10 or the menu key, at a point of the screen; no point if it was a key. Returns
  // false to leave it to the system.
  virtual bool OnContextMenu(HWND control, std::optional<POINT> point);
  // Called when a handler ended with a run-time error, which is shown to the user until this returns.
  virtual void OnRuntimeError(const RuntimeError& error);
  // Called when files or folders were dropped on the window, with the path of the first one, UTF-8. Enabled by
  // AcceptDrops.
  virtual void OnDrop(const std::string& path);
  void AcceptDrops() const;

  template <typename Window>
  static bool Dispatch(Window& window, std::span<const Event<Window>> events, int id, int code) {
    for (const Event<Window>& event : events) {
      if (id >= event.firstId && id <= event.lastId && code == event.code) {
        event.handler(window, id - event.firstId);
        return true;
      }
    }
    return false;
  }

 private:
  friend class Application;  // forwards messages
  static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  template <typename Handler>
  INT_PTR Guard(Handler handler);
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR Answer(LRESULT result);
  void Initialise(HWND window);
  bool TakesMessage(const MSG& message);
  void SetIcons();
  void FocusFirst();
  INT_PTR MoveOrSize(WPARAM command, LPARAM lParam);
  INT_PTR Bound(MINMAXINFO& bounds);
  INT_PTR Paint();
  void Close();
  void Release();
  void PassOn(UINT message) const;

  Application& application_;
  int dialogId_;
  HWND window_ = nullptr;
  HWND modalOwner_ = nullptr;  // the window that is disabled while this one is shown modally
  bool wentWithOwner_ = false;
  bool isMoving_ = false;           // the user is moving or sizing the window, in a message loop of the system
  std::exception_ptr loadFailure_;  // what Form_Load threw, until the system has created the window
  Menu menu_;
};

}  // namespace tarvik
