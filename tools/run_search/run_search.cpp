// Makes the real program search a folder; used by ./run if there is no display:
//   run_search.exe HOME [FOLDER]
// The program is copied to HOME and run from there. It searches FOLDER (by default the system folder) and its
// sub-folders for icons in .ico, .dll and .exe files, at 32 x 32 and, if there are too many, at 16 x 16. The results
// are printed, and pictures of its window are saved in HOME: grid.png and list.png, or refused.png if it lists nothing.

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <future>
#include <optional>
#include <stdexcept>
#include <string>

#include "driver/Controls.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/UnixProgram.h"
#include "driver/Waiting.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "resource.h"
#include "search/icons/FilePattern.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds pollInterval{50};

// An icon size and its highest limit.
struct Scale {
  int item;
  const char* name;
  const char* limit;
};
constexpr std::array scales{Scale{.item = 1, .name = "32 x 32", .limit = "2400"},
                            Scale{.item = 0, .name = "16 x 16", .limit = "4000"}};

void WriteSettings(const Program& program, const std::string& folder) {
  const std::string file = ToUtf8(program.SettingsFile().wstring());
  const auto write = [&file](const char* key, const char* value) {
    if (WritePrivateProfileStringA("FindIcon", key, value, file.c_str()) == 0)
      throw std::runtime_error("the settings cannot be written to " + file);
  };
  write("Folder", folder.c_str());
  write("Subdir", "True");
}

void TickFileTypes(const Program& program) {
  constexpr std::array wanted{FrmFindIcon_ChkFileType0, FrmFindIcon_ChkFileType4, FrmFindIcon_ChkFileType5};
  for (const SearchedType& type : searchedTypes) {
    const Control box = program.Item(type.checkBox);
    if (box.IsChecked() != (std::ranges::find(wanted, type.checkBox) != wanted.end())) box.Send(BM_CLICK);
  }
}

// Saves that part of the screen after it has stopped changing: windows are drawn a little later than requested.
void SavePicture(const RECT& bounds, const fs::path& file) {
  Screenshot before(bounds);
  const bool rests = Eventually([&] {
    Sleep(static_cast<DWORD>(pollInterval.count()));
    Screenshot now(bounds);
    const bool same = CountDifferences(before, now) == 0;
    before = std::move(now);
    return same;
  });
  if (!rests) throw std::runtime_error("the window does not come to rest");
  const std::string area = std::to_string(bounds.right - bounds.left) + "x" +
                           std::to_string(bounds.bottom - bounds.top) + "+" + std::to_string(bounds.left) + "+" +
                           std::to_string(bounds.top);
  const UnixAnswer answer = RunUnix("import -silent -window root -crop " + area + " +repage " + QuoteForUnix(file));
  if (answer.exitCode != 0) throw std::runtime_error("no picture of the window: " + answer.output);
}

// Presses Find and waits for the end of the search, however long it takes. Returns the program's message if it lists
// nothing.
std::optional<std::string> Search(const Program& program, const Scale& scale, const fs::path& picture) {
  const Control limit = program.Item(FrmFindIcon_txtMax);
  // The choice of a size sets that size's own limit, with a delay.
  limit.SetText("");
  program.Item(FrmFindIcon_CboIconSize).ChooseComboItem(scale.item);
  if (!Eventually([&] { return !limit.Text().empty(); })) throw std::runtime_error("the size is not taken");
  limit.SetText(scale.limit);
  const HWND find = program.Item(FrmFindIcon_CmdFind).Window();
  const auto search = std::async(std::launch::async, [find] { SendMessageW(find, BM_CLICK, 0, 0); });
  std::optional<std::string> message;
  while (search.wait_for(pollInterval) != std::future_status::ready) {
    if (const auto box = program.FindBox()) {
      message = box->Text();
      SavePicture(program.Window().Bounds(), picture);
      box->Press(IDOK);
    }
  }
  if (!program.IsRunning()) throw std::runtime_error("the program ended during the search");
  return message;
}

// Saves the enhanced view of the current icon after a search.
void SaveEnhancedView(const Program& program, const fs::path& picture) {
  program.Item(FrmFindIcon_PicIcons).Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(1, 1));
  const Control view = program.WaitForWindowWith(frmBit_img);
  SavePicture(view.Bounds(), picture);
  view.Post(WM_CLOSE);
  if (!Eventually([&] { return IsWindow(view.Window()) == 0; })) throw std::runtime_error("the enhanced view stays");
}

void SaveViews(const Program& program, const fs::path& home) {
  SavePicture(program.Window().Bounds(), home / L"grid.png");
  SaveEnhancedView(program, home / L"view.png");
  program.Item(FrmFindIcon_OptView1).Send(BM_CLICK);
  SavePicture(program.Window().Bounds(), home / L"list.png");
}

void Run(const std::string& home, const std::string& folder) {
  // If the folder did not exist, the program would search its own.
  if (!fs::is_directory(ToWide(folder))) throw std::runtime_error("there is no folder " + folder);
  const fs::path homePath = ToWide(home);
  Program program(home);
  WriteSettings(program, folder);
  program.Start();
  TickFileTypes(program);
  std::printf("The program searches %s\n", folder.c_str());
  for (const Scale& scale : scales) {
    const auto message = Search(program, scale, homePath / L"refused.png");
    if (!message) {
      SaveViews(program, homePath);
      const int count = ReportView(program.Item(FrmFindIcon_Lv)).RowCount();
      std::printf("It found %d icons (at %s; the limit was %s)\n", count, scale.name, scale.limit);
      break;
    }
    std::printf("At %s, with the limit %s, it answered:\n%s\n", scale.name, scale.limit, message->c_str());
    // Another size can help only if there were too many icons.
    if (!message->starts_with("Found ")) break;
  }
  std::fflush(stdout);
  if (program.Close() != 0) throw std::runtime_error("the program did not end well");
}

}  // namespace
}  // namespace tarvik::end_to_end

int main(int count, char** arguments) {
  if (count != 2 && count != 3) {
    std::fputs("usage: run_search.exe HOME [FOLDER]\n", stderr);
    return 2;
  }
  // A shell reads this, so lines end with "\n" alone.
  _setmode(_fileno(stdout), _O_BINARY);
  try {
    tarvik::end_to_end::Run(arguments[1], count == 3 ? arguments[2] : tarvik::SystemFolder());
    return 0;
  } catch (const std::exception& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "error: %s\n", error.what());
    return 1;
  }
}
