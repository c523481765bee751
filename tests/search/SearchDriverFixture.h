#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "search/SearchDriver.h"
#include "support/FakeSearch.h"

namespace tarvik {

using Lines = std::vector<std::string>;

// The steps that every search starts with, and those of its failure exit.
inline Lines Starting() {
  return {"close enhanced view", "disable CmdFind", "disable CmdOk",
          "disable CmdClose",    "disable mnuFile", "disable mnuEdit"};
}

inline Lines Refusing() {
  return {"enable CmdFind", "enable CmdClose", "disable CmdOk", "disable mnuFile", "disable mnuEdit", "clear grid"};
}

inline Lines Join(std::initializer_list<Lines> pieces) {
  Lines all;
  for (const Lines& piece : pieces) all.insert(all.end(), piece.begin(), piece.end());
  return all;
}

// The driver over a fake window and a fake machine, with "C:\a" as the current folder.
class SearchDriverTest : public ::testing::Test {
 protected:
  SearchDriverTest() { PointAt("C:\\a"); }

  void PointAt(const std::string& folder) {
    window.dir1 = folder;
    window.file1 = folder;
  }
  void AddFile(const std::string& folder, const std::string& name, support::FakeFile file) {
    window.folders[folder].files.push_back(name);
    icons.files[folder + "\\" + name] = file;
  }
  void AddSubFolder(const std::string& folder, const std::string& subFolder) {
    window.folders[folder].subFolders.push_back(subFolder);
  }
  void Find() { driver.CmdFind_Click(); }

  support::Script script;
  support::FakeSearchWindow window{script};
  support::FakeIcons icons{script};
  IconList list;
  SearchState state;
  std::string language{english};
  support::FakeGrid grid{script};
  support::FakeSurface ownSurface{"window"};
  // The same with another machine.
  SearchDriver::Dependencies ToolsOver(IconSource& machine) {
    return {window, window, grid, ownSurface, machine, list, state, language};
  }
  SearchDriver driver{ToolsOver(icons)};
};

}  // namespace tarvik
