#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/NonCopyable.h"
#include "grid/GridView.h"
#include "search/SearchFolders.h"
#include "search/SearchWindow.h"
#include "search/icons/IconSource.h"
#include "support/Script.h"

namespace tarvik::support {

inline std::string ToText(Point point) {
  return "(" + std::to_string(point.x) + "," + std::to_string(point.y) + ")";
}

struct FakeSurface : DrawSurface {
  explicit FakeSurface(std::string surfaceName) : name(std::move(surfaceName)) {}
  std::string name;
};

// The icons of a file of the fake machine.
struct FakeFile {
  int icons = 0;       // as counted
  int steps = 1;       // that can be drawn
  int stepBound = 1;   // that its header allows
  bool yields = true;  // whether an icon can be extracted
};

class FakeIcon : public ExtractedIcon, NonCopyable {
 public:
  FakeIcon(Script& script, std::string name, FakeFile file) : script_(script), name_(std::move(name)), file_(file) {}
  ~FakeIcon() override { script_.Add("release " + name_); }

  bool Draw(DrawSurface& surface, Point corner, int size, int step, DrawPart part) override {
    const std::string words[] = {"", "mask of ", "image of ", ""};
    script_.Add("draw " + words[static_cast<std::size_t>(part)] + name_ + " on " +
                static_cast<FakeSurface&>(surface).name + " at " + ToText(corner) + " size " + std::to_string(size) +
                " step " + std::to_string(step));
    return step < file_.steps;
  }
  int StepBound() const override { return file_.stepBound; }

 private:
  Script& script_;
  std::string name_;
  FakeFile file_;
};

class FakeIcons : public IconSource {
 public:
  explicit FakeIcons(Script& script) : script_(script) {}

  bool Takes(const std::string& path) const override { return !untaken.contains(path); }
  int CountIcons(const std::string& path) override {
    script_.Add("count " + path);
    return files[path].icons;
  }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    const std::string name = path + "#" + std::to_string(index);
    script_.Add("extract " + name);
    const FakeFile& file = files[path];
    if (!file.yields) return nullptr;
    return std::make_unique<FakeIcon>(script_, name, file);
  }

  std::map<std::string, FakeFile> files;
  std::set<std::string> untaken;  // paths that cannot be passed to the system

 private:
  Script& script_;
};

struct FakeFolder {
  std::vector<std::string> files;
  std::vector<std::string> subFolders;  // full paths
  bool isMounted = false;
  std::string identity;  // path of another folder if it is the same one; its own path if empty
};

class FakeGrid : public GridView {
 public:
  explicit FakeGrid(Script& script) : script_(script) {}

  void Clear() override { script_.Add("clear grid"); }
  void Size(const GridGeometry& geometry, int iconCount) override {
    script_.Add("size grid " + std::to_string(geometry.IconSize) + " for " + std::to_string(iconCount));
  }
  int InnerHeight() const override { return innerHeight; }
  DrawSurface& Picture() override { return picture_; }
  void Keep() override { script_.Add("keep picture"); }
  void DrawFrame(Point corner, Point farCorner, bool shown) override {
    script_.Add((shown ? "show frame " : "erase frame ") + ToText(corner) + ToText(farCorner));
  }

  int innerHeight = viewportHeight;

 private:
  Script& script_;
  FakeSurface picture_{"grid"};
};

// The window with its two lists.
class FakeSearchWindow : public SearchWindow, public SearchFolders {
 public:
  explicit FakeSearchWindow(Script& script) : script_(script) {}

  void CloseEnhancedView() override { script_.Add("close enhanced view"); }
  void Enable(SearchControl control, bool enabled) override {
    static const std::map<SearchControl, std::string> names{{SearchControl::CmdFind, "CmdFind"},
                                                            {SearchControl::CmdOk, "CmdOk"},
                                                            {SearchControl::CmdClose, "CmdClose"},
                                                            {SearchControl::mnuFile, "mnuFile"},
                                                            {SearchControl::mnuEdit, "mnuEdit"}};
    script_.Add((enabled ? "enable " : "disable ") + names.at(control));
  }

  bool chkSubDir() const override { return subDir; }
  std::string txtMax() const override { return max; }

  std::string Dir1Path() const override { return dir1; }
  void SetDir1Path(const std::string& folder) override {
    script_.Add("Dir1 " + folder);
    dir1 = folder;
    file1 = folder;
  }
  std::vector<WalkedFolder> Dir1SubFolders() override {
    script_.Add("sub-folders of " + dir1);
    std::vector<WalkedFolder> walked;
    for (const std::string& path : folders[dir1].subFolders) walked.push_back({path, folders[path].isMounted});
    return walked;
  }
  std::string FolderIdentity(const std::string& folder) override {
    script_.Add("identity of " + folder);
    if (unknown.contains(folder)) return {};
    return folders[folder].identity.empty() ? folder : folders[folder].identity;
  }
  std::string File1Path() const override { return file1; }
  void SetFile1Path(const std::string& folder) override {
    script_.Add("File1 " + folder);
    file1 = folder;
  }
  std::vector<std::string> File1Names() override {
    script_.Add("files of " + file1);
    return folders[file1].files;
  }

  void SetCaption(const std::string& text) override { script_.Add("caption " + text); }
  void SetStatusText(const std::string& text) override { script_.Add("status " + text); }
  void SetInfoText(const std::string& text) override { script_.Add("label " + text); }
  void ShowInformation(const std::string& text) override {
    script_.Add("box " + text);
    progress.push_back("box");
  }
  // Records only changes.
  void SetProgress(const Progress& shown) override {
    const std::string words[] = {"none", "counting", std::to_string(shown.done) + "/" + std::to_string(shown.total)};
    const std::string& text = words[static_cast<std::size_t>(shown.kind)];
    if (progress.empty() || progress.back() != text) progress.push_back(text);
  }

  void ClearListView() override {
    script_.Add("clear list view");
    if (onClearListView) onClearListView();
  }
  void ListChanged() override {
    script_.Add("list changed");
    if (onListChanged) onListChanged();
  }

  void DoEvents() override {
    script_.Add("events");
    if (onEvents) onEvents();
  }
  Finally ShowHourglass() override {
    const int depth = ++hourglasses_;
    script_.Add("hourglass " + std::to_string(depth));
    return Finally([this, depth] {
      script_.Add("pointer back " + std::to_string(depth));
      --hourglasses_;
    });
  }

  std::vector<std::string> progress;
  std::map<std::string, FakeFolder> folders;
  std::set<std::string> unknown;  // folders that cannot be opened
  std::string dir1;
  std::string file1;
  bool subDir = false;
  std::string max = "300";
  std::function<void()> onEvents;
  std::function<void()> onListChanged;
  std::function<void()> onClearListView;

 private:
  Script& script_;
  int hourglasses_ = 0;
};

}  // namespace tarvik::support
