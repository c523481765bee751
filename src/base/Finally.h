#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace tarvik {

// Runs an action once when its scope ends, however it ends; Now runs it earlier. It can be moved to where it is to
// live.
//
// A std::exception that the action throws is dropped: another one may be on its way already, and that is the one to
// tell of. An action that captures no more than two pointers needs no memory, so that it is made whatever is left of
// it.
class [[nodiscard]] Finally {
 public:
  Finally() = default;  // nothing to do
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
