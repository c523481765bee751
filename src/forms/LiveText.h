#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "forms/Throttle.h"

namespace tarvik {

// A text on the screen that changes faster than anyone reads. Showing a text costs more than most of the work it tells
// of, so it is shown a few dozen times a second at most; the last one is never lost.
class LiveText {
 public:
  // `show` puts the text on the screen.
  explicit LiveText(std::function<void(const std::string& text)> show) : show_(std::move(show)) {}

  // Shows the text, now or when it is due.
  void Set(const std::string& text) {
    waiting_ = text;
    ShowIfDue();
  }
  // Shows a text that waits, if its time has come.
  void ShowIfDue() {
    if (shows_.IsDue()) Flush();
  }
  // Shows a text that waits, now.
  void Flush() {
    if (!waiting_) return;
    const std::string text = std::move(*waiting_);
    waiting_.reset();
    shows_.Note();
    show_(text);
  }

 private:
  std::function<void(const std::string& text)> show_;
  std::optional<std::string> waiting_;
  Throttle shows_{40};  // milliseconds
};

}  // namespace tarvik
