#include "driver/Waiting.h"

#include <thread>

namespace tarvik::end_to_end {

bool Eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
  const auto end = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
  }
  return true;
}

}  // namespace tarvik::end_to_end
