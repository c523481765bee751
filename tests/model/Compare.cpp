// The main window compared with the model.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "model/Driver.h"
#include "model/Seen.h"
#include "resource.h"

namespace tarvik::model {
namespace {

constexpr int rowsLookedAt = 3;

class Differences {
 public:
  void Expect(const std::string& what, const std::string& expected, const std::string& seen) {
    if (expected != seen) found_ += what + ": \"" + seen + "\" and not \"" + expected + "\"\n";
  }
  void Expect(const std::string& what, int expected, int seen) {
    if (expected != seen) Expect(what, std::to_string(expected), std::to_string(seen));
  }
  void Expect(const std::string& what, bool expected, bool seen) {
    if (expected != seen) Expect(what, std::string(expected ? "yes" : "no"), std::string(seen ? "yes" : "no"));
  }
  void Add(const std::string& text) { found_ += text; }
  const std::string& Found() const { return found_; }

 private:
  std::string found_;
};

void CompareTexts(Differences& all, const Model& model, const seen::Controls& at) {
  all.Expect("title", model.title, seen::Text(at.Window()));
  all.Expect("status", model.status, seen::Status(at.Of(FrmFindIcon_sbMain)));
  all.Expect("label", model.label, seen::Text(at.Of(FrmFindIcon_lblInfo)));
  all.Expect("label shown", model.labelShown, seen::IsShown(at.Of(FrmFindIcon_lblInfo)));
  all.Expect("limit", model.limitText, seen::Text(at.Of(FrmFindIcon_txtMax)));
}

void CompareOptions(Differences& all, const Model& model, const seen::Controls& at) {
  for (int i = 0; i < 7; ++i) {
    const bool ticked = seen::IsTicked(at.Of(FrmFindIcon_ChkFileType0 + i));
    all.Expect("file type " + std::to_string(i), model.types.at(static_cast<std::size_t>(i)), ticked);
  }
  all.Expect("sub-folders", model.subDir, seen::IsTicked(at.Of(FrmFindIcon_chkSubDir)));
  const int sizeRow = static_cast<int>(seen::Ask(at.Of(FrmFindIcon_CboIconSize), CB_GETCURSEL));
  all.Expect("size", model.sizeRow, sizeRow);
  const auto drive = std::ranges::find(Disk::Drives(), model.drive, &Disk::Drive::root);
  all.Expect("drive", drive->text, seen::ChosenComboRow(at.Of(FrmFindIcon_Drive1)));
}

void CompareLists(Differences& all, const Model& model, const seen::Controls& at) {
  if (model.listsAreStale || model.isSearching) return;
  std::string folders;
  for (const std::string& path : model.folderRows) folders += LastName(path) + "|";
  std::string shownFolders;
  for (const std::string& row : seen::ListRows(at.Of(FrmFindIcon_Dir1))) shownFolders += row + "|";
  all.Expect("folders", folders, shownFolders);
  all.Expect("chosen folder", model.folderRow, static_cast<int>(seen::Ask(at.Of(FrmFindIcon_Dir1), LB_GETCURSEL)));
  std::string files;
  for (const std::string& name : model.files) files += name + "|";
  std::string shownFiles;
  for (const std::string& row : seen::ListRows(at.Of(FrmFindIcon_File1))) shownFiles += row + "|";
  all.Expect("files", files, shownFiles);
}

void CompareEnabled(Differences& all, const Model& model, const seen::Controls& at) {
  const auto isEnabled = [&at](int id) { return IsWindowEnabled(at.Of(id)) != FALSE; };
  all.Expect("Find enabled", model.findEnabled, isEnabled(FrmFindIcon_CmdFind));
  all.Expect("OK enabled", model.okEnabled, isEnabled(FrmFindIcon_CmdOk));
  all.Expect("Close enabled", model.closeEnabled, isEnabled(FrmFindIcon_CmdClose));
  all.Expect("File enabled", model.fileEnabled, seen::IsBarMenuEnabled(at.Window(), 0));
  all.Expect("Edit enabled", model.editEnabled, seen::IsBarMenuEnabled(at.Window(), 1));
  for (const int id : {FrmFindIcon_mnuSaveAs, FrmFindIcon_MnuSaveAsBitmap, FrmFindIcon_MnuSaveAsCursor,
                       FrmFindIcon_mnuSaveSel, FrmFindIcon_mnuSaveAll, FrmFindIcon_mnuSaveSel2, FrmFindIcon_mnuSaveAll2,
                       FrmFindIcon_mnuSaveSel3, FrmFindIcon_mnuSaveAll3, FrmFindIcon_mnuCopy, FrmFindIcon_mnuRem})
    all.Expect("menu item " + std::to_string(id) + " enabled", !model.entries.empty(),
               seen::IsMenuEnabled(at.Window(), id));
  const bool isFree = model.Depth() == 0 || model.Foremost() == Front::Menu;
  all.Expect("window enabled", isFree, IsWindowEnabled(at.Window()) != FALSE);
}

void CompareView(Differences& all, const Model& model, const seen::Controls& at) {
  const HWND frame = at.Of(FrmFindIcon_PicFrame);
  all.Expect("grid shown", !model.listShown, seen::IsShown(frame));
  all.Expect("bar shown", !model.listShown, seen::IsShown(at.Of(FrmFindIcon_Vsb)));
  all.Expect("list shown", model.listShown, seen::IsShown(at.Of(FrmFindIcon_Lv)));
  for (int i = 0; i < 2; ++i) {
    const bool chosen = (i == 1) == model.listShown;
    all.Expect("view button", chosen, seen::IsTicked(at.Of(FrmFindIcon_OptView0 + i)));
    all.Expect("view item", chosen, seen::IsMenuChecked(at.Window(), FrmFindIcon_mnuViewopt0 + i));
    all.Expect("numbering", (i == 1) == model.byFile, seen::IsMenuChecked(at.Window(), FrmFindIcon_mnuIL1 + i));
  }
  // Windows counts the focus on an option button as a click on it.
  for (int i = 0; i < 2; ++i) {
    const bool hasFocus = GetFocus() == at.Of(FrmFindIcon_OptView0 + i);
    if (hasFocus) all.Expect("list's button has the focus", model.listShown, i == 1);
  }
  all.Expect("label item", model.labelShown, seen::IsMenuChecked(at.Window(), FrmFindIcon_mnuShowLabel));
}

// Compares every pixel of the grid that the viewport shows.
void CompareGrid(Differences& all, const Model& model, const seen::Controls& at) {
  const HWND frame = at.Of(FrmFindIcon_PicFrame);
  const HWND picture = at.Of(FrmFindIcon_PicIcons);
  if (model.tip) all.Expect("tip", *model.tip, seen::TipOf(picture));
  const HWND bar = at.Of(FrmFindIcon_Vsb);
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_POS;
  GetScrollInfo(bar, SB_CTL, &info);
  all.Expect("scroll bar", model.grid.Scroll(), info.nPos);
  all.Expect("bar enabled", model.grid.Scrolls(), IsWindowEnabled(bar) != FALSE);
  RECT bounds{};
  GetWindowRect(picture, &bounds);
  MapWindowPoints(nullptr, frame, reinterpret_cast<POINT*>(&bounds), 2);
  all.Expect("picture's top", -model.grid.Scroll(), static_cast<int>(bounds.top));
  all.Expect("picture's height", model.grid.InnerHeight(), static_cast<int>(bounds.bottom - bounds.top));
  if (model.listShown) return;

  const int height = std::min(viewportHeight, model.grid.InnerHeight() - model.grid.Scroll());
  const Picture& shown = seen::Pixels(frame, gridWidth, height);
  const Picture& expected = model.grid.Shown();
  const auto width = static_cast<std::ptrdiff_t>(gridWidth);
  const auto from = expected.pixels.begin() + model.grid.Scroll() * width;
  const auto differs = std::mismatch(shown.pixels.begin(), shown.pixels.end(), from);
  if (differs.first == shown.pixels.end()) return;
  const auto wrong = differs.first - shown.pixels.begin();
  all.Add(std::string(wrongPixel) + " (" + std::to_string(wrong % width) + ", " + std::to_string(wrong / width) +
          " of the viewport): " + std::to_string(*differs.first) + " and not " + std::to_string(*differs.second) +
          "\n");
}

struct Look {
  bool bold;
  COLORREF color;
};

// How the list draws a row: the attributes that it is given before it draws.
Look LookOfRow(const seen::Controls& at, int row) {
  static const HDC dc = CreateCompatibleDC(nullptr);
  const HWND list = at.Of(FrmFindIcon_Lv);
  SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
  NMLVCUSTOMDRAW draw{};
  draw.nmcd.hdr = {list, static_cast<UINT_PTR>(FrmFindIcon_Lv), static_cast<UINT>(NM_CUSTOMDRAW)};
  draw.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
  draw.nmcd.hdc = dc;
  draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
  SendMessageW(at.Window(), WM_NOTIFY, static_cast<WPARAM>(FrmFindIcon_Lv), reinterpret_cast<LPARAM>(&draw));
  LOGFONTW font{};
  GetObjectW(GetCurrentObject(dc, OBJ_FONT), sizeof font, &font);
  // The font is the window's, and goes with it.
  SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
  return {font.lfWeight >= FW_BOLD, draw.clrText};
}

void CompareRow(Differences& all, const Model& model, const seen::Controls& at, int row) {
  const HWND list = at.Of(FrmFindIcon_Lv);
  const Entry& entry = model.entries.at(static_cast<std::size_t>(row));
  const std::string name = "row " + std::to_string(row + 1);
  all.Expect(name, std::to_string(row + 1), seen::Cell(list, row, 0));
  all.Expect(name, entry.path, seen::Cell(list, row, 1));
  all.Expect(name, std::to_string(entry.index), seen::Cell(list, row, 2));
  const Look look = LookOfRow(at, row);
  all.Expect(name + " bold", entry.selected, look.bold);
  all.Expect(name + " colour", entry.selected ? 255 : 0, static_cast<int>(look.color));
}

void CompareRows(Differences& all, const Model& model, const seen::Controls& at, bool everything) {
  const HWND list = at.Of(FrmFindIcon_Lv);
  const int count = static_cast<int>(model.entries.size());
  const int rows = static_cast<int>(seen::Ask(list, LVM_GETITEMCOUNT));
  all.Expect("rows", count, rows);
  static const std::string headers[] = {"序号", "文件路径", "图标索引", ""};
  for (int column = 0; column < 4; ++column)
    all.Expect("header", model.hasColumns ? headers[column] : std::string(), seen::Header(list, column));
  if (rows != count) return;
  // The control finds the next selected row faster than it answers for each of them.
  const auto nextSelected = [list](int row) {
    return static_cast<int>(seen::Ask(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED));
  };
  int selected = nextSelected(-1);
  for (int row = 0; row < count; ++row) {
    if (model.entries[static_cast<std::size_t>(row)].selected != (row == selected))
      all.Expect("row " + std::to_string(row + 1) + " selected", row != selected, row == selected);
    if (row == selected) selected = nextSelected(row);
  }
  if (count == 0) return;
  const int step = everything ? 1 : std::max(1, count / rowsLookedAt);
  for (int row = 0; row < count; row += step) CompareRow(all, model, at, row);
  CompareRow(all, model, at, std::min(model.current, count - 1));
}

}  // namespace

std::string MainDifference(const Model& model, const seen::Controls& at, bool everything) {
  Differences all;
  CompareTexts(all, model, at);
  CompareOptions(all, model, at);
  CompareLists(all, model, at);
  CompareEnabled(all, model, at);
  CompareView(all, model, at);
  CompareGrid(all, model, at);
  CompareRows(all, model, at, everything);
  return all.Found() + LayoutDifference(model, at);
}

}  // namespace tarvik::model
