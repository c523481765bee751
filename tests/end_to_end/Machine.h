#pragma once

#include <optional>
#include <string>

namespace tarvik::end_to_end {

// Things of the machine that a test changes; each is put back when its object ends.

// The value that names the interface's language; none removes it.
class LanguageValue {
 public:
  explicit LanguageValue(const std::optional<std::string>& value);
  ~LanguageValue();
  LanguageValue(const LanguageValue&) = delete;
  LanguageValue& operator=(const LanguageValue&) = delete;

 private:
  std::optional<std::string> former_;
};

// A drive letter that stands in the list of drives while nothing can be read from it, as an empty card reader does.
class EmptyDrive {
 public:
  EmptyDrive();
  ~EmptyDrive();
  EmptyDrive(const EmptyDrive&) = delete;
  EmptyDrive& operator=(const EmptyDrive&) = delete;

  char Letter() const { return 'Q'; }
};

// The name of volume C:.
class VolumeLabel {
 public:
  explicit VolumeLabel(const std::string& label);
  ~VolumeLabel();
  VolumeLabel(const VolumeLabel&) = delete;
  VolumeLabel& operator=(const VolumeLabel&) = delete;
};

}  // namespace tarvik::end_to_end
