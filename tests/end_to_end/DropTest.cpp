// Files and folders that are dropped on the main window.

#include <gmock/gmock.h>
#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

#include "base/FolderPath.h"
#include "base/NonCopyable.h"
#include "driver/UnixProgram.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/DroppedBlock.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::ElementsAre;

// A network share of this machine. Wine looks for it in a folder of its own.
class Share : NonCopyable {
 public:
  explicit Share(const std::string& folder) {
    Run("mkdir -p " + shares + "/tarvik && ln -s " + QuoteForUnix(ToWide(folder)) + " " + shares + "/tarvik/icons");
  }
  ~Share() { Run("rm " + shares + "/tarvik/icons && rmdir -p --ignore-fail-on-non-empty " + shares + "/tarvik"); }

 private:
  static void Run(const std::string& command) {
    const UnixAnswer answer = RunUnix(command);
    EXPECT_EQ(answer.exitCode, 0) << answer.output;
  }
  const std::string shares = R"("$WINEPREFIX/dosdevices/unc")";
};

class Drop : public EndToEnd {
 protected:
  // Drops these on the main window. The message refers to memory of the receiving process. Windows copies the data
  // there itself; under Wine the sender has to.
  void DropOnWindow(const std::vector<std::string>& paths) const {
    const std::vector<std::byte> block = support::DroppedBlock(paths);
    void* memory = VirtualAllocEx(program_.Process(), nullptr, block.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    ASSERT_NE(memory, nullptr);
    ASSERT_NE(WriteProcessMemory(program_.Process(), memory, block.data(), block.size(), nullptr), 0);
    program_.Window().Post(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
  }
  bool IsTicked(int type) const { return program_.Item(FrmFindIcon_ChkFileType0 + type).IsChecked(); }
};

TEST_F(Drop, AFileOpensItsFolderAndItsIconsAreFound) {
  const support::TemporaryFolder elsewhere;
  elsewhere.MakeFolder("图标");
  CopyThreeIcons(elsewhere.In("图标\\some.dll"));
  Start();
  DropOnWindow({elsewhere.In("图标\\some.dll"), tree_.Path()});
  ASSERT_TRUE(Eventually([&] { return FolderNames().back() == "图标"; }));
  EXPECT_THAT(FileNames(), ElementsAre("some.dll"));
  for (int type = 0; type < fileTypeCount; ++type) EXPECT_EQ(IsTicked(type), type == Ico || type == Dll) << type;
  Find();
  EXPECT_EQ(Entries().size(), 3U);
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), elsewhere.In("图标"));
}

TEST_F(Drop, AFolderOnAnotherDriveIsOpenedAndItsDriveChosen) {
  const ExtraDrive drive(tree_.Path(), "extra");
  tree_.MakeFolder("inner");
  tree_.MakeFile("inner\\a.ico", support::IconFileOf(0xFF));
  Start("C:\\windows");
  DropOnWindow({"R:\\inner"});
  ASSERT_TRUE(Eventually([&] { return FolderNames() == std::vector<std::string>{"R:\\", "inner"}; }));
  const Control drives = program_.Item(FrmFindIcon_Drive1);
  EXPECT_EQ(drives.ComboItems().at(static_cast<std::size_t>(drives.ComboChoice())), "r: [extra]");
}

TEST_F(Drop, AShareIsOpenedAndSearchedAndKept) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("inner\\a.ico", support::IconFileOf(0xFF));
  const Share share(tree_.Path());
  Start("C:\\windows", true);
  DropOnWindow({R"(\\tarvik\icons)"});
  const std::vector<std::string> expected{R"(\\tarvik\icons)", "inner"};
  ASSERT_TRUE(Eventually([&] { return FolderNames() == expected; })) << ::testing::PrintToString(FolderNames());
  EXPECT_EQ(program_.Item(FrmFindIcon_Drive1).ComboChoice(), -1);
  Find();
  EXPECT_THAT(Entries(), ElementsAre(Entry{R"(\\tarvik\icons\inner\a.ico)", 0}));
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), R"(\\tarvik\icons)");
}

}  // namespace
}  // namespace tarvik::end_to_end
