// The program: makes what it stands on, runs it, and ends. Everything else is in the two libraries.

#include <windows.h>

#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "export/TemporaryBitmap.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/MessageBox.h"
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

std::vector<DriveListBox::Drive> DriveRows() {
  std::vector<DriveListBox::Drive> rows;
  for (const Drive& drive : Drives()) rows.push_back({drive.Root(), drive.Display()});
  return rows;
}

class StartUp final : public basInitEntry::StartUpSystem {
 public:
  explicit StartUp(std::function<void()> showFrmSpash) : showFrmSpash_(std::move(showFrmSpash)) {}

  void ShowCriticalMessage(const std::string& text, const std::string& title) override {
    ShowMessage(nullptr, text, title, MessageSign::Critical);
  }
  std::string SystemFolder() override { return tarvik::SystemFolder(); }
  std::string TempFolder() override { return tarvik::TempFolder(); }
  void ShowFrmSpash() override { showFrmSpash_(); }

 private:
  std::function<void()> showFrmSpash_;
};

void Run(HINSTANCE instance, ProgramState& state) {
  IniFile iniFile;
  Settings settings(iniFile, ProgramPath());
  ShellIcons shellIcons;
  IconsAhead icons(shellIcons, shellIcons);
  Folders folders;

  Application application(instance);
  application.onRuntimeError = [&state](Form& form, const RuntimeError& error) {
    ShowRuntimeError(form.Window(), error, state.CurrentLanguage);
  };

  // The start-up window opens the main one, and that one opens it again as About box. Each is made when first shown.
  std::optional<FrmSpash> spash;
  std::optional<FrmFindIcon> findIcon;
  const auto showAbout = [&] { spash->ShowModal(findIcon->Window()); };
  application.onHelp = [&](Form& form) { OpenGuide(form.Window(), ProgramFolder(), state.CurrentLanguage); };
  const auto openGuide = [&] { application.onHelp(*findIcon); };
  DiskFile files;
  TemporaryBitmap temporaryBitmap(TemporaryBitmapPaths());
  ExportDialogs exportDialogs(
      application, state,
      {[&] { return findIcon->Window(); }, [&]() -> const Surface& { return findIcon->Surfaces().Composed(); },
       [&]() -> const Surface& { return findIcon->PicMain(); }},
      {DriveRows, [&](const std::string& folder) { return folders.SubFolders(folder); }, CreateFolder,
       [&] { return findIcon->Dir1Path(); }},
      files);

  const auto showMainWindow = [&] {
    if (!findIcon) {
      findIcon.emplace(application, FrmFindIcon::Dependencies{state,
                                                              settings,
                                                              icons,
                                                              folders,
                                                              DriveRows,
                                                              IsReadableFolder,
                                                              ProgramFolder(),
                                                              showAbout,
                                                              openGuide,
                                                              {exportDialogs, files, temporaryBitmap}});
    }
    findIcon->Show();
  };
  StartUp startUp([&] {
    if (!spash) spash.emplace(application, state, showMainWindow);
    spash->Show();
  });

  RegistryLanguageStore language;
  DesktopScreen screen;
  basInitEntry::Main(state, language, screen, startUp);
  application.Run();
}

}  // namespace
}  // namespace tarvik

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, wchar_t* /*commandLine*/, int /*show*/) {
  using namespace tarvik;
  LoadLibrariesFromSystemFolderOnly();
  // The system would cover a window that serves no messages for some seconds with a picture of it, and a long count
  // could not show how far it is.
  DisableProcessWindowsGhosting();

  ProgramState state;
  try {
    Run(instance, state);
    return 0;
  } catch (const std::exception& error) {
    // No handler was there to stop: the start failed.
    ShowRuntimeError(nullptr, AsRuntimeError(error), state.CurrentLanguage);
    return 1;
  }
}
