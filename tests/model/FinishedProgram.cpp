// The sequence of steps: how it begins and ends, and the choice of each action.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <utility>

#include "driver/Input.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

FinishedProgram::FinishedProgram(std::vector<Action> actions) : actions_(std::move(actions)) {
  for (const char* name : {"deep", "deep\\deeper", "many", "out"}) {
    disk_.AddFolder(tree_.MakeFolder(name));
  }
  Put("", 0);
  Put("deep", 1);
  Put("deep\\deeper", 2);
  Put("many", 4);
  model_.kept.folder = tree_.Path();
  const std::string settings = ToUtf8(program_.SettingsFile().wstring());
  WritePrivateProfileStringA("FindIcon", "Folder", tree_.Path().c_str(), settings.c_str());
}

// The first difference; empty if there is none.
std::string FinishedProgram::Run() {
  MovePointer({0, 0});
  Start();
  for (std::size_t step = 0; step <= actions_.size(); ++step) {
    const bool picture = step % pictureEach == pictureEach - 1 || step == actions_.size();
    const std::string difference = Difference(picture);
    if (!difference.empty()) return difference;
    if (step < actions_.size()) Do(actions_[step]);
  }
  model_.CloseMain();
  if (program_.Close() != 0) return "the program ends with a failure\n";
  return KeptDifference();
}

void FinishedProgram::Do(const Action& action) {
  static constexpr Choice choices[] = {
      {10, "Find", &FinishedProgram::Find},
      {20, "Click", &FinishedProgram::Click},
      {8, "Scroll", &FinishedProgram::Scroll},
      {5, "Tick a type", &FinishedProgram::Tick},
      {3, "Sub-folders", &FinishedProgram::SubDir},
      {4, "Size", &FinishedProgram::Size},
      {4, "Limit", &FinishedProgram::Limit},
      {3, "Spinner", &FinishedProgram::Spin},
      {6, "Open a folder", &FinishedProgram::Open},
      {3, "Grid or list", &FinishedProgram::Switch},
      {3, "Invert", &FinishedProgram::Invert},
      {3, "Labels", &FinishedProgram::Labels},
      {5, "View", &FinishedProgram::View},
      {3, "Save many", &FinishedProgram::Save},
      {6, "Change a file", &FinishedProgram::Change},
      {1, "Copy", &FinishedProgram::Copy},
      {1, "Start again", &FinishedProgram::StartAgain},
  };
  int total = 0;
  for (const Choice& choice : choices) total += choice.weight;
  int rest = action.what % total;
  const Choice* chosen = choices;
  while (rest >= chosen->weight) rest -= (chosen++)->weight;
  log_.emplace_back(chosen->name);
  ++stepsDone_;
  (this->*chosen->act)(action);
}

void FinishedProgram::Start() {
  program_.Start();
  model_.Start(ToUtf8(program_.Path().parent_path().wstring()));
}

void FinishedProgram::StartAgain(const Action& /*action*/) {
  model_.CloseMain();
  program_.Close();
  Start();
}

void FinishedProgram::Change(const Action& action) {
  static constexpr const char* folders[] = {"", "deep", "deep\\deeper", "many"};
  Put(folders[action.a % 4], action.b % 6);
  model_.listsAreStale = true;
}

void FinishedProgram::Put(const std::string& folder, int kind) {
  static constexpr const char* names[] = {"a.ico", "b.dll", "c.ico", "d.ocx", "e.dll", "f.exe"};
  static constexpr int icons[] = {1, 3, 1, 3, 100, 3};
  const std::string name = names[kind];
  const std::string path = model::Joined(folder.empty() ? tree_.Path() : tree_.In(folder), name);
  if (log_.size() > 0) Note(path);
  if (disk_.Find(path)) {
    disk_.Remove(model::Above(path), name);
    DeleteFileW(ToWide(path).c_str());
    return;
  }
  disk_.Put(model::Above(path), name, icons[kind]);
  if (icons[kind] == 100) return CopyHundredIcons(path);
  if (icons[kind] == 3) return CopyThreeIcons(path);
  tree_.MakeFile(model::Joined(folder, name).substr(folder.empty() ? 1 : 0), support::IconFileOf(0x20C040));
}

}  // namespace tarvik::end_to_end
