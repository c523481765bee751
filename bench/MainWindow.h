#pragma once

#include <memory>
#include <string>

#include "base/NonCopyable.h"
#include "forms/Application.h"

namespace tarvik::bench {

// The files of a search.
struct Scope {
  std::string folder;
  std::string pattern;  // one part, because the system's own listing accepts only one
  bool subFolders = false;
};

// The real main window on the screen, in English, with the scope chosen and the limit at its highest.
class MainWindow : NonCopyable {
 public:
  MainWindow(Application& application, const Scope& scope);
  ~MainWindow();

  void Find();
  // Runs a "save all" command of the menu and chooses the folder in the folder chooser.
  void SaveAll(int command, const std::string& folder);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tarvik::bench
