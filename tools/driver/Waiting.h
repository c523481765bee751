#pragma once

#include <chrono>
#include <functional>

namespace tarvik::end_to_end {

// How long a test waits for something that should happen soon, before it calls it a failure. Far more than a slow
// machine needs, so that it never decides about a program that works.
inline constexpr std::chrono::seconds patience{60};

// Asks until the condition holds or the patience ends; whether it held.
bool Eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit = patience);

}  // namespace tarvik::end_to_end
