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

// What the text does not say by itself: which function is missing, and the file that the error happened at.
std::string DetailsOf(const RuntimeError& error) {
  std::string details;
  if (const auto* missing = dynamic_cast<const MissingFunctionError*>(&error)) details += "\r\n\r\n" + missing->Name();
  if (!error.File().empty()) details += "\r\n" + error.File();
  return details;
}

}  // namespace

void ShowRuntimeError(HWND owner, const RuntimeError& error, std::string_view code) {
  const auto text = Pick(TextOf(error), code);
  if (!text) return;
  ShowMessage(owner, std::string(*text) + DetailsOf(error), FailureTitle(code), MessageSign::Exclamation);
}

}  // namespace tarvik
