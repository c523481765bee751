#pragma once

#include <cstddef>
#include <fstream>
#include <span>
#include <string>

#include "base/FileSink.h"

namespace tarvik::support {

// A file on the disk of the machine that the tests are built on.
class FileOnDisk final : public FileSink {
 public:
  bool Open(const std::string& path, ReadOnlyFile /*readOnly*/) override {
    file_.open(path, std::ios::binary | std::ios::trunc);
    return file_.is_open();
  }
  bool Write(std::span<const std::byte> bytes) override {
    for (const std::byte value : bytes) file_.put(static_cast<char>(value));
    return file_.good();
  }
  bool Close() override {
    file_.close();
    return file_.good();
  }

 private:
  std::ofstream file_;
};

}  // namespace tarvik::support
