#pragma once

#include <windows.h>

#include <functional>
#include <vector>

#include "base/NonCopyable.h"
#include "base/RuntimeError.h"

namespace tarvik {

class Form;

// Thrown when waiting for a form is abandoned: the form's owner was closed, or the session ends. It is not an error,
// and the handler that waited ends without a message.
class GivenUp {};

// The program's message loop and the loaded forms. One per program, on the user-interface thread.
class Application : NonCopyable {
 public:
  explicit Application(HINSTANCE instance);
  ~Application() = default;

  HINSTANCE Instance() const { return instance_; }

  // Shows a run-time error that stopped a handler of `form`. Set once, before the first form loads.
  std::function<void(Form& form, const RuntimeError& error)> onRuntimeError;
  // Opens the user's guide for a form in which F1 was pressed. May be empty. Set once, before the first form loads.
  std::function<void(Form& form)> onHelp;
  // Called when the session has ended and every form is unloaded; may end the process. May be empty.
  std::function<void()> onSessionEnd;

  // Serves messages until no form is loaded.
  void Run();
  // Serves messages while `condition` is true; blocks until the next one.
  void RunWhile(const std::function<bool()>& condition);
  // Whether anything is waiting to be served: a posted message, one sent by another thread, a timer, a region to paint.
  static bool HasMessages();
  // Serves the waiting messages and returns.
  void DoEvents();

  // Unloads every form, the last loaded first, and ends all waiting for messages by GivenUp, if onSessionEnd returns.
  void EndSession();
  bool HasEnded() const { return hasEnded_; }

 private:
  friend class Form;
  void Add(Form& form) { forms_.push_back(&form); }
  void Remove(Form& form) { std::erase(forms_, &form); }
  void Serve(MSG& message);
  Form* FormOf(HWND window) const;

  HINSTANCE instance_;
  std::vector<Form*> forms_;
  bool hasEnded_ = false;
};

}  // namespace tarvik
