#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "base/NonCopyable.h"

namespace tarvik::end_to_end {

// Settings of the machine that a test changes. Those that are objects are restored when the object ends.

// The registry value that names the interface's language; nothing removes it.
class LanguageValue : NonCopyable {
 public:
  explicit LanguageValue(const std::optional<std::string>& value);
  ~LanguageValue();

 private:
  std::optional<std::string> former_;
};

// The clipboard, opened by this process, or for a window of it. Waits until it is free: other programs open it for
// moments, the system itself among them.
class OpenedClipboard : NonCopyable {
 public:
  explicit OpenedClipboard(HWND owner = nullptr);
  ~OpenedClipboard();
};

// Empties the clipboard.
void EmptyTheClipboard();

// A reader of web pages for the system: it writes the page's path to a file instead of showing the page. Neither path
// may contain a blank.
class WebPageReader : NonCopyable {
 public:
  explicit WebPageReader(const std::string& file);
  ~WebPageReader();

 private:
  std::optional<std::string> former_;
};

// Drive Q:, which is in the list of drives but cannot be read, like an empty card reader.
class EmptyDrive : NonCopyable {
 public:
  EmptyDrive();
  ~EmptyDrive();
};

// Drive R:, which has a folder as its root, and a label. The label is stored in a hidden file in that folder.
class ExtraDrive : NonCopyable {
 public:
  ExtraDrive(const std::string& folder, const std::string& label);
  ~ExtraDrive();
};

}  // namespace tarvik::end_to_end
