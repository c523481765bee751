#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "driver/Machine.h"
#include "driver/Program.h"
#include "driver/Waiting.h"
#include "platform/Surface.h"
#include "platform/TemporaryFolder.h"
#include "resource.h"

namespace tarvik::end_to_end {

// The seven file types, by the index of their check boxes.
enum FileType { Ico, Ani, Icl, Ocx, Dll, Exe, AllFiles };
inline constexpr int fileTypeCount = 7;

// The icon sizes, by their index in the list of sizes.
enum IconSizeChoice { Size16, Size32, Size48, Size64 };

// One entry of the icon list.
struct Entry {
  std::string path;
  int index;
  friend bool operator==(const Entry&, const Entry&) = default;
  friend void PrintTo(const Entry& entry, std::ostream* out) { *out << entry.path << " : " << entry.index; }
};

// A test that runs the program in a folder of its own, on a machine without a chosen language, and searches a folder of
// its own. At its end the program must close when asked. Its exit code must be 0, also if the test ended it earlier.
class EndToEnd : public ::testing::Test {
 protected:
  void TearDown() override;

  // A path in the searched folder, and files and folders made there.
  std::string In(std::string_view name) const { return tree_.In(name); }

  // Starts the program with `folder` as the saved one; if it is empty, with the searched folder.
  void Start(const std::string& folder = {}, bool subFolders = false);
  // Writes one of the program's settings, which it reads when it starts; reads one from the file.
  void WriteSetting(const std::string& key, const std::string& value, const char* section = "FindIcon") const;
  std::string ReadSetting(const std::string& key, const char* section = "FindIcon") const;

  // Ticks these boxes and no others.
  void Tick(std::initializer_list<FileType> types) const;
  void ChooseSize(IconSizeChoice size) const { program_.Item(FrmFindIcon_CboIconSize).ChooseComboItem(size); }
  void SetLimit(const std::string& limit) const { program_.Item(FrmFindIcon_txtMax).SetText(limit); }
  // Presses Find and waits until the search is over. The search must show no message.
  void Find() const { program_.Item(FrmFindIcon_CmdFind).Send(BM_CLICK); }
  // Presses Find and waits for the message that ends the search.
  Box FindAndWaitForBox() const;
  // Three ways to reach the middle of a search. Each waits until the search is over; no search may end in a message.
  //
  // Does `something` before the program handles the press of Find. The search processes what was posted or pressed when
  // it begins to list. The program cannot answer meanwhile.
  void BehindFind(const std::function<void()>& something);
  // Does `something` while the search waits with all icons counted and no icon listed: an open menu blocks it.
  void BeforeItLists(const std::function<void()>& something);
  // Does `something` while the program is suspended in its search, once `isReached` returns true. If the search was
  // over before that, it is repeated. The program cannot answer meanwhile.
  void DuringSearch(const std::function<bool()>& isReached, const std::function<void()>& something);
  // Does all that for a search that is refused or stopped. Returns the message's text; the box is closed and the search
  // over.
  std::string FindAndReadMessage() const;

  std::string Caption() const { return program_.Window().Text(); }
  std::string Status() const { return StatusText(program_.Item(FrmFindIcon_sbMain), 0); }
  std::string TextOf(int id) const { return program_.Item(id).Text(); }
  bool IsEnabled(int id) const { return program_.Item(id).IsEnabled(); }
  ReportView List() const { return ReportView(program_.Item(FrmFindIcon_Lv)); }
  // All entries of the icon list. The test fails if one is not numbered in order.
  std::vector<Entry> Entries() const;
  std::vector<std::string> FileNames() const { return program_.Item(FrmFindIcon_File1).ListItems(); }
  std::vector<std::string> FolderNames() const { return program_.Item(FrmFindIcon_Dir1).ListItems(); }

  support::TemporaryFolder home_;  // the program's folder
  support::TemporaryFolder tree_;  // the searched folder
  LanguageValue noLanguage_{std::nullopt};
  Program program_{home_.Path()};
};

// Draws an entry's icon as the platform does: extracted again from its file, at that size in pixels.
void DrawEntry(const Surface& picture, const Entry& entry, POINT corner, int size);

// Copies of the libraries of 3, 100 and 2,000 icons that the build makes.
void CopyThreeIcons(const std::string& target);
void CopyHundredIcons(const std::string& target);
void CopyTwoThousandIcons(const std::string& target);

}  // namespace tarvik::end_to_end
