#pragma once

namespace tarvik {

// A base class of types that must not be copied or moved, because they own something that they release on destruction,
// or because other objects hold their address.
class NonCopyable {
 public:
  NonCopyable(const NonCopyable&) = delete;
  NonCopyable& operator=(const NonCopyable&) = delete;

 protected:
  NonCopyable() = default;
  ~NonCopyable() = default;
};

}  // namespace tarvik
