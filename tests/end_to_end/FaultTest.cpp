// Failures of the system around the program while it runs.

#include <windows.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "base/AsciiCase.h"
#include "base/FolderPath.h"
#include "base/NonCopyable.h"
#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/PastedPicture.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

using support::IconFileOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr Color red = 0x0000FF;
constexpr Color green = 0x00FF00;

// The pixels of an icon of that colour, which its first pixel has.
MATCHER_P(ShowsColor, color, "") {
  return !arg.empty() && arg.front() == color;
}

class Faults : public EndToEnd {
 protected:
  // Copies the current icon. Returns the pixels that another program then pastes.
  std::vector<Color> Copy() const {
    EmptyTheClipboard();
    program_.Command(FrmFindIcon_mnuCopy);
    EXPECT_TRUE(Eventually([] { return IsClipboardFormatAvailable(CF_BITMAP) != 0; }));
    return support::Paste().pixels;
  }
  void Replace(const std::string& path, const support::Bytes& bytes) const {
    ASSERT_NE(DeleteFileW(ToWide(path).c_str()), 0) << path;
    tree_.MakeFile(FolderName(path), bytes);
  }
  // After all that the window still finds the icons in a folder of its own.
  void ExpectUsable() const {
    EXPECT_FALSE(program_.FindBox());
    for (const int id : {FrmFindIcon_CmdFind, FrmFindIcon_CmdClose}) EXPECT_TRUE(IsEnabled(id)) << id;
  }
  void ExpectNothingFound() const {
    const std::string folder = tree_.Path().substr(0, 20);
    EXPECT_EQ(FindAndReadMessage(), folder + " ... contains no icons.");
    EXPECT_THAT(Entries(), IsEmpty());
    ExpectUsable();
  }
};

class FolderFaults : public Faults {
 protected:
  static constexpr int folders = 60;

  void StartOnManyFolders() {
    for (int i = 0; i < folders; ++i) {
      tree_.MakeFolder(Name(i));
      tree_.MakeFile(Name(i) + "\\a.ico", IconFileOf(red));
    }
    Start({}, true);
  }
  // Deletes the folders from that one on. The search must not be in one of them, or the open file would keep its
  // folder.
  void DeleteFrom(int first) const {
    for (int i = first; i < folders; ++i) {
      fs::remove_all(ToWide(In(Name(i))));
      EXPECT_FALSE(fs::exists(ToWide(In(Name(i))))) << i;
    }
  }
  std::vector<Entry> FirstIcons(int count) const {
    std::vector<Entry> icons;
    for (int i = 0; i < count; ++i) icons.push_back({In(Name(i) + "\\a.ico"), 0});
    return icons;
  }
  std::string Name(int number) const { return "folder" + std::to_string(100 + number); }
};

TEST_F(FolderFaults, FoldersDeletedDuringASearchLeaveTheRestOfItsIcons) {
  constexpr int half = folders / 2;
  StartOnManyFolders();
  BeforeItLists([&] { DeleteFrom(half); });
  EXPECT_EQ(Entries(), FirstIcons(half));
  ExpectUsable();
  Find();
  EXPECT_EQ(Entries(), FirstIcons(half));
}

TEST_F(FolderFaults, TheWholeTreeDeletedDuringASearchLeavesAnEmptyList) {
  StartOnManyFolders();
  BeforeItLists([&] { DeleteFrom(0); });
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_EQ(Status(), "0 Icons Added. Double click an icon for enhanced view.");
  ExpectUsable();
  ExpectNothingFound();
}

TEST_F(Faults, AFolderDeletedBeforeTheSearchHasNoIcons) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("inner\\a.ico", IconFileOf(red));
  Start(In("inner"));
  fs::remove_all(ToWide(In("inner")));
  EXPECT_EQ(FindAndReadMessage(), In("inner").substr(0, 20) + " ... contains no icons.");
  ExpectUsable();
}

TEST_F(Faults, ADriveThatIsTakenOutHasNoIcons) {
  tree_.MakeFile("a.ico", IconFileOf(red));
  {
    const ExtraDrive drive(tree_.Path(), "stick");
    Start("R:\\");
    Find();
    EXPECT_EQ(List().RowCount(), 1);
  }
  EXPECT_EQ(FindAndReadMessage(), "R:\\ ... contains no icons.");
  ExpectUsable();
}

TEST_F(Faults, ASavedFolderOnAnUnreadyDriveGivesWayToTheProgramsOwn) {
  const EmptyDrive drive;
  Start("Q:\\icons");
  EXPECT_THAT(FolderNames(), ::testing::Contains(FolderName(home_.Path())));
  ExpectUsable();
}

TEST_F(Faults, AFileReplacedAfterTheSearchGivesItsNewIcon) {
  const std::string path = tree_.MakeFile("a.ico", IconFileOf(red));
  Start();
  Find();
  EXPECT_THAT(Copy(), ShowsColor(red));
  Replace(path, IconFileOf(green));
  EXPECT_THAT(Copy(), ShowsColor(green));
  ExpectUsable();
}

TEST_F(Faults, AFileThatIsGoneDamagedOrHeldAfterTheSearchGivesABlank) {
  const std::string path = tree_.MakeFile("a.ico", IconFileOf(red));
  const auto expectBlank = [this] {
    const std::vector<Color> copied = Copy();
    EXPECT_THAT(copied, SizeIs(32 * 32));
    EXPECT_THAT(copied, Each(copied.front()));
    ExpectUsable();
  };
  Start();
  Find();
  {
    const FileHandle held(
        CreateFileW(ToWide(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    expectBlank();
  }
  EXPECT_THAT(Copy(), ShowsColor(red)) << "it comes back with the file";
  Replace(path, support::Bytes(300, std::byte{7}));
  expectBlank();
  ASSERT_NE(DeleteFileW(ToWide(path).c_str()), 0);
  expectBlank();
}

TEST_F(Faults, AClipboardThatAnotherProgramHoldsOpenIsReportedAndLeftAsItIs) {
  tree_.MakeFile("a.ico", IconFileOf(red));
  Start();
  Find();
  EmptyTheClipboard();
  const HWND holder = CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  {
    const OpenedClipboard held(holder);
    program_.Command(FrmFindIcon_mnuCopy);
    const Box box = program_.WaitForBox();
    EXPECT_EQ(box.Title(), "Brindle Tarvik - Error");
    EXPECT_EQ(box.Text(), "The icon was not copied: another program is using the clipboard.");
    EXPECT_TRUE(ShowsSign(box, IDI_EXCLAMATION));
    box.Press(IDOK);
  }
  DestroyWindow(holder);
  EXPECT_THAT(support::Paste().pixels, IsEmpty());
  EXPECT_THAT(Copy(), ShowsColor(red));
  ExpectUsable();
}

// A window that the system refuses to create, because the program's file names a window class that does not exist.
class MissingWindow : public Faults {
 protected:
  // Replaces the class name at the start of `text` in the copy's file. `text` is compared as it is stored in the dialog
  // resources, ignoring case.
  void Spoil(std::u16string_view text) const {
    const std::string sought(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
    std::fstream file(damaged_.Path(), std::ios::binary | std::ios::in | std::ios::out);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const auto same = [](char a, char b) { return UpperAscii(a) == UpperAscii(b); };
    const auto found = std::ranges::search(bytes, sought, same);
    ASSERT_FALSE(found.empty());
    file.seekp(found.begin() - bytes.begin());
    ASSERT_TRUE(file.put('?').flush());
  }
  // Waits for the message, after which the program ends. Returns its exit code.
  DWORD ExpectMessageAndEnd() {
    const Box box = damaged_.WaitForBox();
    EXPECT_EQ(box.Title(), "Brindle Tarvik - Error");
    EXPECT_EQ(box.Text(), "Windows could not create the window");
    EXPECT_TRUE(ShowsSign(box, IDI_EXCLAMATION));
    box.Press(IDOK);
    return damaged_.WaitForEnd();
  }

  Program damaged_{home_.Path(), "damaged.exe"};
};

TEST_F(MissingWindow, IsSaidWhereItIsTheStartUpWindow) {
  using namespace std::string_view_literals;
  Spoil(u"TarvikPicture\0Brindle Tarvik"sv);
  damaged_.Launch();
  EXPECT_EQ(ExpectMessageAndEnd(), 1U);
}

TEST_F(MissingWindow, IsSaidWhereItIsTheMainWindow) {
  Spoil(u"SysListView32");
  damaged_.Launch();
  damaged_.WaitForStartUpWindow().Post(WM_TIMER, FrmSpash_Timer1);
  EXPECT_EQ(ExpectMessageAndEnd(), 0U);
}

TEST_F(MissingWindow, LeavesTheMainWindowUsableWhereItIsTheView) {
  Spoil(u"ToolbarWindow32");
  tree_.MakeFile("a.ico", IconFileOf(red));
  std::ofstream(damaged_.SettingsFile()) << "[FindIcon]\nFolder=" << tree_.Path() << "\n";
  damaged_.Start();
  damaged_.Item(FrmFindIcon_CmdFind).Send(BM_CLICK);
  for (int time = 0; time < 2; ++time) {
    Control(GetDlgItem(damaged_.Item(FrmFindIcon_PicFrame).Window(), FrmFindIcon_PicIcons))
        .Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    const Box box = damaged_.WaitForBox();
    EXPECT_EQ(box.Text(), "Windows could not create the window");
    box.Press(IDOK);
  }
  EXPECT_EQ(damaged_.Close(), 0U);
}

// While it lives, programs that are started get a temporary folder that does not exist.
class NoTemporaryFolder : NonCopyable {
 public:
  NoTemporaryFolder() {
    for (Variable& variable : variables_) {
      variable.former.resize(GetEnvironmentVariableW(variable.name, variable.former.data(), 32767));
      SetEnvironmentVariableW(variable.name, L"C:\\no such folder");
    }
  }
  ~NoTemporaryFolder() {
    for (const Variable& variable : variables_) SetEnvironmentVariableW(variable.name, variable.former.c_str());
  }

 private:
  struct Variable {
    const wchar_t* name;
    std::wstring former = std::wstring(32767, L'\0');
  };
  Variable variables_[2] = {{L"TEMP"}, {L"TMP"}};
};

class TemporaryFolderFaults : public Faults {
 protected:
  static constexpr const wchar_t* temporaryBitmap = L"C:\\tmp.bmp";

  // Removes first what a failed test may have left there.
  void SetUp() override { fs::remove_all(temporaryBitmap); }
  ~TemporaryFolderFaults() override {
    std::error_code ignored;  // if this fails, the next test that needs the place reports it
    fs::remove_all(temporaryBitmap, ignored);
  }

  void StartWithoutTemporaryFolder() {
    tree_.MakeFile("a.ico", IconFileOf(red));
    WriteSetting("Folder", tree_.Path());
    {
      const NoTemporaryFolder nowhere;
      program_.Start();
    }
    Find();
  }

  // Chooses Save As Image and enters that name in the file dialog.
  void SaveAsImage(const std::string& path) const {
    constexpr int fileName = 0x47C;
    program_.Command(FrmFindIcon_MnuSaveAsBitmap);
    const Control dialog = program_.WaitForWindowWith(fileName);
    Control(GetDlgItem(dialog.Window(), fileName)).SetText(path);
    dialog.Post(WM_COMMAND, IDOK);
    EXPECT_TRUE(Eventually([&] { return IsWindow(dialog.Window()) == 0; }));
  }
};

TEST_F(TemporaryFolderFaults, AJpegIsSavedWithoutATemporaryFolder) {
  StartWithoutTemporaryFolder();
  SaveAsImage(In("a.jpg"));
  const Control options = program_.WaitForWindowWith(fSaveJPG_cmdFinish1);
  Control(GetDlgItem(options.Window(), fSaveJPG_cmdFinish1)).Press();
  EXPECT_TRUE(Eventually([&] { return support::ReadAll(In("a.jpg")).ends_with("\xFF\xD9"); }));
  EXPECT_TRUE(Eventually([] { return !fs::exists(temporaryBitmap); }));
  ExpectUsable();
}

TEST_F(TemporaryFolderFaults, AJpegWithNoPlaceAtAllForItsBitmapIsReported) {
  ASSERT_NE(CreateDirectoryW(temporaryBitmap, nullptr), 0);
  StartWithoutTemporaryFolder();
  SaveAsImage(In("a.jpg"));
  const Box box = program_.WaitForBox();
  EXPECT_EQ(box.Title(), "Brindle Tarvik - Error");
  EXPECT_EQ(box.Text(), "Failed to Save Icon As Bitmap.");
  box.Press(IDOK);
  EXPECT_FALSE(fs::exists(ToWide(In("a.jpg"))));
  EXPECT_TRUE(fs::is_directory(temporaryBitmap));
  ExpectUsable();
}

}  // namespace
}  // namespace tarvik::end_to_end
