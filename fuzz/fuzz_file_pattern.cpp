#include <algorithm>
#include <array>
#include <vector>

#include "FuzzInput.h"
#include "base/Characters.h"
#include "search/icons/FilePattern.h"

namespace tarvik {
namespace {

constexpr std::size_t longest = 200;  // more would only slow down the reference matcher

std::vector<std::string> CharactersOf(std::string_view text) {
  std::vector<std::string> characters;
  while (!text.empty()) {
    const std::string_view character = FirstCharacters(text, 1);
    Require(!character.empty(), "a text is walked to its end");
    characters.emplace_back(character);
    std::ranges::transform(characters.back(), characters.back().begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    text.remove_prefix(character.size());
  }
  return characters;
}

// The reference matcher: determines which prefixes of the name each prefix of the part matches.
bool MatchesSlowly(const std::string& name, const std::string& part) {
  const auto characters = CharactersOf(name);
  std::vector<bool> heads(characters.size() + 1, false);
  heads[0] = true;
  for (const std::string& wanted : CharactersOf(part)) {
    std::vector<bool> longer(heads.size(), false);
    if (wanted == "*") longer[0] = heads[0];
    for (std::size_t i = 1; i < heads.size(); ++i) {
      const bool one = heads[i - 1] && (wanted == "?" || wanted == characters[i - 1]);
      longer[i] = wanted == "*" ? heads[i] || longer[i - 1] : one;
    }
    heads = longer;
  }
  return heads.back();
}

bool MatchesAnySlowly(const std::string& name, const std::string& pattern) {
  std::size_t start = 0;
  while (start <= pattern.size()) {
    const std::size_t end = std::min(pattern.find(';', start), pattern.size());
    const std::string part = pattern.substr(start, end - start);
    if (part == "*.*" || (!part.empty() && MatchesSlowly(name, part))) return true;
    start = end + 1;
  }
  return false;
}

}  // namespace
}  // namespace tarvik

// The input is a name and a pattern, one line each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = tarvik::TextOf(data, std::min(size, tarvik::longest));
  const std::size_t line = std::min(input.find('\n'), input.size());
  const std::string name = input.substr(0, line);
  const std::string pattern = input.substr(std::min(line + 1, input.size()));
  tarvik::Require(tarvik::MatchesPattern(name, pattern) == tarvik::MatchesAnySlowly(name, pattern),
                  "the fast answer is the plain one");
  return 0;
}
