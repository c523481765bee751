// A search: counting, refusing, listing.
#include <string>

#include "model/Model.h"

namespace tarvik::model {
namespace {

constexpr int charactersInBox = 20;

// The first characters of a UTF-8 text, each of which has one byte that continues no other.
std::string FirstCharacters(const std::string& text, int count) {
  constexpr unsigned continuation = 0x80;
  std::string first;
  for (const char byte : text) {
    const bool continues = (static_cast<unsigned char>(byte) & 0xC0U) == continuation;
    if (!continues && count-- == 0) break;
    first += byte;
  }
  return first;
}

// Returns a negative number for a text that is not a number.
int ReadLimit(const std::string& text) {
  for (const LimitText& known : limitTexts) {
    if (text == known.text) return known.value;
  }
  return std::stoi(text);
}

}  // namespace

void Model::SetEnabled(bool enabled) {
  findEnabled = okEnabled = closeEnabled = fileEnabled = editEnabled = enabled;
}

void Model::FailureExit() {
  findEnabled = true;
  closeEnabled = true;
  isSearching = false;
  grid.Blank();
  ReadAgain();
}

// `dirAt` is the folder in the title: the folder list's current folder while the walk reads the files.
void Model::Count(const std::string& root, std::string& dirAt) {
  for (const std::string& name : disk_->Files(root, pattern)) {
    iconCount += disk_->IconsOf(root + "\\" + name);
    title = words::title.In(tongue_, dirAt, std::to_string(iconCount));
  }
  if (!subDir) return;
  for (const std::string& path : disk_->SubFolders(root)) {
    dirAt = root;
    Count(path, dirAt);
  }
}

void Model::List(const std::string& root) {
  for (const std::string& name : disk_->Files(root, pattern)) {
    const std::string path = root + "\\" + name;
    const auto file = disk_->Find(path);
    for (int index = 0; index < disk_->IconsOf(path); ++index) {
      entries.push_back({path, index, false});
      grid.DrawIcon(Size(), nextNumber - 1, {file->id, index});
      ++nextNumber;
    }
  }
  if (!subDir) return;
  for (const std::string& path : disk_->SubFolders(root)) List(path);
}

bool Model::IsRefused() {
  const std::string count = std::to_string(iconCount);
  if (iconCount == 0) {
    const std::string shown = FirstCharacters(folder, charactersInBox);
    ShowBox("Brindle Tarvik", words::noIcons.In(tongue_, shown), After::FailureExit);
    return true;
  }
  const int limit = ReadLimit(limitText);
  if (limit < 0 || limit > highestNumber) {
    FailureExit();
    const Words& text = limit < 0 ? words::mismatch : words::overflow;
    ShowBox(words::errorTitle.In(tongue_), text.In(tongue_), After::Nothing);
    return true;
  }
  if (iconCount <= limit) return false;
  const bool canRaise = iconCount < Size().highestLimit;
  const std::string bound = std::to_string(canRaise ? limit : Size().highestLimit);
  ShowBox("Brindle Tarvik", (canRaise ? words::raiseLimit : words::narrowFolders).In(tongue_, count, bound),
          After::FailureExit);
  return true;
}

void Model::Find() {
  isSearching = true;
  SetEnabled(false);
  iconCount = 0;
  std::string dirAt = folder;
  Count(folder, dirAt);
  entries.clear();
  hasColumns = true;
  anchor.reset();
  tip = "";
  if (IsRefused()) return;
  nextNumber = 1;
  grid.Blank();
  grid.SizeFor(Size(), iconCount);
  List(folder);
  title = words::title.In(tongue_, folder, std::to_string(iconCount));
  status = words::added.In(tongue_, std::to_string(entries.size()));
  label = words::firstSelected.In(tongue_);
  frameX = frameY = 1;
  grid.Frame(1, 1, Size().firstFrame - 1, true);
  current = 0;
  SetEnabled(true);
  isSearching = false;
  entries.front().selected = true;
  anchor = 0;
  ReadAgain();
}

}  // namespace tarvik::model
