// Every letter that the main window underlines, pressed with Alt: the menu of that letter opens. If no menu has the
// letter, or that menu is disabled, the control of that letter is used.

#include <windows.h>

#include <gmock/gmock.h>

#include <array>
#include <cwctype>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "driver/Input.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::IconFileOf;

enum class State { AtStart, AfterASearch, WithTheList, AfterASearchWithoutIcons };

struct Row {
  const char* language;
  State state;
  friend void PrintTo(const Row& row, std::ostream* out) {
    *out << row.language << ", " << static_cast<int>(row.state);
  }
};

// The letter after a "&", in upper case.
std::optional<wchar_t> LetterOf(const std::string& text) {
  const std::wstring wide = ToWide(text);
  const auto mark = wide.find(L'&');
  if (mark == std::wstring::npos || mark + 1 == wide.size()) return std::nullopt;
  return static_cast<wchar_t>(std::towupper(wide[mark + 1]));
}

class AccessKeys : public EndToEnd, public ::testing::WithParamInterface<Row> {
 protected:
  struct Letters {
    std::map<wchar_t, int> menus;     // the menus that can be opened, by their positions in the bar
    std::map<wchar_t, int> controls;  // those that can be used
  };

  void Prepare() {
    if (GetFileAttributesW(ToWide(In("a.ico")).c_str()) == INVALID_FILE_ATTRIBUTES)
      tree_.MakeFile("a.ico", IconFileOf(0xFF));
    Start();
    if (GetParam().state == State::AtStart) return;
    if (GetParam().state == State::AfterASearchWithoutIcons) {
      Tick({Ani});
      FindAndReadMessage();
      return;
    }
    Find();
    if (GetParam().state == State::WithTheList) program_.Item(FrmFindIcon_OptView1).Send(BM_CLICK);
  }

  Letters UnderlinedLetters() const {
    Letters letters;
    // A menu of another process cannot be read, so its letters are listed here.
    const std::wstring_view language = ToWide(GetParam().language) == L"CHS" || ToWide(GetParam().language) == L"CHT"
                                           ? std::wstring_view(L"FEPVH")
                                           : std::wstring_view(L"FEOVH");
    // After a search without icons File and Edit are disabled.
    const std::size_t first = GetParam().state == State::AfterASearchWithoutIcons ? 2 : 0;
    for (std::size_t position = first; position < language.size(); ++position)
      letters.menus[language[position]] = static_cast<int>(position);
    for (const Control control : ControlsWithATitle()) {
      if (const auto letter = LetterOf(control.Text()); letter && control.IsEnabled() && control.IsVisible())
        letters.controls[*letter] = GetDlgCtrlID(control.Window());
    }
    return letters;
  }

  // Buttons, boxes and labels of the main window.
  std::vector<Control> ControlsWithATitle() const {
    std::vector<Control> controls;
    for (HWND child = GetWindow(program_.Window().Window(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      std::array<wchar_t, 16> name{};
      GetClassNameW(child, name.data(), static_cast<int>(name.size()));
      const bool isLabel = std::wstring_view(name.data()) == L"Static";
      const bool underlines = !isLabel || (GetWindowLongW(child, GWL_STYLE) & SS_NOPREFIX) == 0;
      if (underlines && (isLabel || std::wstring_view(name.data()) == L"Button")) controls.emplace_back(child);
    }
    return controls;
  }

  void Press(wchar_t letter) const { PressKey(static_cast<WORD>(letter), {VK_MENU}); }

  void ExpectMenu(wchar_t letter, int position) {
    Press(letter);
    std::optional<Control> menu;
    ASSERT_TRUE(Eventually([&] { return (menu = program_.OpenMenu()).has_value(); })) << static_cast<char>(letter);
    lefts_[position] = menu->Bounds().left;
    PressKey(VK_ESCAPE, {}, 2);
    ASSERT_TRUE(Eventually([&] { return !program_.OpenMenu(); }));
  }

  std::map<int, LONG> lefts_;  // the left edge on the screen of each opened menu, by its position in the bar

  // What a control's letter does: a label's moves the focus to its box, a button's presses the button.
  void ExpectUse(int control) {
    if (control == FrmFindIcon_SkinLabel1) {
      EXPECT_TRUE(Eventually([&] { return GetDlgCtrlID(program_.Focus().Window()) == FrmFindIcon_txtMax; }));
    } else if (control == FrmFindIcon_CmdFind) {
      const Box box = program_.WaitForBox();  // of a search that finds nothing
      box.Press(IDOK);
      EXPECT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
    } else {
      ASSERT_TRUE(control == FrmFindIcon_CmdOk || control == FrmFindIcon_CmdClose) << "what does " << control << " do?";
      EXPECT_EQ(program_.WaitForEnd(), 0U);
    }
  }
};

TEST_P(AccessKeys, OpenTheirMenuOrUseTheirControl) {
  const LanguageValue language(GetParam().language);
  Prepare();
  const Letters letters = UnderlinedLetters();
  EXPECT_FALSE(letters.controls.empty());
  for (const auto& [letter, position] : letters.menus) ExpectMenu(letter, position);
  ASSERT_TRUE(program_.IsRunning());
  // Each opened below its own place of the bar.
  for (auto next = lefts_.begin(), former = next++; next != lefts_.end(); former = next++)
    EXPECT_LT(former->second, next->second);
  for (const auto& [letter, control] : letters.controls) {
    if (letters.menus.contains(letter)) continue;
    if (!program_.IsRunning()) Prepare();
    Press(letter);
    ExpectUse(control);
  }
}

INSTANTIATE_TEST_SUITE_P(LanguagesAndStates, AccessKeys,
                         ::testing::Values(Row{"ENG", State::AtStart}, Row{"ENG", State::AfterASearch},
                                           Row{"ENG", State::WithTheList}, Row{"ENG", State::AfterASearchWithoutIcons},
                                           Row{"CHS", State::AtStart}, Row{"CHS", State::AfterASearch},
                                           Row{"CHS", State::WithTheList}, Row{"CHS", State::AfterASearchWithoutIcons},
                                           Row{"CHT", State::AtStart}, Row{"CHT", State::AfterASearch},
                                           Row{"CHT", State::WithTheList}, Row{"CHT", State::AfterASearchWithoutIcons},
                                           Row{"none", State::AtStart}, Row{"none", State::AfterASearch}));

class AccessKeysInASearch : public EndToEnd, public ::testing::WithParamInterface<const char*> {};

TEST_P(AccessKeysInASearch, DoNothingToIt) {
  constexpr int folders = 60;
  const LanguageValue language(GetParam());
  for (int i = 0; i < folders; ++i) {
    const std::string folder = "folder" + std::to_string(100 + i);
    tree_.MakeFolder(folder);
    tree_.MakeFile(folder + "\\a.ico", IconFileOf(0xFF));
  }
  Start({}, true);
  program_.Item(FrmFindIcon_CmdFind).Press();
  ASSERT_TRUE(Eventually([&] { return !IsEnabled(FrmFindIcon_CmdClose); }));
  program_.Suspend();
  const bool running = !IsEnabled(FrmFindIcon_CmdFind);
  for (const WORD letter : {WORD{'F'}, WORD{'E'}, WORD{'C'}}) PressKey(letter, {VK_MENU});
  program_.Resume();
  ASSERT_TRUE(running) << "the search was over before it could be stopped";
  ASSERT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind) || !program_.IsRunning(); }));
  ASSERT_TRUE(program_.IsRunning());
  EXPECT_FALSE(program_.OpenMenu());
  EXPECT_EQ(List().RowCount(), folders);
}

INSTANTIATE_TEST_SUITE_P(Languages, AccessKeysInASearch, ::testing::Values("ENG", "CHS", "CHT"));

}  // namespace
}  // namespace tarvik::end_to_end
