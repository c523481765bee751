// The main window's size, and what is dropped on it.
#include <algorithm>
#include <array>
#include <string>

#include "model/Model.h"

namespace tarvik::model {
namespace {

constexpr std::array<const char*, 6> extensions{".ico", ".ani", ".icl", ".ocx", ".dll", ".exe"};

// The box of the first type that includes the file; the last one is that of all files.
std::size_t TypeBoxOf(const std::string& path) {
  const auto* found = std::ranges::find_if(extensions, [&path](const char* end) { return path.ends_with(end); });
  return static_cast<std::size_t>(found - extensions.begin());
}

}  // namespace

void Model::ResizeMain(Room wanted) {
  room = {std::max(wanted.across, 0), std::max(wanted.down, 0)};
}

void Model::MaximiseMain(Room given) {
  roomBefore_ = room;
  room = given;
  isMaximised = true;
}

void Model::RestoreMain() {
  room = roomBefore_;
  isMaximised = false;
}

void Model::ReadAgain() {
  const std::string chosen = folderRows.at(static_cast<std::size_t>(folderRow));
  FillLists();
  const auto found = std::ranges::find(folderRows, chosen);
  if (found != folderRows.end()) folderRow = static_cast<int>(found - folderRows.begin());
}

void Model::Drop(const std::vector<std::string>& paths) {
  const std::string& dropped = paths.front();
  const bool isFolder = disk_->IsReadable(dropped);
  const std::string opened = isFolder ? dropped : Above(dropped);
  if (!disk_->IsReadable(opened)) {
    return ShowBox(words::errorTitle.In(tongue_), words::cannotRead.In(tongue_, opened), After::Nothing);
  }
  if (opened != folder) SetFolder(opened);
  if (!isFolder) {
    types.at(TypeBoxOf(dropped)) = true;
    UpdatePattern();
  }
  ReadAgain();
  drive = Chain(folder).front();
}

}  // namespace tarvik::model
