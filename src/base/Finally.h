#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace tarvik {

// Runs an action once when its scope ends, however it ends; Now runs it earlier. It can be moved to the scope in which
// it is to live.
//
// A std::exception thrown by the action is dropped: another one may already be propagating, and that is the one to
// report. An action that captures at most two pointers needs no heap memory, so it can be created even if memory has
// run out.
class [[nodiscard]] Finally {
 public:
  Finally() = default;  // no action
  explicit Finally(std::function<void()> action) : action_(std::move(action)) {}
  ~Finally() { Now(); }
  Finally(Finally&& other) noexcept : action_(std::exchange(other.action_, nullptr)) {}
  Finally& operator=(Finally&& other) noexcept {
    if (this == &other) return *this;
    Now();
    action_ = std::exchange(other.action_, nullptr);
    return *this;
  }
  Finally(const Finally&) = delete;
  Finally& operator=(const Finally&) = delete;

  void Now() noexcept {
    const auto action = std::exchange(action_, nullptr);
    if (!action) return;
    try {
      action();
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): as the class says
    }
  }

 private:
  std::function<void()> action_;
};

}  // namespace tarvik
