// What a whole search costs, held against the bare platform calls on the same files, and how that grows.

#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "BenchData.h"
#include "MainWindow.h"
#include "Measure.h"
#include "forms/Application.h"
#include "platform/GdiObjects.h"
#include "platform/Handles.h"
#include "platform/Holdings.h"
#include "platform/Paths.h"
#include "platform/Surface.h"
#include "platform/Text.h"
#include "search/SearchDriver.h"
#include "search/icons/Folders.h"
#include "search/icons/IconsAhead.h"
#include "search/icons/ShellIcons.h"

namespace tarvik::bench {
namespace {

constexpr int rounds = 5;

// What a program would do that only wants the icons drawn: list folders, count, take, draw and release each icon.
class BareCalls {
 public:
  explicit BareCalls(const Scope& scope) : scope_(scope), grid_(WidestGrid(), 12000, white) {}

  void Run() {
    drawing_ = false;
    Visit(ToWide(scope_.folder));
    drawing_ = true;
    number_ = 0;
    Visit(ToWide(scope_.folder));
  }

 private:
  using Entries = std::vector<std::wstring>;

  static Entries List(const std::wstring& pattern, bool folders) {
    Entries names;
    WIN32_FIND_DATAW data;
    const FindHandle find(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &data, FindExSearchNameMatch, nullptr,
                                           FIND_FIRST_EX_LARGE_FETCH));
    if (!find) return names;
    do {
      const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
      if (isFolder == folders && data.cFileName[0] != L'.') names.emplace_back(data.cFileName);
    } while (FindNextFileW(find.get(), &data) != FALSE);
    return names;
  }

  void Visit(const std::wstring& folder) {
    for (const std::wstring& name : List(folder + L"\\" + ToWide(scope_.pattern), false)) {
      TakeFile(ToUtf8(folder + L"\\" + name));
    }
    if (!scope_.subFolders) return;
    for (const std::wstring& name : List(folder + L"\\*", true)) Visit(folder + L"\\" + name);
  }

  void TakeFile(const std::string& path) {
    const UINT count = ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0);
    if (!drawing_ || count > 100000) return;
    const GridGeometry& geometry = gridGeometries[1];
    for (UINT index = 0; index < count; ++index, ++number_) {
      HICON large = nullptr;
      ExtractIconExA(path.c_str(), static_cast<int>(index), &large, nullptr, 1);
      const IconHandle icon(large);
      const Point corner = IconCorner(geometry, number_);
      DrawIconEx(grid_.Dc(), corner.x, corner.y, icon.get(), geometry.IconSize, geometry.IconSize, 0, nullptr,
                 DI_NORMAL);
    }
  }

  Scope scope_;
  Surface grid_;
  bool drawing_ = false;
  int number_ = 0;
};

// A grid that is only drawn on.
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

// A window that swallows texts: what is left is the search itself.
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
  void ShowInformation(const std::string& text) override { std::printf("refused: %s\n", text.c_str()); }
  void ClearListView() override {}
  void ListChanged() override {}
  void DoEvents() override {}
  std::shared_ptr<void> ShowHourglass() override { return nullptr; }

 private:
  Scope scope_;
  FolderReader& folders_;
  std::string folder_;
};

// The search behind a window that shows nothing.
class SilentSearch {
 public:
  explicit SilentSearch(const Scope& scope)
      : window_(scope, folders_), driver_({window_, window_, grid_, ownSurface_, icons_, list_, state_, language_}) {}
  void Run() {
    const auto inTurn = icons_.InTurn();
    driver_.CmdFind_Click();
  }

 private:
  Folders folders_;
  ShellIcons shellIcons_;
  IconsAhead icons_{shellIcons_, shellIcons_};
  IconList list_;
  SearchState state_;
  std::string language_ = "ENG";
  SilentWindow window_;
  SilentGrid grid_;
  Surface ownSurface_{114, 114, white};
  SearchDriver driver_;
};

void CompareSearches(Application& application, const std::string& title, const Scope& scope) {
  BareCalls bare(scope);
  SilentSearch silent(scope);
  MainWindow window(application, scope);
  Compare(title,
          {{"bare calls", [&] { bare.Run(); }},
           {"search, silent window", [&] { silent.Run(); }},
           {"search, real window", [&] { window.Find(); }}},
          rounds);
}

// One icon, and more and more empty folders beside it: the cost of a folder must not grow with their number, beyond
// what the file system itself makes of it.
void CompareFolderCounts(const std::string& root) {
  for (const int count : {100, 1000, 10000}) {
    const Scope scope{MakeEmptyFolders(root, count), "*.ico", true};
    BareCalls bare(scope);
    SilentSearch silent(scope);
    Compare(std::to_string(count) + " folders side by side",
            {{"bare calls", [&] { bare.Run(); }}, {"search, silent window", [&] { silent.Run(); }}}, 3);
  }
}

// What this process holds of the system.
struct Holdings {
  int gdiObjects = 0;
  int windows = 0;
  double megabytes = 0;  // of memory in use
};

BOOL CALLBACK CountWindow(HWND /*window*/, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

Holdings Hold() {
  Holdings held{testing::CountGdiObjects(), 0, 0};
  EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&held.windows));
  held.megabytes = static_cast<double>(testing::HeldBy(GetCurrentProcess()).bytes) / (1024.0 * 1024.0);
  return held;
}

void SearchManyTimes(Application& application, const Scope& scope) {
  constexpr int searches = 100;
  MainWindow window(application, scope);
  for (int i = 0; i < 5; ++i) window.Find();
  const Holdings before = Hold();
  for (int i = 0; i < searches; ++i) window.Find();
  const Holdings after = Hold();
  std::printf("after %d searches: %+d GDI objects, %+d windows, %+.2f MB of %.1f MB\n", searches,
              after.gdiObjects - before.gdiObjects, after.windows - before.windows, after.megabytes - before.megabytes,
              before.megabytes);
}

}  // namespace
}  // namespace tarvik::bench

int main() {
  using namespace tarvik;
  using namespace tarvik::bench;
  Application application(GetModuleHandleW(nullptr));
  const testing::TemporaryFolder folder;
  CompareSearches(application, "the DLLs of the system folder", {SystemFolder(), "*.dll", false});
  CompareSearches(application, "2,000 icon files in 500 folders", {MakeIconFiles(folder, 500, 4), "*.ico", true});
  CompareSearches(application, "one DLL of 2,000 icons", {MakeIconLibrary(folder, 2000), "*.dll", false});
  CompareFolderCounts(folder.MakeFolder("walk"));
  SearchManyTimes(application, {MakeIconFiles(folder, 10, 4), "*.ico", true});
  return 0;
}
