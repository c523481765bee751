// The comparison of the windows with the model.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "driver/Screen.h"
#include "driver/Waiting.h"
#include "model/Compared.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

using model::Compared;

std::string FinishedProgram::Difference(bool picture) {
  std::string all = boxDifference_;
  boxDifference_.clear();
  all += Compared("title", model_.title, Title()) + Compared("status", model_.status, Status());
  all += Compared("label", model_.label, program_.Item(FrmFindIcon_lblInfo).Text());
  all += Compared("limit", model_.limitText, program_.Item(FrmFindIcon_txtMax).Text());
  all += Compared("label shown", model_.labelShown ? 1 : 0, program_.Item(FrmFindIcon_lblInfo).IsVisible() ? 1 : 0);
  all += Compared("list shown", model_.listShown ? 1 : 0, program_.Item(FrmFindIcon_Lv).IsVisible() ? 1 : 0);
  all += Compared("OK enabled", model_.okEnabled ? 1 : 0, IsEnabled(FrmFindIcon_CmdOk) ? 1 : 0);
  all += Compared("Find enabled", model_.findEnabled ? 1 : 0, IsEnabled(FrmFindIcon_CmdFind) ? 1 : 0);
  for (int i = 0; i < 7; ++i) {
    const bool ticked = program_.Item(FrmFindIcon_ChkFileType0 + i).IsChecked();
    all += Compared("type " + std::to_string(i), model_.types.at(static_cast<std::size_t>(i)) ? 1 : 0, ticked ? 1 : 0);
  }
  return all + FocusDifference() + DriveDifference() + ListsDifference() + RowsDifference() + GridDifference(picture);
}

// Windows counts the focus on an option button as a click on it, so only that of the shown view may have it.
std::string FinishedProgram::FocusDifference() const {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(program_.Window().Window(), nullptr), &thread);
  const int other = model_.listShown ? FrmFindIcon_OptView0 : FrmFindIcon_OptView1;
  return thread.hwndFocus == program_.Item(other).Window() ? "the other view's button has the focus\n" : "";
}

std::string FinishedProgram::DriveDifference() const {
  const Control list = program_.Item(FrmFindIcon_Drive1);
  const std::vector<std::string> texts = list.ComboItems();
  const int row = list.ComboChoice();
  const auto expected = std::ranges::find(drives, model_.drive, &model::Disk::Drive::root);
  return Compared("drive", expected->text, row < 0 ? "none" : texts.at(static_cast<std::size_t>(row)));
}

std::string FinishedProgram::ListsDifference() const {
  if (model_.listsAreStale) return {};
  const auto lines = [](const std::vector<std::string>& names) {
    std::string all;
    for (const std::string& name : names) all += name + "|";
    return all;
  };
  std::vector<std::string> folders;
  for (const std::string& path : model_.folderRows) folders.push_back(model::LastName(path));
  const Control shown = program_.Item(FrmFindIcon_Dir1);
  return Compared("files", lines(model_.files), lines(program_.Item(FrmFindIcon_File1).ListItems())) +
         Compared("folders", lines(folders), lines(shown.ListItems())) +
         Compared("chosen folder", model_.folderRow, shown.ListChoice());
}

std::string FinishedProgram::RowsDifference() const {
  const ReportView list(program_.Item(FrmFindIcon_Lv));
  const auto count = static_cast<int>(model_.entries.size());
  std::string all = Compared("rows", count, list.RowCount());
  if (!all.empty() || count == 0) return all;
  const auto selected = std::ranges::count_if(model_.entries, [](const model::Entry& entry) { return entry.selected; });
  all += Compared("selected rows", static_cast<int>(selected),
                  static_cast<int>(program_.Item(FrmFindIcon_Lv).Send(LVM_GETSELECTEDCOUNT)));
  for (const int row : {0, count / 2, count - 1, std::min(model_.current, count - 1)}) {
    const model::Entry& entry = model_.entries.at(static_cast<std::size_t>(row));
    const std::vector<std::string> cells = list.Row(row);
    all += Compared("row's number", std::to_string(row + 1), cells.at(0)) + Compared("path", entry.path, cells.at(1));
    all += Compared("index", std::to_string(entry.index), cells.at(2));
    all += Compared("row selected", entry.selected ? 1 : 0, list.IsSelected(row) ? 1 : 0);
  }
  return all;
}

std::string FinishedProgram::GridDifference(bool picture) const {
  const RECT frame = program_.Item(FrmFindIcon_PicFrame).Inside();
  const RECT grid = program_.Item(FrmFindIcon_PicIcons).Bounds();
  std::string all = Compared("scrolled", model_.grid.Scroll(), static_cast<int>(frame.top - grid.top)) +
                    Compared("grid's height", model_.grid.InnerHeight(), static_cast<int>(grid.bottom - grid.top));
  if (!all.empty() || !picture || model_.listShown) return all;
  std::string pixel;
  Eventually([&] { return (pixel = FrameDifference(frame)).empty(); });
  return pixel;
}

// Compares frames only: every pixel of the viewport that cannot belong to an icon.
std::string FinishedProgram::FrameDifference(const RECT& frame) const {
  const Screenshot shown(frame);
  const model::Picture& expected = model_.grid.Shown();
  const int height = std::min(model::viewportHeight, expected.height - model_.grid.Scroll());
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < model::gridWidth; ++x) {
      const model::Pixel color = expected.At(x, y + model_.grid.Scroll());
      if (IsOnIcon(x, y + model_.grid.Scroll()) || shown.Pixel(x, y) == color) continue;
      return "grid's pixel (" + std::to_string(x) + ", " + std::to_string(y) +
             ") of the viewport: " + std::to_string(shown.Pixel(x, y)) + " and not " + std::to_string(color) + "\n";
    }
  }
  return {};
}

bool FinishedProgram::IsOnIcon(int x, int y) const {
  const int pitch = model_.grid.LineStep() == 0 ? model_.Size().pitch : model_.grid.LineStep();
  if (pitch != model_.Size().pitch) return true;
  const int inX = x % pitch;
  const int inY = y % pitch;
  return inX >= 3 && inX < pitch - 3 && inY >= 3 && inY < pitch - 3;
}

std::string FinishedProgram::KeptDifference() const {
  const std::string file = ToUtf8(program_.SettingsFile().wstring());
  std::array<char, 1024> value{};
  GetPrivateProfileStringA("FindIcon", "Folder", "", value.data(), static_cast<DWORD>(value.size()), file.c_str());
  return Compared("kept folder", *model_.kept.folder, value.data());
}

}  // namespace tarvik::end_to_end
