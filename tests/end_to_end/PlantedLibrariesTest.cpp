// DLLs with the names of the system's, put into the program's folder, into the searched folder and into the folder that
// icons are saved to: none of them is loaded, whatever the program does.

#include <windows.h>

#include <psapi.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <span>
#include <string>

#include "base/AsciiCase.h"
#include "base/FolderPath.h"
#include "driver/EnhancedView.h"
#include "end_to_end/SavingTest.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using Libraries = std::set<std::string>;  // names in lower case

class PlantedLibraries : public Saving {
 protected:
  // The libraries that the program has loaded. One that it unloads again is missing.
  static Libraries LoadedBy(const Program& program) {
    std::array<HMODULE, 1024> modules{};
    DWORD size = 0;
    EnumProcessModules(program.Process(), modules.data(), sizeof modules, &size);
    Libraries names;
    for (const HMODULE module : std::span(modules).first(size / sizeof *modules.data())) {
      std::array<wchar_t, MAX_PATH> path{};
      GetModuleFileNameExW(program.Process(), module, path.data(), path.size());
      std::string name = FolderName(ToUtf8(path.data()));
      std::ranges::transform(name, name.begin(), LowerAscii);
      if (name.ends_with(".dll") || name.ends_with(".drv")) names.insert(std::move(name));
    }
    return names;
  }

  // Does once what makes the program load a library: a search, each save, copying, the view, the guide, a skin, and
  // what a screen reader asks for.
  void DoEverything() {
    FindAll();
    AskTheGridAsAScreenReader();
    SaveAs(FrmFindIcon_mnuSaveAs, Out("a.ico"));
    ExpectAsFound();
    SaveAs(FrmFindIcon_MnuSaveAsCursor, Out("a.cur"));
    ExpectAsFound();
    SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.jpg"));
    AcceptJpegOptions();
    ExpectAsFound();
    SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.gif"));
    AcceptGifOptions();
    ExpectAsFound();
    SaveBatch(FrmFindIcon_mnuSaveAll);
    program_.Command(FrmFindIcon_mnuCopy);
    program_.Item(FrmFindIcon_PicIcons).Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    EnhancedView(program_).Close();
    OpenGuide();
  }

 private:
  // The message that asks a window for its accessible object.
  void AskTheGridAsAScreenReader() const {
    EXPECT_GT(program_.Item(FrmFindIcon_PicIcons).Send(WM_GETOBJECT, 0, OBJID_CLIENT), 0);
  }
  void OpenGuide() {
    const std::string page = home_.In("page");
    DeleteFileW(ToWide(page).c_str());
    const WebPageReader reader(page);
    program_.Command(FrmFindIcon_MnuContent);
    EXPECT_TRUE(Eventually([&] { return !support::ReadAll(page).empty() || program_.FindBox(); }));
    if (const auto box = program_.FindBox()) box->Press(IDOK);
  }
};

TEST_F(PlantedLibraries, AreLoadedFromNoFolderButTheSystems) {
  MakePictures();
  home_.MakeFolder("Skins");
  home_.MakeFile("Skins\\Galaxy.skn");
  program_.Launch();
  const Control startUp = program_.WaitForStartUpWindow();
  const Libraries atStart = LoadedBy(program_);
  startUp.Post(WM_TIMER, FrmSpash_Timer1);
  program_.WaitForMainWindow();
  EXPECT_EQ(program_.Close(), 0U);

  WriteSetting("Folder", tree_.Path());
  program_.Start();
  DoEverything();
  Libraries late = LoadedBy(program_);
  EXPECT_EQ(program_.Close(), 0U);
  for (const std::string& name : atStart) late.erase(name);
  EXPECT_THAT(late, IsSupersetOf({"comdlg32.dll", "oleacc.dll", "shell32.dll"}));

  // The names of libraries in the program's own text that were not needed here, too.
  for (const char* name : {"mpr.dll", "oleaut32.dll", "version.dll", "cryptbase.dll", "propsys.dll", "dwmapi.dll"})
    if (!atStart.contains(name)) late.insert(name);
  for (const std::string& name : SavedNames()) DeleteFileW(ToWide(Out(name)).c_str());
  for (const std::string& folder : {home_.Path(), tree_.Path(), Out()}) {
    for (const std::string& name : late)
      fs::copy_file(BuiltFile(TARVIK_PLANTED_LIBRARY), ToWide(JoinPath(folder, name)));
  }
  program_.Start();
  Tick({Ico, Dll, Exe});
  DoEverything();
  EXPECT_EQ(program_.Close(), 0U);
  for (const std::string& folder : {home_.Path(), tree_.Path(), Out()}) {
    Names loaded = NamesIn(folder);
    std::erase_if(loaded, [](const std::string& name) { return !name.ends_with(".loaded"); });
    EXPECT_THAT(loaded, IsEmpty()) << folder;
  }
}

// The other case would also pass if these DLLs left nothing behind.
TEST_F(PlantedLibraries, LeaveAFileBehindWhereTheyAreLoaded) {
  const std::string planted = tree_.In("planted.dll");
  fs::copy_file(BuiltFile(TARVIK_PLANTED_LIBRARY), ToWide(planted));
  const HMODULE module = LoadLibraryW(ToWide(planted).c_str());
  ASSERT_NE(module, nullptr);
  FreeLibrary(module);
  EXPECT_TRUE(fs::exists(ToWide(planted + ".loaded")));
}

}  // namespace
}  // namespace tarvik::end_to_end
