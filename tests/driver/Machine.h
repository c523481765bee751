#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "base/NonCopyable.h"

namespace tarvik::end_to_end {

// Things of the machine that a test changes. Each is put back when its object ends, if it is an object.

// The value that names the interface's language; none removes it.
class LanguageValue : NonCopyable {
 public:
  explicit LanguageValue(const std::optional<std::string>& value);
  ~LanguageValue();

 private:
  std::optional<std::string> former_;
};

// The clipboard, open for this process, or for a window of it. It is waited for: others open it for moments, the system
// itself among them.
class OpenedClipboard : NonCopyable {
 public:
  explicit OpenedClipboard(HWND owner = nullptr);
  ~OpenedClipboard();
};

// Leaves nothing on the clipboard.
void EmptyTheClipboard();

// Web pages, which the system opens by writing their path to a file instead of showing them. Neither path may have a
// blank.
class WebPageReader : NonCopyable {
 public:
  explicit WebPageReader(const std::string& file);
  ~WebPageReader();

 private:
  std::optional<std::string> former_;
};

// Drive Q:, which stands in the list of drives while nothing can be read from it, as an empty card reader does.
class EmptyDrive : NonCopyable {
 public:
  EmptyDrive();
  ~EmptyDrive();
};

// Drive R:, which shows a folder as its root and has a name. The name is kept in a hidden file in that folder.
class ExtraDrive : NonCopyable {
 public:
  ExtraDrive(const std::string& folder, const std::string& label);
  ~ExtraDrive();
};

}  // namespace tarvik::end_to_end
