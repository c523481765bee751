#include "startup/RunTimeErrorBox.h"

#include "forms/MessageBox.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

const Text& TextOf(const RuntimeError& error) {
  if (dynamic_cast<const OverflowError*>(&error) != nullptr) return overflowText;
  if (dynamic_cast<const OutOfMemoryError*>(&error) != nullptr) return outOfMemoryText;
  return typeMismatchText;
}

}  // namespace

void ShowRuntimeError(HWND owner, const RuntimeError& error, std::string_view code) {
  if (const auto text = Pick(TextOf(error), code))
    ShowMessage(owner, *text, FailureTitle(code), MessageSign::Exclamation);
}

}  // namespace tarvik
