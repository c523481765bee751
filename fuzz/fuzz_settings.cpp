#include "FuzzInput.h"
#include "startup/Language.h"
#include "startup/Settings.h"

namespace tarvik {
namespace {

constexpr Text greeting{"<%1>", "<%1>", "<%1>"};

void CheckLanguage(const std::string& text) {
  const std::string code = ChooseLanguage([&text](const std::string&) { return text; });
  Require(code.size() <= 3, "a code has at most three characters");
  const bool known = code == english || code == simplifiedChinese || code == traditionalChinese;
  Require(Pick(greeting, code).has_value() == known, "only the three codes have texts");
  Require(Compose(greeting, english, {text}) == "<" + text + ">", "a value is put into a text unchanged");
}

void CheckSettings(const std::string& text) {
  Require(SettingsPath(text).ends_with(".dat"), "settings are in a .dat file");
  Require(SettingsPath("C:\\x\\" + text).starts_with("C:\\x"), "settings are next to the program");
  Require(!IsTruth(text) || text.size() == TruthText(true).size(), "only one word is a yes");
}

}  // namespace
}  // namespace tarvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = tarvik::TextOf(data, size);
  tarvik::CheckLanguage(text);
  tarvik::CheckSettings(text);
  return 0;
}
