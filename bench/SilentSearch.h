#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "MainWindow.h"
#include "platform/Surface.h"
#include "search/SearchDriver.h"
#include "search/icons/FileBytes.h"
#include "search/icons/Folders.h"
#include "search/icons/IconsAhead.h"
#include "search/icons/ShellIcons.h"

namespace tarvik::bench {

// A grid that is drawn on but not shown.
class SilentGrid final : public GridView {
 public:
  void Clear() override {}
  void Size(const GridGeometry&, int) override {}
  int InnerHeight() const override { return picture_.Height(); }
  DrawSurface& Picture() override { return picture_; }
  void Keep() override {}
  void DrawFrame(Point, Point, bool) override {}

 private:
  Surface picture_{WidestGrid(), 12000, white};
};

// A window that discards all texts, so that only the search itself is measured.
class SilentWindow final : public SearchWindow, public SearchFolders {
 public:
  SilentWindow(const Scope& scope, FolderReader& folders) : scope_(scope), folders_(folders), folder_(scope.folder) {}

  void CloseEnhancedView() override {}
  void Enable(SearchControl, bool) override {}
  bool chkSubDir() const override { return scope_.subFolders; }
  std::string txtMax() const override { return "4000"; }
  std::string Dir1Path() const override { return folder_; }
  void SetDir1Path(const std::string& folder) override { folder_ = folder; }
  std::vector<WalkedFolder> Dir1SubFolders() override { return folders_.WalkedFolders(folder_); }
  std::string FolderIdentity(const std::string& folder) override { return folders_.Identity(folder); }
  std::string File1Path() const override { return folder_; }
  void SetFile1Path(const std::string& folder) override { folder_ = folder; }
  std::vector<std::string> File1Names() override { return folders_.Files(folder_, scope_.pattern); }
  void SetCaption(const std::string&) override {}
  void SetStatusText(const std::string&) override {}
  void SetInfoText(const std::string&) override {}
  void SetProgress(const Progress&) override {}
  void ShowInformation(const std::string& text) override { std::printf("refused: %s\n", text.c_str()); }
  void ClearListView() override {}
  void ListChanged() override {}
  void DoEvents() override {}
  Finally ShowHourglass() override { return Finally(); }

 private:
  Scope scope_;
  FolderReader& folders_;
  std::string folder_;
};

// The search with a window that shows nothing.
class SilentSearch {
 public:
  explicit SilentSearch(const Scope& scope)
      : SilentSearch(scope, [](const std::string& path) { return std::make_unique<FileBytes>(path); }) {}
  // `open` provides the bytes of the files that the program reads itself.
  SilentSearch(const Scope& scope, ShellIcons::OpenBytes open)
      : shellIcons_(std::move(open)),
        window_(scope, folders_),
        driver_({window_, window_, grid_, ownSurface_, icons_, list_, state_, language_}) {}
  void Run() {
    const auto inTurn = icons_.InTurn();
    driver_.CmdFind_Click();
  }

 private:
  Folders folders_;
  ShellIcons shellIcons_;
  IconsAhead icons_{shellIcons_};
  IconList list_;
  SearchState state_;
  std::string language_ = "ENG";
  SilentWindow window_;
  SilentGrid grid_;
  Surface ownSurface_{114, 114, white};
  SearchDriver driver_;
};

}  // namespace tarvik::bench
