#include "model/RealProgram.h"

#include <optional>
#include <utility>

#include "forms/Application.h"
#include "forms/Form.h"
#include "search/window/ExportDialogs.h"
#include "search/window/FrmFindIcon.h"
#include "startup/FrmSpash.h"
#include "startup/RunTimeErrorBox.h"
#include "startup/Settings.h"
#include "support/MemoryIni.h"

namespace tarvik::model {
namespace {

// The real dialogs, except the system's dialog that asks for a path.
class Dialogs final : public SaveDialogs {
 public:
  explicit Dialogs(ExportDialogs& real) : real_(real) {}

  std::string AskForPath(const FileDialogMode& /*mode*/) override { return path; }
  std::string ShowDir() override { return real_.ShowDir(); }
  void ShowFrmHotSpot(const PixelView& picMain) override { real_.ShowFrmHotSpot(picMain); }
  JpegDialog& NewSaveJPG() override { return real_.NewSaveJPG(); }
  GifDialog& NewConvertGIF() override { return real_.NewConvertGIF(); }
  void FreeEncoders() override { real_.FreeEncoders(); }

  std::string path;

 private:
  ExportDialogs& real_;
};

std::vector<DriveListBox::Drive> DriveRows() {
  std::vector<DriveListBox::Drive> rows;
  for (const Disk::Drive& drive : Disk::Drives()) rows.push_back({drive.root, drive.text});
  return rows;
}

const char* CodeOf(Tongue tongue) {
  return tongue == Tongue::English ? "ENG" : tongue == Tongue::Simplified ? "CHS" : "CHT";
}

}  // namespace

struct RealProgram::Parts {
  Parts(Disk& made, std::map<std::string, std::string>& values) : disk(made), iniFile(values) {}

  Disk& disk;
  ProgramState state;
  support::MemoryIni iniFile;
  Settings settings{iniFile, "C:\\program\\tarvik.exe"};
  MadeFolders folders{disk};
  MadeFiles files;
  MadeTemporaryPicture temporary;
  Application application{GetModuleHandleW(nullptr)};
  FrmSpash spash{application, state, [] {}};
  std::unique_ptr<FrmFindIcon> window;
  ExportDialogs exportDialogs{application,
                              state,
                              [this] { return window->Window(); },
                              {DriveRows, [this](const std::string& folder) { return disk.SubFolders(folder); },
                               [this](const std::string& path) {
                                 return disk.MakeFolder(path) ? std::optional<std::string>(path) : std::nullopt;
                               },
                               [this] { return window->Dir1Path(); }},
                              files};
  Dialogs dialogs{exportDialogs};
  int guides = 0;
};

RealProgram::RealProgram(Disk& disk, std::map<std::string, std::string>& settings, Tongue tongue)
    : parts_(std::make_unique<Parts>(disk, settings)) {
  Parts& parts = *parts_;
  parts.state.CurrentLanguage = CodeOf(tongue);
  parts.application.onRuntimeError = [&parts](Form& form, const RuntimeError& error) {
    ShowRuntimeError(form.Window(), error, parts.state.CurrentLanguage);
  };
  parts.window = std::make_unique<FrmFindIcon>(
      parts.application,
      FindIconDependencies{parts.state,
                           parts.settings,
                           parts.folders,
                           parts.folders,
                           DriveRows,
                           [&parts](const std::string& folder) { return parts.disk.IsReadable(folder); },
                           ownFolder,
                           [&parts] { parts.spash.ShowModal(parts.window->Window()); },
                           [&parts] { ++parts.guides; },
                           {parts.dialogs, parts.files, parts.temporary},
                           [&parts](const std::string& path) { return parts.disk.IsReadable(path); }});
  parts.window->Show();
}

RealProgram::~RealProgram() {
  End();
}

HWND RealProgram::Main() const {
  return parts_->window->Window();
}

void RealProgram::Serve(const std::function<bool()>& isDone) {
  parts_->application.RunWhile([&isDone] { return !isDone(); });
}

void RealProgram::ServeWaiting() {
  parts_->application.DoEvents();
}

void RealProgram::End() {
  if (!parts_->application.HasEnded()) parts_->application.EndSession();
  MSG message;
  while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) continue;
}

// If a form is left, the loop processes the waiting message, and ends by the one after it.
bool RealProgram::WouldEnd() {
  constexpr UINT waiting = WM_APP + 77;
  MSG message;
  while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) continue;
  PostThreadMessageW(GetCurrentThreadId(), waiting, 0, 0);
  PostQuitMessage(0);
  parts_->application.Run();
  const bool isLeft = PeekMessageW(&message, nullptr, waiting, waiting, PM_REMOVE) != FALSE;
  while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) continue;
  return isLeft;
}

void RealProgram::AnswerPath(const std::string& path) {
  parts_->dialogs.path = path;
}

MadeFiles& RealProgram::Files() {
  return parts_->files;
}

int RealProgram::Guides() const {
  return parts_->guides;
}

std::string RealProgram::HandedPath() const {
  return parts_->state.ChosenIconPath;
}

int RealProgram::HandedIndex() const {
  return parts_->state.ChosenIconIndex;
}

Spot RealProgram::HotSpot() const {
  return {parts_->state.HotSpotX, parts_->state.HotSpotY};
}

}  // namespace tarvik::model
