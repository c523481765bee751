#include "search/icons/FilePattern.h"

#include <algorithm>

#include "base/AsciiCase.h"
#include "base/Characters.h"

namespace tarvik {
namespace {

// A position in a text that advances by whole characters.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }
  bool IsAt(char character) const { return !rest_.empty() && rest_[0] == character; }
  std::string_view Character() const { return rest_.substr(0, FirstCharacterLength(rest_)); }
  void Advance() { rest_.remove_prefix(FirstCharacterLength(rest_)); }

 private:
  std::string_view rest_;
};

bool SameCharacter(const Cursor& one, const Cursor& other) {
  return std::ranges::equal(one.Character(), other.Character(), {}, LowerAscii, LowerAscii);
}

// Backtracking only into the last "*" is enough: whatever an earlier star could absorb, the last one can.
bool MatchesPart(std::string_view name, std::string_view part) {
  Cursor inName(name);
  Cursor inPart(part);
  bool canWiden = false;
  Cursor afterStar(part);
  Cursor takenByStar(name);
  while (!inName.AtEnd()) {
    if (inPart.IsAt('*')) {
      inPart.Advance();
      canWiden = true;
      afterStar = inPart;
      takenByStar = inName;
    } else if (inPart.IsAt('?') || SameCharacter(inPart, inName)) {
      inPart.Advance();
      inName.Advance();
    } else if (canWiden) {
      takenByStar.Advance();
      inName = takenByStar;
      inPart = afterStar;
    } else {
      return false;
    }
  }
  while (inPart.IsAt('*')) inPart.Advance();
  return inPart.AtEnd();
}

}  // namespace

FileTypeChecks WithAllFilesRule(FileTypeChecks checked) {
  if (checked[allFilesBox]) checked.fill(true);
  return checked;
}

std::size_t FileTypeBoxOf(std::string_view name) {
  const auto* type = std::ranges::find_if(
      searchedTypes, [name](const SearchedType& searched) { return MatchesPattern(name, searched.part); });
  return static_cast<std::size_t>(type - searchedTypes.begin());
}

std::string BuildPattern(const FileTypeChecks& checked) {
  if (checked[allFilesBox]) return std::string(allFilesPattern);
  std::string pattern;
  for (std::size_t box = 0; box < allFilesBox; ++box) {
    if (checked[box]) pattern += searchedTypes[box].part;
  }
  return pattern.empty() ? std::string(noFilesPattern) : pattern;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  while (!pattern.empty()) {
    const std::string_view part = pattern.substr(0, pattern.find(';'));
    if (part == allFilesPattern) return true;
    if (!part.empty() && MatchesPart(name, part)) return true;
    pattern.remove_prefix(std::min(part.size() + 1, pattern.size()));
  }
  return false;
}

}  // namespace tarvik
