#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "export/SaveCommands.h"
#include "support/FakeSaveWindow.h"

namespace tarvik {

// The save commands over a fake window, with the test's own list.
class SaveCommandsTest : public ::testing::Test {
 protected:
  SaveCommandsTest() { state.CurrentLanguage = "ENG"; }

  void List(int entries, std::initializer_list<int> selected = {}) {
    for (int number = 1; number <= entries; ++number) list.Add("C:\\some.dll", number - 1);
    for (const int number : selected) list.Select(number);
  }
  // The written files, in order.
  std::vector<std::string> Files() const {
    std::vector<std::string> paths;
    for (const std::string& line : script)
      if (line.starts_with("file ")) paths.push_back(line.substr(5));
    return paths;
  }
  // One byte of a written file.
  int Byte(const std::string& path, std::size_t offset) {
    return std::to_integer<int>(files.bytes.at(path).at(offset));
  }

  support::Script script;
  ProgramState state;
  IconList list;
  SearchState search;
  support::FakeSaveWindow window{script};
  support::NotedFiles files{script};
  support::FakeSaveDialogs dialogs{script, state};
  support::FakeTemporaryPicture temporary{script};
  SaveCommands commands{window, {dialogs, files, temporary}, list, search, state};
};

}  // namespace tarvik
