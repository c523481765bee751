// The entry point: creates the objects that the program consists of, runs it, and cleans up. Everything else is in the
// two libraries.

#include <windows.h>

#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "export/TemporaryBitmap.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/MessageBox.h"
#include "forms/SystemTaskBar.h"
#include "platform/CreateFolder.h"
#include "platform/DiskFile.h"
#include "platform/Paths.h"
#include "platform/SafeLoading.h"
#include "search/icons/Folders.h"
#include "search/icons/IconsAhead.h"
#include "search/icons/ShellIcons.h"
#include "search/window/ExportDialogs.h"
#include "search/window/FrmFindIcon.h"
#include "startup/DesktopScreen.h"
#include "startup/FrmSpash.h"
#include "startup/IniFile.h"
#include "startup/OpenGuide.h"
#include "startup/ProgramState.h"
#include "startup/RegistryLanguageStore.h"
#include "startup/RunTimeErrorBox.h"
#include "startup/Settings.h"
#include "startup/basInitEntry.h"

namespace tarvik {
namespace {

// Milliseconds: a command that is over by then shows its result in the window anyway.
constexpr unsigned long long shownProgressAfter = 300;

std::vector<DriveListBox::Drive> DriveRows() {
  std::vector<DriveListBox::Drive> rows;
  for (const Drive& drive : Drives()) rows.push_back({drive.Root(), drive.Display()});
  return rows;
}

// The program's windows. The start-up window opens the main one, and that one opens it again as About box. Each is
// created when first shown. Their order of declaration ensures that none outlives what it uses: the dialogs use the
// main window only while one of its commands has them open.
class Windows {
 public:
  // All arguments outlive the windows.
  Windows(Application& application, ProgramState& state, Settings& settings, IconSource& icons, Folders& folders)
      : application_(application), state_(state), settings_(settings), icons_(icons), folders_(folders) {}

  void ShowFrmSpash() {
    if (!spash_) spash_.emplace(application_, state_, [this] { ShowFrmFindIcon(); });
    spash_->Show();
  }

 private:
  void ShowFrmFindIcon() {
    if (!findIcon_) {
      findIcon_.emplace(application_, FrmFindIcon::Dependencies{state_,
                                                                settings_,
                                                                icons_,
                                                                folders_,
                                                                DriveRows,
                                                                IsReadableFolder,
                                                                ProgramFolder(),
                                                                [this] { spash_->ShowModal(findIcon_->Window()); },
                                                                [this] { application_.onHelp(*findIcon_); },
                                                                {exportDialogs_, files_, temporaryBitmap_},
                                                                IsFolder,
                                                                &taskBar_,
                                                                shownProgressAfter});
    }
    findIcon_->Show();
  }

  Application& application_;
  ProgramState& state_;
  Settings& settings_;
  IconSource& icons_;
  Folders& folders_;
  SystemTaskBar taskBar_;
  DiskFile files_;
  TemporaryBitmap temporaryBitmap_{TemporaryBitmapPaths()};
  ExportDialogs exportDialogs_{application_,
                               state_,
                               [this] { return findIcon_->Window(); },
                               {DriveRows, [this](const std::string& folder) { return folders_.SubFolders(folder); },
                                CreateFolder, [this] { return findIcon_->Dir1Path(); }},
                               files_};
  std::optional<FrmSpash> spash_;
  std::optional<FrmFindIcon> findIcon_;
};

void Run(HINSTANCE instance, ProgramState& state) {
  IniFile iniFile;
  Settings settings(iniFile, ProgramPath());
  ShellIcons shellIcons;
  IconsAhead icons(shellIcons);
  Folders folders;

  Application application(instance);
  application.onRuntimeError = [&state](Form& form, const RuntimeError& error) {
    ShowRuntimeError(form.Window(), error, state.CurrentLanguage);
  };
  application.onHelp = [&state](Form& form) { OpenGuide(form.Window(), ProgramFolder(), state.CurrentLanguage); };
  // Everything is saved by now. The system's Save dialog, if it asks a question just then, would return from it to a
  // window that is gone, and fault.
  application.onSessionEnd = [] { ExitProcess(0); };
  Windows windows(application, state, settings, icons, folders);
  const auto showCriticalMessage = [](const std::string& text, const std::string& title) {
    ShowMessage(nullptr, text, title, MessageSign::Critical);
  };
  basInitEntry::Main(state, {.readLanguage = ReadRegistryLanguage,
                             .bitsPerPixel = desktopScreen::BitsPerPixel,
                             .screenWidth = desktopScreen::Width,
                             .screenHeight = desktopScreen::Height,
                             .showCriticalMessage = showCriticalMessage,
                             .systemFolder = SystemFolder,
                             .tempFolder = TempFolder,
                             .showFrmSpash = [&windows] { windows.ShowFrmSpash(); }});
  application.Run();
}

}  // namespace
}  // namespace tarvik

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, wchar_t* /*commandLine*/, int /*show*/) {
  using namespace tarvik;
  LoadLibrariesFromSystemFolderOnly();
  // If a window served no messages for some seconds, the system would replace it by a ghost image, and a long count
  // could not show its progress.
  DisableProcessWindowsGhosting();

  ProgramState state;
  try {
    Run(instance, state);
    return 0;
  } catch (const std::exception& error) {
    // No handler has been stopped: the start-up failed.
    ShowRuntimeError(nullptr, AsRuntimeError(error), state.CurrentLanguage);
    return 1;
  }
}
