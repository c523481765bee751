#pragma once

#include <chrono>
#include <functional>

namespace tarvik::end_to_end {

// The timeout for something that should happen soon. Far longer than a slow machine needs, so that it never fails a
// program that works.
inline constexpr std::chrono::seconds patience{60};

// How long the effect of a click may take before the click counts as lost and is repeated. Repeating one that is merely
// late does its work twice, so this is long, too.
inline constexpr std::chrono::seconds lostAfter{10};

// Polls until the condition is true or the timeout has passed; returns whether it became true.
bool Eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit = patience);

}  // namespace tarvik::end_to_end
