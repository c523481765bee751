// Opening and closing of windows, and the search options.
#include "model/Model.h"

#include <algorithm>

namespace tarvik::model {
namespace {

constexpr int firstSize = 1;
constexpr int spinnerStep = 10;
constexpr std::size_t allFiles = 6;
constexpr std::array<const char*, 6> parts{"*.ico;", "*.ani;", "*.icl;", "*.ocx;", "*.dll;", "*.exe;"};

}  // namespace

bool Model::Has(Front front) const {
  return std::ranges::find(fronts, front) != fronts.end();
}

void Model::Start(const std::string& programFolder) {
  const Kept from = kept;
  *this = Model(*disk_, tongue_);
  kept = from;
  fronts = {Front::Main};
  title = words::product.In(tongue_);
  label = words::firstSelected.In(tongue_);
  status = words::firstStatus.In(tongue_);
  types[0] = true;
  pattern = "*.ico;";
  ChooseSize(firstSize);
  const std::string wanted = kept.folder.value_or(programFolder);
  SetFolder(disk_->IsReadable(wanted) ? wanted : programFolder);
  drive = Chain(folder).front();
  subDir = kept.subDir == "True";
}

void Model::CloseMain() {
  if (!IsBusy()) EndSession();
}

void Model::EndSession() {
  if (Has(Front::View)) CloseView();
  kept.folder = folder;
  kept.subDir = subDir ? "True" : "False";
  fronts.clear();
}

void Model::ShowBox(const std::string& boxTitle, const std::string& text, After after) {
  box = {boxTitle, text};
  afterBox_ = after;
  fronts.push_back(Front::Box);
}

void Model::AnswerBox() {
  fronts.pop_back();
  if (afterBox_ == After::FailureExit) FailureExit();
  if (afterBox_ != After::Saving) return;
  if (many_) {
    WriteMany();
  } else {
    EndSaving();
  }
}

std::vector<std::string> Model::FolderRows(const Disk& disk, const std::string& folder) {
  std::vector<std::string> rows = Chain(folder);
  for (const std::string& path : disk.SubFolders(folder)) rows.push_back(path);
  return rows;
}

void Model::FillLists() {
  folderRows = FolderRows(*disk_, folder);
  folderRow = static_cast<int>(Chain(folder).size()) - 1;
  files = disk_->Files(folder, pattern);
  listsAreStale = false;
}

void Model::SetFolder(const std::string& path) {
  folder = path;
  FillLists();
}

void Model::ChooseDrive(const Disk::Drive& chosen) {
  drive = chosen.root;
  if (!chosen.isReady) {
    return ShowBox(words::errorTitle.In(tongue_), words::driveNotReady.In(tongue_), After::Nothing);
  }
  if (folder != chosen.root) SetFolder(chosen.root);
}

void Model::OpenFolderRow(int row) {
  folderRow = row;
  const std::string chosen = folderRows.at(static_cast<std::size_t>(row));
  if (chosen != folder) SetFolder(chosen);
}

void Model::TickType(int clicked) {
  types.at(static_cast<std::size_t>(clicked)) = !types.at(static_cast<std::size_t>(clicked));
  UpdatePattern();
}

void Model::UpdatePattern() {
  if (types[allFiles]) types.fill(true);
  const std::string former = pattern;
  pattern.clear();
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (types.at(i)) pattern += parts.at(i);
  }
  if (types[allFiles]) pattern = "*.*";
  if (pattern.empty()) pattern = "aaa.aaa";
  if (pattern != former) files = disk_->Files(folder, pattern);
}

void Model::ChooseSize(int row) {
  sizeRow = row;
  spinner = Size().standardLimit;
  limitText = std::to_string(spinner);
}

void Model::TypeLimit(const LimitText& text) {
  limitText = text.text;
  if (text.value >= 0) spinner = std::clamp(text.value, 1, Size().highestLimit);
}

void Model::Spin(bool up) {
  spinner = std::clamp(spinner + (up ? spinnerStep : -spinnerStep), 1, Size().highestLimit);
  limitText = std::to_string(spinner);
  tip.reset();
}

void Model::NumberByFile(bool yes) {
  byFile = yes;
  ShowCurrentLabel();
}

}  // namespace tarvik::model
