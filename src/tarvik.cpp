// The program: makes what it stands on, runs it, and ends. Everything else is in the two libraries.

#include <windows.h>

#include "forms/Application.h"
#include "forms/Form.h"
#include "platform/Folders.h"
#include "platform/IniFile.h"
#include "platform/Paths.h"
#include "platform/RegistryLanguageStore.h"
#include "platform/SafeLoading.h"
#include "platform/ShellIcons.h"
#include "search/FrmFindIcon.h"
#include "startup/Language.h"
#include "startup/ProgramState.h"
#include "startup/RunTimeErrorBox.h"
#include "startup/Settings.h"

namespace tarvik {
namespace {

std::vector<DriveListBox::Drive> DriveRows() {
  std::vector<DriveListBox::Drive> rows;
  for (const Drive& drive : Drives()) rows.push_back({drive.Root(), drive.Display()});
  return rows;
}

}  // namespace
}  // namespace tarvik

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, wchar_t* /*commandLine*/, int /*show*/) {
  using namespace tarvik;
  LoadLibrariesFromSystemFolderOnly();

  ProgramState state;
  RegistryLanguageStore languageStore;
  state.CurrentLanguage = ChooseLanguage(languageStore);

  IniFile iniFile;
  Settings settings(iniFile, ProgramPath());
  ShellIcons icons;
  Folders folders;

  Application application(instance);
  application.OnRuntimeError = [&state](Form& form, const RuntimeError& error) {
    ShowRuntimeError(form.Window(), error, state.CurrentLanguage);
  };
  FrmFindIcon findIcon(application, {state, settings, icons, folders, DriveRows, IsReadableFolder, ProgramFolder()});
  findIcon.Show();
  application.Run();
  return 0;
}
