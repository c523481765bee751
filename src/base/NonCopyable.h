#pragma once

namespace tarvik {

// A base of whatever may be neither copied nor moved, because it owns something that it gives back at its end, or
// because others hold its address.
class NonCopyable {
 public:
  NonCopyable(const NonCopyable&) = delete;
  NonCopyable& operator=(const NonCopyable&) = delete;

 protected:
  NonCopyable() = default;
  ~NonCopyable() = default;
};

}  // namespace tarvik
