#include "startup/RunTimeErrorBox.h"

#include "forms/MessageBox.h"
#include "startup/MessageTexts.h"

namespace tarvik {

void ShowRuntimeError(HWND owner, const RuntimeError& error, std::string_view code) {
  const bool overflow = dynamic_cast<const OverflowError*>(&error) != nullptr;
  const auto text = Pick(overflow ? overflowText : typeMismatchText, code);
  if (text) ShowMessage(owner, *text, FailureTitle(code), MessageSign::Exclamation);
}

}  // namespace tarvik
