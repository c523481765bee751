#pragma once

#include <windows.h>

#include <string>

#include "base/NonCopyable.h"

namespace tarvik {

// A tool tip of a picture box, shown when the pointer rests over a part of the picture. The form says at each move what
// is under the pointer.
class PictureTip : NonCopyable {
 public:
  // Makes the tip for a picture box, whose form's window destroys it with itself. This object outlives the picture box.
  void Attach(HWND picture);

  // What is under the pointer now, UTF-8, with "\r\n" between lines; empty for nothing. Another text is another tip:
  // one that is shown goes, and the new one comes when the pointer rests. Call it also if what is there has changed.
  void Say(const std::string& text);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);
  void Relay(UINT message, WPARAM wParam, LPARAM lParam) const;
  void Remove();

  HWND tip_ = nullptr;
  HWND picture_ = nullptr;
  std::string text_;
  UINT_PTR number_ = 0;  // of the part under the pointer; each new text is a new part
};

}  // namespace tarvik
