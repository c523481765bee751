#pragma once

#include <functional>
#include <string>
#include <vector>

#include "export/SaveCommands.h"
#include "forms/FolderLists.h"
#include "forms/TaskBar.h"
#include "search/icons/FolderReader.h"
#include "search/icons/Folders.h"
#include "search/icons/IconSource.h"
#include "startup/ProgramState.h"
#include "startup/Settings.h"

namespace tarvik {

// What the main window is constructed from. All of it outlives the window.
struct FindIconDependencies {
  ProgramState& state;
  Settings& settings;
  IconSource& icons;
  FolderReader& folders;
  std::function<std::vector<DriveListBox::Drive>()> drives;
  std::function<bool(const std::string& folder)> isReadableFolder;
  std::string programFolder;
  std::function<void()> showAbout;  // returns when the About box is closed
  std::function<void()> openGuide;
  SaveCommands::Dependencies saving;
  std::function<bool(const std::string& path)> isFolder = IsFolder;
  TaskBar* taskBar = nullptr;         // shows progress if there is one
  unsigned long long shownAfter = 0;  // milliseconds; a shorter search or batch shows no progress there
};

}  // namespace tarvik
