#include "end_to_end/EndToEndTest.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <chrono>
#include <future>

#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

void CopyBuilt(const char* file, const std::string& target) {
  const std::filesystem::path source = BuiltFile(file);
  ASSERT_NE(CopyFileW(source.c_str(), ToWide(target).c_str(), TRUE), 0) << source << " to " << target;
}

}  // namespace

void EndToEnd::TearDown() {
  if (!program_.WasStarted()) return;
  if (!program_.IsRunning()) {
    EXPECT_EQ(program_.WaitForEnd(), 0U);
    return;
  }
  const auto box = program_.FindBox();
  ASSERT_FALSE(box) << "left open: " << box->Text();
  EXPECT_EQ(program_.Close(), 0U);
}

void EndToEnd::Start(const std::string& folder, bool subFolders) {
  WriteSetting("Folder", folder.empty() ? tree_.Path() : folder);
  WriteSetting("Subdir", subFolders ? "True" : "False");
  program_.Start();
}

void EndToEnd::WriteSetting(const std::string& key, const std::string& value, const char* section) const {
  const std::string file = ToUtf8(program_.SettingsFile().wstring());
  ASSERT_NE(WritePrivateProfileStringA(section, key.c_str(), value.c_str(), file.c_str()), 0);
}

std::string EndToEnd::ReadSetting(const std::string& key, const char* section) const {
  const std::string file = ToUtf8(program_.SettingsFile().wstring());
  std::string value(2048, '\0');
  value.resize(
      GetPrivateProfileStringA(section, key.c_str(), "", value.data(), static_cast<DWORD>(value.size()), file.c_str()));
  return value;
}

void EndToEnd::Tick(std::initializer_list<FileType> types) const {
  const auto set = [this](int type, bool ticked) {
    const Control box = program_.Item(FrmFindIcon_ChkFileType0 + type);
    if (box.IsChecked() != ticked) box.Send(BM_CLICK);
  };
  const auto wanted = [types](int type) { return std::ranges::find(types, type) != types.end(); };
  // The box for all files comes first: while it is ticked it ticks the others.
  for (int type = fileTypeCount - 1; type >= 0; --type) set(type, wanted(type));
}

Box EndToEnd::FindAndWaitForBox() const {
  program_.Item(FrmFindIcon_CmdFind).Press();
  return program_.WaitForBox();
}

void EndToEnd::BehindFind(const std::function<void()>& something) {
  const std::string before = Status();
  program_.Suspend();
  program_.Item(FrmFindIcon_CmdFind).Press();
  something();
  program_.Resume();
  ASSERT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind) && Status() != before; }));
}

void EndToEnd::BeforeItLists(const std::function<void()>& something) {
  program_.Suspend();
  program_.Item(FrmFindIcon_CmdFind).Press();
  program_.Window().Post(WM_SYSCOMMAND, SC_KEYMENU, ' ');
  program_.Resume();
  ASSERT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }));
  ASSERT_FALSE(IsEnabled(FrmFindIcon_CmdFind)) << "this menu is not the search's";
  something();
  program_.Window().Post(WM_CANCELMODE);
  ASSERT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
}

void EndToEnd::DuringSearch(const std::function<bool()>& isReached, const std::function<void()>& something) {
  ASSERT_TRUE(Eventually([&] {
    std::future<void> search = std::async(std::launch::async, [this] { Find(); });
    const auto isOver = [&] { return search.wait_for(std::chrono::seconds(0)) == std::future_status::ready; };
    Eventually([&] { return isOver() || isReached(); });
    program_.Suspend();
    const bool isStopped = !isOver() && !IsEnabled(FrmFindIcon_CmdFind);
    if (isStopped) something();
    program_.Resume();
    search.get();
    return isStopped;
  })) << "every search was over before it could be stopped";
}

std::string EndToEnd::FindAndReadMessage() const {
  const Box box = FindAndWaitForBox();
  std::string text = box.Text();
  box.Press(IDOK);
  EXPECT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
  return text;
}

std::vector<Entry> EndToEnd::Entries() const {
  std::vector<Entry> entries;
  const ReportView list = List();
  const int rows = list.RowCount();
  for (int row = 0; row < rows; ++row) {
    EXPECT_EQ(list.Cell(row, 0), std::to_string(row + 1));
    entries.push_back({.path = list.Cell(row, 1), .index = std::stoi(list.Cell(row, 2))});
  }
  return entries;
}

void DrawEntry(const Surface& picture, const Entry& entry, POINT corner, int size) {
  const bool animated = entry.path.ends_with(".ani");
  HICON icon = nullptr;
  if (animated) {
    // The shell does not extract animations on every system; loading the file at that size gives the same picture.
    icon = static_cast<HICON>(LoadImageA(nullptr, entry.path.c_str(), IMAGE_CURSOR, GetSystemMetrics(SM_CXICON),
                                         GetSystemMetrics(SM_CYICON), LR_LOADFROMFILE));
  } else {
    ExtractIconExA(entry.path.c_str(), entry.index, &icon, nullptr, 1);
  }
  const IconHandle owner(icon);
  ASSERT_TRUE(owner) << entry.path;
  const UINT step = animated ? static_cast<UINT>(entry.index) : 0;
  ASSERT_NE(DrawIconEx(picture.Dc(), corner.x, corner.y, icon, size, size, step, nullptr, DI_NORMAL), 0);
}

void CopyThreeIcons(const std::string& target) {
  CopyBuilt(TARVIK_ICONS_3, target);
}

void CopyHundredIcons(const std::string& target) {
  CopyBuilt(TARVIK_ICONS_100, target);
}

void CopyTwoThousandIcons(const std::string& target) {
  CopyBuilt(TARVIK_ICONS_2000, target);
}

}  // namespace tarvik::end_to_end
