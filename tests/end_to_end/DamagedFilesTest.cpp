// Fifteen thousand files whose content does not match their headers or types.

#include <windows.h>

#include <gmock/gmock.h>
#include <shellapi.h>

#include <algorithm>
#include <cstdio>

#include "base/FolderPath.h"
#include "damaged_files/DamagedFiles.h"
#include "end_to_end/EndToEndTest.h"
#include "end_to_end/TodaysProgram.h"
#include "platform/Handles.h"
#include "platform/Holdings.h"
#include "search/icons/FaultGuard.h"

namespace tarvik::end_to_end {
namespace {

using support::DamagedFolder;
using support::Holdings;
using Paths = std::vector<std::string>;

// Whether the system's own code faults when it is asked how many icons the file holds, or for the first of them.
bool BreaksCounting(const std::string& path) {
  return !SurvivesFault([&] { ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0); });
}
bool BreaksTaking(const std::string& path) {
  HICON icon = nullptr;
  UINT taken = 0;
  if (!SurvivesFault([&] { taken = ExtractIconExA(path.c_str(), 0, &icon, nullptr, 1); })) return true;
  const IconHandle owner(taken == 1 ? icon : nullptr);
  return false;
}

class DamagedFiles : public EndToEnd {
 protected:
  void OpenFolder(const std::string& name) const {
    const auto names = FolderNames();
    const auto found = std::ranges::find(names, name);
    ASSERT_NE(found, names.end()) << name;
    const Control folders = program_.Item(FrmFindIcon_Dir1);
    folders.Send(LB_SETCURSEL, static_cast<WPARAM>(found - names.begin()));
    program_.Window().Send(WM_COMMAND, MAKEWPARAM(FrmFindIcon_Dir1, LBN_DBLCLK),
                           reinterpret_cast<LPARAM>(folders.Window()));
  }

  // Searches one of the folders. Returns the listed paths, sorted, one for each icon. If a message box appears, the
  // wait times out and the test fails with the text of the box.
  Paths Search(const DamagedFolder& folder) const {
    OpenFolder(FolderName(folder.path));
    Find();
    Paths paths = List().CellsOf(1);
    OpenFolder(FolderName(tree_.Path()));
    std::ranges::sort(paths);
    return paths;
  }

  // Searches one of the folders and checks the result: each intact file's one icon, and no icon of a file that makes
  // the system fault when its icons are counted. Returns how many files make the system fault.
  int CheckSearch(const DamagedFolder& folder) const {
    SCOPED_TRACE(folder.kind + ", " + folder.damage);
    const Paths found = Search(folder);
    for (const std::string& path : folder.intact) EXPECT_EQ(std::ranges::count(found, path), 1) << path;
    int counting = 0;
    int taking = 0;
    for (const std::string& path : folder.damaged) {
      if (BreaksCounting(path)) {
        ++counting;
        EXPECT_FALSE(std::ranges::binary_search(found, path)) << path;
      } else if (BreaksTaking(path)) {
        ++taking;
      }
    }
    std::printf("%-20s %-15s %4zu damaged, with %4zu icons; %3d break counting, %3d taking\n", folder.kind.c_str(),
                folder.damage.c_str(), folder.damaged.size(), found.size() - folder.intact.size(), counting, taking);
    return counting + taking;
  }
};

TEST_F(DamagedFiles, AreSearchedWithoutACrashAMessageOrGrowthAndTheIntactOnesAmongThemFound) {
  const std::vector<DamagedFolder> folders = support::MakeDamagedFiles(tree_);
  Start({}, true);
  Tick({Ico, Ani, Icl, Ocx, Dll, Exe, AllFiles});
  ChooseSize(Size16);
  SetLimit("4000");
  Search(folders.front());
  const Holdings before = support::HeldBy(program_.Process());
  int files = 0;
  int breaking = 0;
  for (const DamagedFolder& folder : folders) {
    breaking += CheckSearch(folder);
    files += static_cast<int>(folder.damaged.size());
  }
  EXPECT_GE(files, 10000);
  const Holdings after = support::HeldBy(program_.Process());
  std::printf("%d damaged files; %d of them break the system\n", files, breaking);
  // What the system held when it faulted leaks: now and then a bitmap, or a few pages of a file.
  EXPECT_LT(after.gdiObjects - before.gdiObjects, files / 20);
  EXPECT_LT(after.kernelHandles - before.kernelHandles, files / 1000);
  EXPECT_LT((after.bytes - before.bytes) / files, 8 * 1024) << "not 8 KB a file";
}

// The program reads 16-bit modules itself if the shell finds no icon in them, as on current Windows.
TEST_F(DamagedFiles, AreReadAsModulesWithoutACrashAMessageOrGrowthAndTheIntactOnesAmongThemFound) {
  const std::vector<DamagedFolder> folders = support::MakeDamagedModules(tree_);
  TakeTodaysShell(program_);
  Start({}, true);
  Tick({Icl, Exe, Dll, Ocx});
  ChooseSize(Size16);
  SetLimit("4000");
  Search(folders.front());
  const Holdings before = support::HeldBy(program_.Process());
  int files = 0;
  int icons = 0;
  for (const DamagedFolder& folder : folders) {
    const Paths found = Search(folder);
    for (const std::string& path : folder.intact) EXPECT_EQ(std::ranges::count(found, path), 1) << path;
    files += static_cast<int>(folder.damaged.size());
    icons += static_cast<int>(found.size() - folder.intact.size());
    std::printf("%-20s %-15s %4zu damaged, with %4zu icons\n", folder.kind.c_str(), folder.damage.c_str(),
                folder.damaged.size(), found.size() - folder.intact.size());
  }
  const Holdings after = support::HeldBy(program_.Process());
  std::printf("%d damaged modules; %+d GDI objects, %+d handles, %+lld bytes\n", files,
              after.gdiObjects - before.gdiObjects, after.kernelHandles - before.kernelHandles,
              static_cast<long long>(after.bytes - before.bytes));
  EXPECT_GE(files, 5000);
  EXPECT_GT(icons, files) << "most have icons left";
  EXPECT_LT(after.gdiObjects - before.gdiObjects, files / 500);
  EXPECT_LT(after.kernelHandles - before.kernelHandles, files / 1000);
  EXPECT_LT((after.bytes - before.bytes) / files, 1024) << "not 1 KB a file";
}

}  // namespace
}  // namespace tarvik::end_to_end
