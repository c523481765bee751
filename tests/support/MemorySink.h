#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "base/FileSink.h"

namespace tarvik::support {

// A file in memory. Fails at the step with the number `failingStep`, counted from 0, if there is one; `steps` logs the
// calls.
class MemorySink final : public FileSink {
 public:
  static constexpr int noFailure = -1;

  explicit MemorySink(int failingStep = noFailure) : failingStep_(failingStep) {}

  bool Open(const std::string& path, ReadOnlyFile readOnly) override {
    openedPath = path;
    readOnlyFile = readOnly;
    bytes.clear();
    onOpen();
    return Step("Open");
  }
  bool Write(std::span<const std::byte> added) override {
    if (!Step("Write")) return false;
    for (const std::byte value : added) bytes.push_back(std::to_integer<std::uint8_t>(value));
    return true;
  }
  bool Close() override { return Step("Close"); }

  std::span<const std::byte> Bytes() const { return std::as_bytes(std::span(bytes)); }

  std::vector<std::uint8_t> bytes;
  std::vector<std::string> steps;  // "Open", "Write", "Close"
  std::string openedPath;
  ReadOnlyFile readOnlyFile{};
  std::function<void()> onOpen = [] {};

 private:
  bool Step(const std::string& name) {
    steps.push_back(name);
    return static_cast<int>(steps.size()) - 1 != failingStep_;
  }

  int failingStep_;
};

}  // namespace tarvik::support
