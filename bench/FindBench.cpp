// The cost of a whole search, compared with the bare system calls for the same files, and how it grows:
//   find_bench [ROW]
// ROW is a part of a row's title; without it all rows are measured, each in a process of its own.

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "BareSearch.h"
#include "BenchData.h"
#include "Held.h"
#include "MainWindow.h"
#include "Measure.h"
#include "RunAgain.h"
#include "SilentSearch.h"
#include "WholeProcesses.h"
#include "base/FolderPath.h"
#include "forms/Application.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "search/icons/Folders.h"

namespace tarvik::bench {
namespace {

using Taking = BareSearch::Taking;

constexpr int rounds = 5;

void CompareSearches(Application& application, const std::string& title, const Scope& scope, int times = rounds) {
  BareSearch oneByOne(scope, Taking::OneByOne);
  BareSearch sixtyFour(scope, Taking::SixtyFour);
  SilentSearch silent(scope);
  MainWindow window(application, scope);
  Compare(title,
          {{"one by one", [&] { oneByOne.Run(); }},
           {"64 at a time", [&] { sixtyFour.Run(); }},
           {"search, silent window", [&] { silent.Run(); }},
           {"search, real window", [&] { window.Find(); }}},
          times);
  PrintHeld(title, oneByOne.Icons());
}

// A file without content: no 16-bit module is read from it.
class NoBytes final : public ByteSource {
 public:
  FileStamp Stamp() override { return {}; }
  bool Read(std::uint64_t, std::span<std::byte>) override { return false; }
};

// The cost of looking for 16-bit modules among files in which the shell finds no icon, if no file is such a module: in
// the first search of a run, and in a later one, for which the files are already known.
void CompareModuleLooks(const std::string& title, const Scope& scope) {
  const ShellIcons::OpenBytes openNone = [](const std::string&) { return std::make_unique<NoBytes>(); };
  std::optional<SilentSearch> search;
  const auto run = [&] { search->Run(); };
  Compare(title + ", first search",
          {{"no look", run, [&] { search.emplace(scope, openNone); }}, {"search", run, [&] { search.emplace(scope); }}},
          2 * rounds);
  SilentSearch without(scope, openNone);
  SilentSearch silent(scope);
  Compare(title + ", later search", {{"no look", [&] { without.Run(); }}, {"search", [&] { silent.Run(); }}},
          2 * rounds);
}

// Hard links to the libraries of the system, under the same names in another folder.
std::string LinkSystemLibraries(const std::string& folder) {
  Folders folders;
  for (const std::string& name : folders.Files(SystemFolder(), "*.dll"))
    CreateHardLinkW(ToWide(JoinPath(folder, name)).c_str(), ToWide(JoinPath(SystemFolder(), name)).c_str(), nullptr);
  return folder;
}

// One icon and a growing number of empty folders: the cost per folder must not grow with their number, apart from the
// cost of the file system itself.
void CompareFolderCounts(Application& application, const std::string& root) {
  double bareForOne = 0;
  double searchForOne = 0;
  for (const int count : {100, 1000, 10000}) {
    const Scope scope{MakeEmptyFolders(root, count), "*.ico", true};
    BareSearch bare(scope, Taking::OneByOne);
    SilentSearch silent(scope);
    MainWindow window(application, scope);
    const std::vector<double> medians = Compare(std::to_string(count) + " folders side by side",
                                                {{"bare calls", [&] { bare.Run(); }},
                                                 {"search, silent window", [&] { silent.Run(); }},
                                                 {"search, real window", [&] { window.Find(); }}},
                                                3);
    std::printf("a folder: bare calls %.4f ms, search with the real window %.4f ms", medians[0] / count,
                medians[2] / count);
    // With a hundred folders, the fixed cost of a search still outweighs that of the folders.
    if (bareForOne > 0) {
      std::printf("; against the row before: %.3f and %.3f", medians[0] / count / bareForOne,
                  medians[2] / count / searchForOne);
    }
    std::printf("\n");
    bareForOne = medians[0] / count;
    searchForOne = medians[2] / count;
  }
}

void SearchManyTimes(Application& application, const Scope& scope) {
  constexpr int searches = 100;
  MainWindow window(application, scope);
  for (int i = 0; i < 5; ++i) window.Find();
  const Held before = HeldNow();
  for (int i = 0; i < searches; ++i) window.Find();
  const Held after = HeldNow();
  const auto bytes = static_cast<double>(before.holdings.bytes);
  std::printf(
      "after %d searches: %+d GDI objects, %+d kernel handles, %+d windows, %+.2f MB of %.1f MB; peak %+.2f MB of %.1f "
      "MB\n",
      searches, after.holdings.gdiObjects - before.holdings.gdiObjects,
      after.holdings.kernelHandles - before.holdings.kernelHandles, after.windows - before.windows,
      (static_cast<double>(after.holdings.bytes) - bytes) / bytesInMegabyte, bytes / bytesInMegabyte,
      after.peakMegabytes - before.peakMegabytes, before.peakMegabytes);
}

void MeasureModuleLooks(Application& /*application*/, const support::TemporaryFolder& folder,
                        const std::string& title) {
  CompareModuleLooks(title, {SystemFolder(), "*.dll", false});
  const std::string elsewhere = LinkSystemLibraries(folder.MakeFolder("libraries"));
  CompareModuleLooks(title + " elsewhere", {elsewhere, "*.dll", false});
}

struct Row {
  const char* title;
  void (*measure)(Application& application, const support::TemporaryFolder& folder, const std::string& title);
};

constexpr Row rows[] = {
    {"the DLLs of the system folder",
     [](Application& application, const support::TemporaryFolder&, const std::string& title) {
       CompareSearches(application, title, {SystemFolder(), "*.dll", false});
     }},
    {"16-bit modules looked for", MeasureModuleLooks},
    {"2,000 icon files in 500 folders",
     [](Application& application, const support::TemporaryFolder& folder, const std::string& title) {
       CompareSearches(application, title, {MakeIconFiles(folder, 500, 4), "*.ico", true});
     }},
    {"one DLL of 2,000 icons",
     [](Application& application, const support::TemporaryFolder& folder, const std::string& title) {
       CompareSearches(application, title, {MakeIconLibrary(folder, 2000, 1), "*.dll", false});
     }},
    {"20,000 files of all kinds in 2,000 folders",
     [](Application& application, const support::TemporaryFolder& folder, const std::string& title) {
       CompareSearches(application, title, {MakeAllKinds(folder, 2000), "*.*", true}, 3);
     }},
    {"folders side by side", [](Application& application, const support::TemporaryFolder& folder,
                                const std::string&) { CompareFolderCounts(application, folder.MakeFolder("walk")); }},
    {"100 searches of 4,000 icons",
     [](Application& application, const support::TemporaryFolder& folder, const std::string&) {
       SearchManyTimes(application, {MakeIconLibrary(folder, 2000, 2), "*.dll", false});
     }},
    {"whole processes",
     [](Application&, const support::TemporaryFolder& folder, const std::string&) { CompareWholeProcesses(folder); }},
};

void Measure(std::string_view wanted) {
  Application application(GetModuleHandleW(nullptr));
  const support::TemporaryFolder folder;
  for (const Row& row : rows) {
    if (std::string_view(row.title).find(wanted) != std::string_view::npos) {
      row.measure(application, folder, row.title);
    }
  }
}

// Each row has a process of its own: what Wine keeps of one row would make the next one slower.
void MeasureAll() {
  for (const Row& row : rows) RunAgain(row.title);
}

}  // namespace
}  // namespace tarvik::bench

int main(int count, char** arguments) {
  using namespace tarvik;
  using namespace tarvik::bench;
  try {
    if (count < 2) {
      MeasureAll();
    } else if (std::string_view(arguments[1]) == searchOnce) {  // in a process of CompareWholeProcesses
      Application application(GetModuleHandleW(nullptr));
      MainWindow(application, {SystemFolder(), "*.dll", false}).Find();
    } else {
      Measure(arguments[1]);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "find_bench: %s\n", error.what());
    return 1;
  }
  return 0;
}
