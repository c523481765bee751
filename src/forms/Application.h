#pragma once

#include <windows.h>

#include <functional>
#include <vector>

#include "base/NonCopyable.h"
#include "base/RuntimeError.h"

namespace tarvik {

class Form;

// What waited for a form is given up: the form's owner was closed under it, or the session ends. It is no error, and
// the handler that waited ends without a message.
class GivenUp {};

// The program's message loop and the forms that are loaded. One per program, on the user-interface thread.
class Application : NonCopyable {
 public:
  explicit Application(HINSTANCE instance);
  ~Application() = default;

  HINSTANCE Instance() const { return instance_; }

  // Shows a run-time error that stopped a handler of `form`. Set once, before the first form loads.
  std::function<void(Form& form, const RuntimeError& error)> onRuntimeError;
  // Opens the user's guide for a form in which F1 was pressed, if it is set. Set once, before the first form loads.
  std::function<void(Form& form)> onHelp;

  // Serves messages until no form is loaded.
  void Run();
  // Serves messages while `condition` holds; waits for the next one.
  void RunWhile(const std::function<bool()>& condition);
  // Whether anything waits to be served: a message, one that another thread sent, a timer, a part to paint.
  static bool HasMessages();
  // Serves the messages that wait now and returns.
  void DoEvents();

  // Unloads every form, the one that was loaded last first, and ends all waiting for messages. Whatever waits gives up.
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
