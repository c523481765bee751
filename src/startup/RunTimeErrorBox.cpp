#include "startup/RunTimeErrorBox.h"

#include <string>

#include "forms/MessageBox.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

// Details that are not part of the text, and the file at which the error happened.
std::string DetailsOf(const RuntimeError& error) {
  std::string details;
  if (!error.Detail().empty()) details += "\r\n\r\n" + error.Detail();
  if (!error.File().empty()) details += "\r\n" + error.File();
  return details;
}

}  // namespace

void ShowRuntimeError(HWND owner, const RuntimeError& error, std::string_view code) {
  const auto text = Pick(RuntimeErrorTextOf(error.Kind()), code);
  if (!text) return;
  ShowMessage(owner, std::string(*text) + DetailsOf(error), FailureTitle(code), MessageSign::Exclamation);
}

}  // namespace tarvik
