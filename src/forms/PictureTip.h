#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "base/NonCopyable.h"

namespace tarvik {

// A tool tip of a picture box, shown when the pointer rests over a part of the picture. At each move the form sets the
// text for the part under the pointer.
class PictureTip : NonCopyable {
 public:
  // Creates the tip for a picture box. The form's window owns it and destroys it. This object outlives the picture box.
  void Attach(HWND picture);

  // Sets the text for the part under the pointer, UTF-8, with "\r\n" between lines; empty for no tip. A different text
  // is a different tip: a visible one is hidden, and the new one appears when the pointer rests. Also call it if the
  // part under the pointer has changed.
  void Say(const std::string& text);
  // Breaks a path into lines that fit the main screen in the tip's font, as WrapPath does.
  std::string Wrap(std::string_view path) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);
  void Relay(UINT message, WPARAM wParam, LPARAM lParam) const;
  void Remove();
  int WidthOf(const std::string& lines) const;

  HWND tip_ = nullptr;
  HWND picture_ = nullptr;
  std::string text_;
  UINT_PTR number_ = 0;  // of the tool under the pointer; each new text is a new tool
};

}  // namespace tarvik
