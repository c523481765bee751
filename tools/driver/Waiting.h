#pragma once

#include <chrono>
#include <functional>

namespace tarvik::end_to_end {

// How long a test waits for something that should happen soon, before it calls it a failure. Far more than a slow
// machine needs, so that it never decides about a program that works.
inline constexpr std::chrono::seconds patience{60};

// How long a click may take to show what it does before it counts as lost and is made again. A late one that is made
// again does its work twice, so this is long, too.
inline constexpr std::chrono::seconds lostAfter{10};

// Asks until the condition holds or the patience ends; whether it held.
bool Eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit = patience);

}  // namespace tarvik::end_to_end
