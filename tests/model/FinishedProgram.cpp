// The sequence of steps: how it begins and ends, and the choice of each action.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <cstring>
#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

#include "driver/Dialogs.h"
#include "driver/Input.h"
#include "driver/Waiting.h"
#include "model/Compared.h"
#include "model/Texts.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

// A text as a box shows it: some of its lines may be divided further.
std::string Lines(std::string text) {
  std::erase_if(text, [](char letter) { return letter == '\r' || letter == '\n' || letter == ' '; });
  return text;
}

}  // namespace

FinishedProgram::FinishedProgram(std::vector<Action> actions) : actions_(std::move(actions)) {
  for (const char* name : {"deep", "deep\\deeper", "many", "out"}) {
    disk_.AddFolder(tree_.MakeFolder(name));
  }
  disk_.AddFolder(stickRoot);
  static constexpr int kinds[] = {0, 1, 2, 4, 3};
  for (int i = 0; i < folderCount; ++i) Put(Folder(i), kinds[i]);
  model_.kept.folder = tree_.Path();
  const std::string settings = ToUtf8(program_.SettingsFile().wstring());
  WritePrivateProfileStringA("FindIcon", "Folder", tree_.Path().c_str(), settings.c_str());
}

// What the program does not do in time is a difference, too.
std::string FinishedProgram::Run() try {
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
} catch (const std::exception& error) {
  return std::string("the step fails: ") + error.what() + "\n";
}

void FinishedProgram::Do(const Action& action) {
  static constexpr Choice choices[] = {
      {14, "Find", &FinishedProgram::Find},
      {20, "Click", &FinishedProgram::Click},
      {6, "Scroll", &FinishedProgram::Scroll},
      {4, "Scroll by the wheel", &FinishedProgram::TurnWheel},
      {4, "Scroll by a key", &FinishedProgram::ScrollByKey},
      {5, "Tick a type", &FinishedProgram::Tick},
      {3, "Sub-folders", &FinishedProgram::SubDir},
      {4, "Size", &FinishedProgram::Size},
      {4, "Limit", &FinishedProgram::Limit},
      {3, "Spinner", &FinishedProgram::Spin},
      {4, "Open a folder", &FinishedProgram::Open},
      {4, "Click a folder", &FinishedProgram::ClickFolder},
      {3, "Choose a drive", &FinishedProgram::ChooseDrive},
      {3, "Drop", &FinishedProgram::Drop},
      {5, "Grid or list", &FinishedProgram::Switch},
      {12, "Click the list", &FinishedProgram::ClickList},
      {3, "Select all", &FinishedProgram::SelectAll},
      {3, "Invert", &FinishedProgram::Invert},
      {3, "Labels", &FinishedProgram::Labels},
      {5, "View", &FinishedProgram::View},
      {4, "Save one", &FinishedProgram::SaveOne},
      {5, "Save many", &FinishedProgram::SaveMany},
      {6, "Change a file", &FinishedProgram::Change},
      {2, "Copy", &FinishedProgram::Copy},
      {1, "About", &FinishedProgram::About},
      {1, "Guide", &FinishedProgram::Guide},
      {2, "Start again", &FinishedProgram::StartAgain},
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

void FinishedProgram::StartAgain(const Action& action) {
  const int way = action.a % 5;
  static constexpr const char* ways[] = {"WM_CLOSE", "the close box", "the button", "the menu", "Alt+F4"};
  if ((way == 2 && !model_.closeEnabled) || (way == 3 && !model_.fileEnabled)) return Skip();
  Note(std::string("closed by ") + ways[way]);
  model_.CloseMain();
  CloseBy(way);
  if (program_.WaitForEnd() != 0) Tell("the program ends with a failure\n");
  Tell(KeptDifference());
  Start();
}

void FinishedProgram::CloseBy(int way) {
  switch (way) {
    case 0:
      return program_.Window().Post(WM_CLOSE);
    case 1:
      return program_.Window().Post(WM_SYSCOMMAND, SC_CLOSE);
    case 2:
      return program_.Item(FrmFindIcon_CmdClose).Press();
    case 3:
      return program_.Command(FrmFindIcon_mnuExit);
    default:
      program_.BringToFront();
      PressKey(VK_F4, {VK_MENU});
  }
}

// What is posted is handled in its order, and a sent message before all that. So the last one posted has an effect that
// can be seen.
void FinishedProgram::WaitForPosted() const {
  const Control box = program_.Item(FrmFindIcon_chkSubDir);
  box.Post(BM_SETSTATE, TRUE);
  if (!Eventually([&] { return (box.Send(BM_GETSTATE) & BST_PUSHED) != 0; }))
    throw std::runtime_error("the program does not handle what was posted");
  box.Send(BM_SETSTATE, FALSE);
}

void FinishedProgram::PassBox() {
  const Box box = program_.WaitForBox();
  Tell(model::Compared("box's title", model_.box.title, box.Title()));
  Tell(model::Compared("box's text", Lines(model_.box.text), Lines(box.Text())));
  model_.AnswerBox();
  box.Press(IDOK);
  Eventually([this] { return program_.Window().IsEnabled(); });
}

void FinishedProgram::About(const Action& action) {
  model_.OpenAbout();
  program_.Command(FrmFindIcon_MnuAbout);
  const Dialog about(program_, FrmSpash_LblEmail);
  if (program_.Window().IsEnabled()) Tell("the main window does not wait for the About box\n");
  model_.CloseAbout();
  if (action.a % 2 == 0) {
    about.End(FrmSpash_CmdOk);
  } else {
    about.EndByCloseBox();
  }
  Eventually([this] { return program_.Window().IsEnabled(); });
}

// The program's folder has no guide.
void FinishedProgram::Guide(const Action& action) {
  const bool byKey = action.a % 2 == 1;
  Note(byKey ? "by F1" : "by the menu");
  model_.OpenGuide();
  if (byKey) {
    program_.BringToFront();
    PressKey(VK_F1);
  } else {
    program_.Command(FrmFindIcon_MnuContent);
  }
  const Box box = program_.WaitForBox();
  Tell(model::Compared("box's title", std::string(model::words::errorTitle.english), box.Title()));
  if (box.Text().find("guide") == std::string::npos) Tell("the box is not about the guide: " + box.Text() + "\n");
  box.Press(IDOK);
  Eventually([this] { return program_.Window().IsEnabled(); });
}

void FinishedProgram::Change(const Action& action) {
  Put(Folder(action.a), action.b % 6);
  model_.listsAreStale = true;
}

std::string FinishedProgram::Folder(int number) const {
  const std::string folders[folderCount] = {tree_.Path(), tree_.In("deep"), tree_.In("deep\\deeper"), tree_.In("many"),
                                            stickRoot};
  return folders[number % folderCount];
}

void FinishedProgram::Put(const std::string& folder, int kind) {
  static constexpr const char* names[] = {"a.ico", "b.dll", "c.ico", "d.ocx", "e.dll", "f.exe"};
  static constexpr int icons[] = {1, 3, 1, 3, 100, 3};
  const std::string name = names[kind];
  const std::string path = model::Joined(folder, name);
  if (log_.size() > 0) Note(path);
  if (disk_.Find(path)) {
    disk_.Remove(folder, name);
    DeleteFileW(ToWide(path).c_str());
    return;
  }
  disk_.Put(folder, name, icons[kind]);
  if (icons[kind] == 100) return CopyHundredIcons(path);
  if (icons[kind] == 3) return CopyThreeIcons(path);
  const bool onStick = folder == stickRoot;
  const std::size_t above = onStick ? std::strlen(stickRoot) : tree_.Path().size() + 1;
  (onStick ? stick_ : tree_).MakeFile(path.substr(above), support::IconFileOf(0x20C040));
}

}  // namespace tarvik::end_to_end
