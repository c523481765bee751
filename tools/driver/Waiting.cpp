#include "driver/Waiting.h"

#include <algorithm>
#include <thread>

namespace tarvik::end_to_end {

// Most conditions become true within milliseconds. Asking about the others as often would take the processor from the
// program that they wait for, so the pauses grow.
bool Eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
  constexpr std::chrono::microseconds longest{20'000};
  const auto end = std::chrono::steady_clock::now() + limit;
  for (std::chrono::microseconds pause{2'000}; !condition(); pause = std::min(pause * 5 / 4, longest)) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(pause);
  }
  return true;
}

}  // namespace tarvik::end_to_end
