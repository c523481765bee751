#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "forms/Throttle.h"

namespace tarvik {

// A text on the screen that changes faster than it can be read. Showing a text costs more than most of the work it
// reports, so it is shown at most a few dozen times a second; the last one is always shown.
class LiveText {
 public:
  // `show` puts the text on the screen.
  explicit LiveText(std::function<void(const std::string& text)> show) : show_(std::move(show)) {}

  // Shows the text, now or when it is due.
  void Set(const std::string& text) {
    waiting_ = text;
    ShowIfDue();
  }
  // Shows a pending text if it is due.
  void ShowIfDue() {
    if (shows_.IsDue()) Flush();
  }
  // Shows a pending text now.
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
