// Texts passed to the system functions whose names end in A, in a code page other than UTF-8.

#include "platform/CodePage.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdlib>
#include <string>

#include "base/RuntimeError.h"
#include "code_page/Names.h"
#include "export/FileDialog.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/IconFiles.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "search/icons/ShellIcons.h"
#include "startup/IniFile.h"

namespace tarvik {
namespace {

using support::Names;
using support::TemporaryFolder;

constexpr int nameId = 0x47c;  // in the system's dialogs

TEST(CodePage, IsTheOneThatTheTestWasStartedFor) {
  const char* wanted = std::getenv("TARVIK_CODE_PAGE");
  ASSERT_NE(wanted, nullptr);
  EXPECT_EQ(std::to_string(GetACP()), wanted);
}

TEST(CodePage, TakesWhatItHoldsAndGivesItBack) {
  EXPECT_EQ(ToCodePage("a " + Names().held), "a " + Names().heldBytes);
  EXPECT_EQ(FromCodePage("a " + Names().heldBytes), "a " + Names().held);
  EXPECT_EQ(ToCodePage(""), "");
  EXPECT_EQ(FromCodePage(""), "");
}

TEST(CodePage, RefusesWhatItLacksAndReplacesItForReadersAlone) {
  EXPECT_EQ(ToCodePage(Names().unheld), std::nullopt);
  EXPECT_EQ(ToCodePage("é"), GetACP() == 936 ? std::optional<std::string>("\xA8\xA6") : std::nullopt);
  EXPECT_EQ(ToCodePage("😀"), std::nullopt);
  EXPECT_EQ(ToReadableCodePage(Names().unheld + ".ico"), "??.ico");
}

class CodePageShellIcons : public ::testing::Test {
 protected:
  // How many icons each function finds in a file.
  static std::array<std::size_t, 3> Found(const std::string& path) {
    ShellIcons icons;
    return {static_cast<std::size_t>(icons.CountIcons(path)), icons.Extract(path, 0) != nullptr ? 1U : 0U,
            icons.ExtractGroup(path, 0, 1).size()};
  }
  static std::array<std::size_t, 3> FoundInEach() { return {1, 1, 1}; }

  TemporaryFolder folder;
};

TEST_F(CodePageShellIcons, AreFoundUnderEveryNameThatItHolds) {
  folder.MakeFolder(Names().held);
  const std::string path = folder.MakeFile(Names().held + "\\" + Names().held + ".ico", support::IconFileOf(0xFF));
  EXPECT_TRUE(ShellIcons().Takes(path));
  EXPECT_EQ(Found(path), FoundInEach());
}

// The system loads these by another function.
TEST_F(CodePageShellIcons, AreFoundInAnimationsToo) {
  const Color colors[] = {0x0000FF, 0x00FF00};
  const std::string path = folder.MakeFile(Names().held + ".ani", support::AnimationFile(colors));
  const auto icon = ShellIcons().Extract(path, 0);
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(icon->StepBound(), 2);
}

TEST_F(CodePageShellIcons, AreNoneUnderAnotherName) {
  for (const char* ending : {".ico", ".ani"}) {
    const std::string path = folder.MakeFile(Names().unheld + ending, support::IconFileOf(0xFF));
    EXPECT_FALSE(ShellIcons().Takes(path));
    EXPECT_EQ(Found(path), (std::array<std::size_t, 3>{})) << ending;
  }
}

TEST(CodePageIniFile, KeepsWhatItHolds) {
  const TemporaryFolder folder;
  const std::string file = folder.In(Names().held + ".dat");
  IniFile ini;
  EXPECT_NE(ini.Write("FindIcon", "Folder", "C:\\" + Names().held, file), 0);
  EXPECT_EQ(ini.Read("FindIcon", "Folder", "", 2048, file), "C:\\" + Names().held);
  EXPECT_NE(support::ReadAll(file).find("C:\\" + Names().heldBytes), std::string::npos);
  EXPECT_EQ(ini.Read("FindIcon", "none", Names().held, 2048, file), Names().held);
  EXPECT_NE(ini.DeleteKey("FindIcon", "Folder", file), 0);
  EXPECT_EQ(ini.Read("FindIcon", "Folder", "gone", 2048, file), "gone");
}

TEST(CodePageIniFile, LeavesAsItWasWhatItCannotHold) {
  const TemporaryFolder folder;
  IniFile ini;
  const std::string file = folder.In("a.dat");
  EXPECT_NE(ini.Write("FindIcon", "Folder", "C:\\former", file), 0);
  EXPECT_EQ(ini.Write("FindIcon", "Folder", Names().unheld, file), 0);
  EXPECT_EQ(ini.Read("FindIcon", "Folder", "", 2048, file), "C:\\former");
  const std::string unheld = folder.In(Names().unheld + ".dat");
  EXPECT_EQ(ini.Write("FindIcon", "Folder", "C:\\", unheld), 0);
  EXPECT_EQ(ini.DeleteSection("FindIcon", unheld), 0);
  EXPECT_EQ(ini.Read("FindIcon", "Folder", Names().unheld, 2048, unheld), Names().unheld);
}

TEST(CodePagePaths, AreUtf8) {
  const TemporaryFolder folder;
  const std::wstring temporary = ToWide(folder.MakeFolder(Names().held));
  std::array<wchar_t, MAX_PATH> former{};
  GetEnvironmentVariableW(L"TMP", former.data(), static_cast<DWORD>(former.size()));
  SetEnvironmentVariableW(L"TMP", temporary.c_str());
  EXPECT_EQ(TempFolder(), folder.In(Names().held) + "\\");
  SetEnvironmentVariableW(L"TMP", former.data());
}

class CodePageFileDialog : public ::testing::Test {
 protected:
  std::string Save(const std::string& name) {
    driver.On(nameId, [this, name](HWND dialog) {
      title = support::TextOf(dialog);
      SetDlgItemTextW(dialog, nameId, ToWide(folder.In(name)).c_str());
      support::Command(dialog, IDOK);
    });
    return AskForFileToSave(nullptr, saveAsMode, GetACP() == 950 ? "CHT" : "CHS");
  }

  TemporaryFolder folder;
  support::ModalDriver driver;
  std::string title;
};

TEST_F(CodePageFileDialog, GivesANameThatItHolds) {
  EXPECT_EQ(Save(Names().held + ".ico"), folder.In(Names().held + ".ico"));
  EXPECT_EQ(title, GetACP() == 950 ? "Brindle Tarvik - 另存為" : "Brindle Tarvik - 另存为");
}

TEST_F(CodePageFileDialog, GivesNoOtherName) {
  try {
    Save(Names().unheld + ".ico");
    FAIL();
  } catch (const UnheldNameError& error) {
    EXPECT_EQ(error.Detail(), folder.In("??.ico"));
  }
}

}  // namespace
}  // namespace tarvik
