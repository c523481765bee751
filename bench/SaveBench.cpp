// What it costs to save every icon of a search from the main window's menu, held against the bare platform calls that
// cannot be spared: taking each icon out of its file, drawing its three pictures, and writing as many bytes.

#include <windows.h>

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "BareIcon.h"
#include "BenchData.h"
#include "MainWindow.h"
#include "Measure.h"
#include "OutputFolder.h"
#include "export/IconSurfaces.h"
#include "platform/Handles.h"
#include "resource.h"

namespace tarvik::bench {
namespace {

constexpr int libraries = 8;
constexpr int iconsInEach = 500;  // in a larger library the platform takes longer to find one
constexpr int iconSize = 32;
constexpr int rounds = 5;

class BareCalls {
 public:
  // Writes as many bytes for each icon as stand in the files of `saved`.
  BareCalls(std::vector<std::string> paths, const OutputFolder& saved)
      : paths_(std::move(paths)), bytes_(AverageSize(saved.Path())) {}

  void Run(const OutputFolder& output) {
    int number = 0;
    for (const std::string& path : paths_) {
      for (int index = 0; index < iconsInEach; ++index) {
        DrawBareIcon(path, index, iconSize, surfaces_);
        OutputFolder::Write(output.File(++number), bytes_);
      }
    }
  }

 private:
  static std::size_t AverageSize(const std::string& folder) {
    std::size_t bytes = 0;
    std::size_t files = 0;
    for (const auto& file : std::filesystem::directory_iterator(ToWide(folder))) {
      bytes += file.file_size();
      ++files;
    }
    return files == 0 ? 0 : bytes / files;
  }

  std::vector<std::string> paths_;
  std::vector<std::byte> bytes_;
  IconSurfaces surfaces_{iconSize};
};

void CompareFormat(MainWindow& window, const testing::TemporaryFolder& folder, const std::vector<std::string>& paths,
                   const std::string& format, int command) {
  const OutputFolder saved(folder, "saved " + format);
  const OutputFolder bareOutput(folder, "bare " + format);
  window.SaveAll(command, saved.Path());
  BareCalls bare(paths, saved);
  Compare(
      "4,000 icons saved by the menu as " + format,
      {{.name = "bare calls", .run = [&] { bare.Run(bareOutput); }, .prepare = [&] { bareOutput.Empty(); }},
       {.name = "save all", .run = [&] { window.SaveAll(command, saved.Path()); }, .prepare = [&] { saved.Empty(); }}},
      rounds);
}

}  // namespace
}  // namespace tarvik::bench

int main() {
  using namespace tarvik;
  using namespace tarvik::bench;
  Application application(GetModuleHandleW(nullptr));
  const testing::TemporaryFolder folder;
  const std::string first = MakeIconLibrary(folder, iconsInEach);
  std::vector<std::string> paths{JoinPath(first, "icons.dll")};
  while (static_cast<int>(paths.size()) < libraries) {
    paths.push_back(JoinPath(first, "icons" + std::to_string(paths.size()) + ".dll"));
    CopyFileW(ToWide(paths.front()).c_str(), ToWide(paths.back()).c_str(), TRUE);
  }
  MainWindow window(application, {first, "*.dll", false});
  window.Find();
  CompareFormat(window, folder, paths, "icon", FrmFindIcon_mnuSaveAll);
  CompareFormat(window, folder, paths, "cursor", FrmFindIcon_mnuSaveAll3);
  CompareFormat(window, folder, paths, "bitmap", FrmFindIcon_mnuSaveAll2);
  return 0;
}
