#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "search/icons/FileBytes.h"
#include "search/icons/ShellIcons.h"

namespace tarvik::support {

// Real files; counts how often one is opened and how many bytes are read. Outlives the icons that read them.
class CountedFiles {
 public:
  ShellIcons::OpenBytes Opener() {
    return [this](const std::string& path) {
      ++opened;
      return std::make_unique<Bytes>(path, read);
    };
  }

  int opened = 0;
  std::uint64_t read = 0;

 private:
  class Bytes final : public ByteSource {
   public:
    Bytes(const std::string& path, std::uint64_t& read) : file_(path), read_(read) {}
    FileStamp Stamp() override { return file_.Stamp(); }
    bool Read(std::uint64_t offset, std::span<std::byte> bytes) override {
      read_ += bytes.size();
      return file_.Read(offset, bytes);
    }

   private:
    FileBytes file_;
    std::uint64_t& read_;
  };
};

}  // namespace tarvik::support
