#include "MainWindow.h"

#include <windows.h>

#include <vector>

#include "export/TemporaryBitmap.h"
#include "platform/DiskFile.h"
#include "platform/Paths.h"
#include "resource.h"
#include "search/icons/FilePattern.h"
#include "search/icons/Folders.h"
#include "search/icons/IconsAhead.h"
#include "search/icons/ShellIcons.h"
#include "search/window/FrmFindIcon.h"
#include "support/AnsweredDialogs.h"
#include "support/MemoryIni.h"

namespace tarvik::bench {

struct MainWindow::Parts {
  Parts(Application& program, const Scope& scope)
      : application(program),
        settings(ini, "C:\\tarvik.exe"),
        dialogs(application, state, [this] { return window.Window(); }),
        window(application, FrmFindIcon::Dependencies{state,
                                                      settings,
                                                      icons,
                                                      folders,
                                                      [] { return std::vector<DriveListBox::Drive>{}; },
                                                      IsReadableFolder,
                                                      scope.folder,
                                                      [] {},
                                                      [] {},
                                                      {dialogs, files, temporaryBitmap}}) {
    state.CurrentLanguage = "ENG";
    ini.values["FindIcon/Folder"] = scope.folder;
    ini.values["FindIcon/Subdir"] = scope.subFolders ? "True" : "False";
  }

  void Choose(int command) {
    SendMessageW(window.Window(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    application.DoEvents();
  }

  Application& application;
  ProgramState state;
  support::MemoryIni ini;
  Settings settings;
  ShellIcons shellIcons;
  IconsAhead icons{shellIcons};
  Folders folders;
  DiskFile files;
  TemporaryBitmap temporaryBitmap{TemporaryBitmapPaths()};
  support::AnsweredDialogs dialogs;
  FrmFindIcon window;
};

MainWindow::MainWindow(Application& application, const Scope& scope)
    : parts_(std::make_unique<Parts>(application, scope)) {
  FrmFindIcon& window = parts_->window;
  window.Show();
  window.SetItemText(FrmFindIcon_txtMax, "4000");
  int chosen = searchedTypes.front().checkBox;
  for (const SearchedType& type : searchedTypes)
    if (type.part.starts_with(scope.pattern)) chosen = type.checkBox;
  for (const SearchedType& type : searchedTypes)
    CheckDlgButton(window.Window(), type.checkBox, type.checkBox == chosen ? BST_CHECKED : BST_UNCHECKED);
  parts_->Choose(chosen);
}

MainWindow::~MainWindow() {
  parts_->window.Unload();
}

void MainWindow::Find() {
  parts_->Choose(FrmFindIcon_CmdFind);
}

void MainWindow::SaveAll(int command, const std::string& folder) {
  parts_->dialogs.folder = folder;
  parts_->Choose(command);
}

}  // namespace tarvik::bench
