// The cost of saving every icon of a search from the main window's menu, compared with the bare platform calls that are
// needed in any case: extracting each icon from its file, drawing its three pictures, and writing as many bytes.

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "BareIcon.h"
#include "BenchData.h"
#include "Held.h"
#include "MainWindow.h"
#include "Measure.h"
#include "OutputFolder.h"
#include "export/IconSurfaces.h"
#include "platform/Handles.h"
#include "resource.h"

namespace tarvik::bench {
namespace {

constexpr int iconSize = 32;
constexpr int rounds = 5;

// Libraries of icons.
struct Libraries {
  std::string folder;
  std::vector<std::string> paths;
  int iconsInEach = 0;
};

class BareCalls {
 public:
  // Extracts that many icons with one call, and writes for each as many bytes as the files of `saved` have on average.
  BareCalls(Libraries libraries, const OutputFolder& saved, int groupSize)
      : libraries_(std::move(libraries)), groupSize_(groupSize), bytes_(AverageSize(saved.Path())) {}

  void Run(const OutputFolder& output) {
    int number = 0;
    for (const std::string& path : libraries_.paths) {
      for (int index = 0; index < libraries_.iconsInEach; index += groupSize_) {
        DrawGroup(path, index);
        const int count = std::min(groupSize_, libraries_.iconsInEach - index);
        for (int i = 0; i < count; ++i) OutputFolder::Write(output.File(++number), bytes_);
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

  void DrawGroup(const std::string& path, int first) const {
    if (groupSize_ == 1) return DrawBareIcon(path, first, iconSize, surfaces_);
    const int count = std::min(groupSize_, libraries_.iconsInEach - first);
    for (const IconHandle& icon : TakeBareIcons(path, first, count)) DrawPictures(icon.get(), iconSize, surfaces_);
  }

  Libraries libraries_;
  int groupSize_;
  std::vector<std::byte> bytes_;
  IconSurfaces surfaces_{iconSize};
};

Libraries MakeLibraries(const support::TemporaryFolder& folder, int libraries, int iconsInEach) {
  Libraries made{MakeIconLibrary(folder, iconsInEach, libraries), {}, iconsInEach};
  for (const auto& file : std::filesystem::directory_iterator(ToWide(made.folder))) {
    made.paths.push_back(ToUtf8(file.path().wstring()));
  }
  return made;
}

struct Format {
  const char* name;
  int command;  // of the menu
};

void CompareFormats(Application& application, const support::TemporaryFolder& folder, const std::string& title,
                    const Libraries& libraries, const std::vector<Format>& formats) {
  MainWindow window(application, {libraries.folder, "*.dll", false});
  window.Find();
  for (const Format& format : formats) {
    const std::string row = title + " as " + format.name;
    const OutputFolder saved(folder, row + ", saved");
    const OutputFolder bareOutput(folder, row + ", bare");
    window.SaveAll(format.command, saved.Path());
    BareCalls oneByOne(libraries, saved, 1);
    BareCalls sixtyFour(libraries, saved, 64);
    const auto emptyBare = [&] { bareOutput.Empty(); };
    Compare(row,
            {{.name = "one by one", .run = [&] { oneByOne.Run(bareOutput); }, .prepare = emptyBare},
             {.name = "64 at a time", .run = [&] { sixtyFour.Run(bareOutput); }, .prepare = emptyBare},
             {.name = "save all",
              .run = [&] { window.SaveAll(format.command, saved.Path()); },
              .prepare = [&] { saved.Empty(); }}},
            rounds);
    PrintHeld(row, libraries.iconsInEach * static_cast<int>(libraries.paths.size()));
  }
}

}  // namespace
}  // namespace tarvik::bench

int main() {
  using namespace tarvik;
  using namespace tarvik::bench;
  Application application(GetModuleHandleW(nullptr));
  const support::TemporaryFolder folder;
  CompareFormats(application, folder, "2,000 icons of one DLL", MakeLibraries(folder, 1, 2000),
                 {{"icon", FrmFindIcon_mnuSaveAll}});
  CompareFormats(
      application, folder, "4,000 icons of eight DLLs", MakeLibraries(folder, 8, 500),
      {{"icon", FrmFindIcon_mnuSaveAll}, {"cursor", FrmFindIcon_mnuSaveAll3}, {"bitmap", FrmFindIcon_mnuSaveAll2}});
  return 0;
}
