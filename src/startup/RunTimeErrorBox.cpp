#include "startup/RunTimeErrorBox.h"

#include <string>

#include "forms/MessageBox.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

const Text& TextOf(const RuntimeError& error) {
  if (dynamic_cast<const OverflowError*>(&error) != nullptr) return overflowText;
  if (dynamic_cast<const OutOfMemoryError*>(&error) != nullptr) return outOfMemoryText;
  if (dynamic_cast<const MissingFunctionError*>(&error) != nullptr) return missingFunctionText;
  return typeMismatchText;
}

// What the text does not say by itself.
std::string DetailsOf(const RuntimeError& error) {
  const auto* missing = dynamic_cast<const MissingFunctionError*>(&error);
  return missing != nullptr ? "\r\n\r\n" + missing->Name() : std::string();
}

}  // namespace

void ShowRuntimeError(HWND owner, const RuntimeError& error, std::string_view code) {
  const auto text = Pick(TextOf(error), code);
  if (!text) return;
  ShowMessage(owner, std::string(*text) + DetailsOf(error), FailureTitle(code), MessageSign::Exclamation);
}

}  // namespace tarvik
