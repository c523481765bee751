#pragma once

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "driver/Dialogs.h"
#include "driver/EnhancedView.h"
#include "driver/Input.h"
#include "driver/Screen.h"
#include "driver/Waiting.h"
#include "end_to_end/EndToEndTest.h"
#include "model/Action.h"
#include "model/Compared.h"
#include "model/Model.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

using model::Action;
using model::Compared;
using model::Front;
using model::Kind;
using model::Model;
using model::Scope;

inline constexpr int pictureEach = 40;  // steps between two pictures of the screen

// The program over folders of its own, step by step.
class FinishedProgram {
 public:
  explicit FinishedProgram(std::vector<Action> actions) : actions_(std::move(actions)) {
    for (const char* name : {"deep", "deep\\deeper", "many", "out"}) {
      disk_.AddFolder(tree_.MakeFolder(name));
    }
    Put("", 0);
    Put("deep", 1);
    Put("deep\\deeper", 2);
    Put("many", 4);
    model_.kept.folder = tree_.Path();
    const std::string settings = ToUtf8(program_.SettingsFile().wstring());
    WritePrivateProfileStringA("FindIcon", "Folder", tree_.Path().c_str(), settings.c_str());
  }

  // The first difference; empty if there is none.
  std::string Run() {
    MovePointer({0, 0});
    Start();
    for (std::size_t step = 0; step <= actions_.size(); ++step) {
      const bool picture = step % pictureEach == pictureEach - 1 || step == actions_.size();
      const std::string difference = Difference(picture);
      if (!difference.empty()) return difference;
      if (step < actions_.size()) Do(actions_[step]);
    }
    model_.CloseMain();
    if (program_.Close() != 0) return "the program ends with a failure\n";
    return KeptDifference();
  }
  const std::vector<std::string>& Log() const { return log_; }
  int StepsDone() const { return stepsDone_; }

 private:
  struct Choice {
    int weight;
    const char* name;
    void (FinishedProgram::*act)(const Action& action);
  };

  void Do(const Action& action) {
    static constexpr Choice choices[] = {
        {10, "Find", &FinishedProgram::Find},
        {20, "Click", &FinishedProgram::Click},
        {8, "Scroll", &FinishedProgram::Scroll},
        {5, "Tick a type", &FinishedProgram::Tick},
        {3, "Sub-folders", &FinishedProgram::SubDir},
        {4, "Size", &FinishedProgram::Size},
        {4, "Limit", &FinishedProgram::Limit},
        {3, "Spinner", &FinishedProgram::Spin},
        {6, "Open a folder", &FinishedProgram::Open},
        {3, "Grid or list", &FinishedProgram::Switch},
        {3, "Invert", &FinishedProgram::Invert},
        {3, "Labels", &FinishedProgram::Labels},
        {5, "View", &FinishedProgram::View},
        {3, "Save many", &FinishedProgram::Save},
        {6, "Change a file", &FinishedProgram::Change},
        {1, "Copy", &FinishedProgram::Copy},
        {1, "Start again", &FinishedProgram::StartAgain},
    };
    int total = 0;
    for (const Choice& choice : choices) total += choice.weight;
    int rest = action.what % total;
    const Choice* chosen = choices;
    while (rest >= chosen->weight) rest -= (chosen++)->weight;
    log_.emplace_back(chosen->name);
    ++stepsDone_;
    (this->*chosen->act)(action);
  }
  void Note(const std::string& detail) { log_.back() += ": " + detail; }
  // The action is not possible now.
  void Skip() {
    log_.back() += " (cannot be done now)";
    --stepsDone_;
  }

  // --- actions
  void Start() {
    program_.Start();
    model_.Start(ToUtf8(program_.Path().parent_path().wstring()));
  }
  void StartAgain(const Action& /*action*/) {
    model_.CloseMain();
    program_.Close();
    Start();
  }
  void Find(const Action& /*action*/) {
    model_.Find();
    const Control find = program_.Item(FrmFindIcon_CmdFind);
    // Sent, so that the search is over then: the windows can look as if it were before it begins.
    if (model_.Foremost() != Front::Box) return static_cast<void>(find.Send(BM_CLICK));
    find.Press();
    const Box box = program_.WaitForBox();
    boxDifference_ = box.Title() == model_.box.title ? "" : "box's title: " + box.Title() + "\n";
    model_.AnswerBox();
    box.Press(IDOK);
    Eventually([this] { return IsEnabled(FrmFindIcon_CmdFind); });
  }
  void Click(const Action& action) {
    if (model_.listShown) return Skip();
    const int count = std::max(1, static_cast<int>(model_.entries.size()));
    const int index = action.a % count;
    const model::Geometry& size = model_.Size();
    const int x = action.c % 3 == 0 ? action.a % model::gridWidth : index % size.columns * size.pitch + 5;
    const int y = action.c % 3 == 0 ? action.b % model::viewportHeight : index / size.columns * size.pitch + 5;
    const bool ctrl = action.b % 2 == 1;
    Note("(" + std::to_string(x) + ", " + std::to_string(y) + ")" + (ctrl ? " Ctrl" : ""));
    model_.ClickGrid(x, y, ctrl);
    const Control grid = program_.Item(FrmFindIcon_PicIcons);
    const WPARAM keys = ctrl ? MK_CONTROL : 0U;
    grid.Send(WM_LBUTTONDOWN, keys | MK_LBUTTON, MAKELPARAM(x, y));
    grid.Send(WM_LBUTTONUP, keys, MAKELPARAM(x, y));
  }
  void Scroll(const Action& action) {
    if (model_.listShown || !model_.grid.Scrolls()) return Skip();
    static constexpr int requests[] = {SB_LINEDOWN, SB_LINEUP, SB_PAGEDOWN, SB_PAGEUP, SB_BOTTOM, SB_TOP};
    const int way = action.a % 6;
    const int line = model_.grid.LineStep();
    const int whole = model_.grid.InnerHeight();
    const int steps[] = {line, -line, model::viewportHeight, -model::viewportHeight, whole, -whole};
    model_.grid.ScrollBy(steps[way]);
    Note("to " + std::to_string(model_.grid.Scroll()));
    SendScroll(requests[way], FrmFindIcon_Vsb);
  }
  void Tick(const Action& action) {
    const int box = action.a % 7;
    Note(std::to_string(box));
    model_.TickType(box);
    program_.Item(FrmFindIcon_ChkFileType0 + box).Send(BM_CLICK);
  }
  void SubDir(const Action& /*action*/) {
    model_.TickSubDir();
    program_.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
  }
  void Size(const Action& action) {
    Note(std::to_string(action.a % 4));
    model_.ChooseSize(action.a % 4);
    program_.Item(FrmFindIcon_CboIconSize).ChooseComboItem(action.a % 4);
  }
  void Limit(const Action& action) {
    const auto& text = model::limitTexts.at(static_cast<std::size_t>(action.a) % model::limitTexts.size());
    Note(text.text);
    model_.TypeLimit(text);
    program_.Item(FrmFindIcon_txtMax).SetText(text.text);
  }
  void Spin(const Action& action) {
    model_.Spin(action.a % 2 == 0);
    SendScroll(action.a % 2 == 0 ? SB_LINEUP : SB_LINEDOWN, FrmFindIcon_udMain);
  }
  // A folder that the test made.
  void Open(const Action& action) {
    const auto first = static_cast<int>(model::Chain(tree_.Path()).size()) - 1;
    const int row = first + action.a % (static_cast<int>(model_.folderRows.size()) - first);
    Note(model_.folderRows.at(static_cast<std::size_t>(row)));
    model_.OpenFolderRow(row);
    program_.Item(FrmFindIcon_Dir1).Send(LB_SETCURSEL, static_cast<WPARAM>(row));
    const Control list = program_.Item(FrmFindIcon_Dir1);
    program_.Window().Send(WM_COMMAND, MAKEWPARAM(FrmFindIcon_Dir1, LBN_DBLCLK),
                           reinterpret_cast<LPARAM>(list.Window()));
  }
  void Switch(const Action& action) {
    const bool list = action.a % 2 == 1;
    Note(list ? "list" : "grid");
    model_.ShowList(list);
    SendCommand(list ? FrmFindIcon_mnuViewopt1 : FrmFindIcon_mnuViewopt0);
  }
  void Invert(const Action& /*action*/) {
    if (model_.entries.empty()) return Skip();
    model_.Invert();
    SendCommand(FrmFindIcon_mnuRem);
  }
  void Labels(const Action& action) {
    const int which = action.a % 3;
    if (which == 0) model_.ToggleLabel();
    if (which != 0) model_.NumberByFile(which == 2);
    SendCommand(FrmFindIcon_mnuShowLabel + (which == 0 ? 0 : which + 1));
  }
  void View(const Action& action) {
    if (model_.entries.empty() || model_.listShown) return Skip();
    model_.OpenView();
    program_.Item(FrmFindIcon_PicIcons).Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    const EnhancedView view(program_);
    program_.Item(FrmFindIcon_PicIcons).Post(WM_NULL);
    static constexpr int buttons[] = {frmBit_tlb_control_MoveNext, frmBit_tlb_control_MovePrev,
                                      frmBit_tlb_control_MoveFirst, frmBit_tlb_control_MoveLast};
    for (const int way : {action.a % 4, action.b % 4, action.c % 4}) {
      if (way < 2) model_.Step(way == 0 ? 1 : -1);
      if (way == 2) model_.First();
      if (way == 3) model_.Last();
      view.Press(buttons[way]);
    }
    model_.Zoom(action.c % 10);
    view.ChooseFactor(action.c % 10 + 1);
    if (view.Caption() != model_.view.title) boxDifference_ += "view's title: " + view.Caption() + "\n";
    if (view.Status() != model_.view.status) boxDifference_ += "view's status: " + view.Status() + "\n";
    model_.CloseView();
    view.Close();
    Eventually([this] { return program_.Window().IsEnabled(); });
  }
  void Save(const Action& action) {
    const auto selected =
        std::ranges::count_if(model_.entries, [](const model::Entry& entry) { return entry.selected; });
    if (selected == 0 || selected > 5) return Skip();
    model_.SaveMany(action.a % 2 == 0 ? Kind::Icon : Kind::Cursor, Scope::Selected);
    program_.Command(action.a % 2 == 0 ? FrmFindIcon_mnuSaveSel : FrmFindIcon_mnuSaveSel3);
    const FolderChooser chooser(program_);
    if (chooser.Path() != model_.folder) boxDifference_ += "chooser's folder: " + chooser.Path() + "\n";
    const bool ok = action.b % 3 != 0;
    Note(ok ? "OK" : "Cancel");
    model_.EndChooser(ok);
    if (ok) {
      chooser.Ok();
    } else {
      chooser.Cancel();
    }
    for (const auto& [path, file] : model_.written) {
      const bool isThere = Eventually([&] { return !support::ReadAll(path).empty(); });
      if (!isThere) boxDifference_ += "not written: " + path + "\n";
      // The next search finds as many icons in it as the shell does: in some saved files none.
      const auto slash = path.rfind('\\');
      const UINT icons = ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0);
      disk_.Put(path.substr(0, slash), path.substr(slash + 1), static_cast<int>(icons));
    }
    // The status looks like this before the first file is written, too.
    Eventually([this] { return program_.Window().IsEnabled() && Status() == model_.status; });
    if (!model_.written.empty()) model_.listsAreStale = true;
    model_.written.clear();
  }
  void Copy(const Action& /*action*/) {
    if (model_.entries.empty()) return Skip();
    SendCommand(FrmFindIcon_mnuCopy);
  }
  void Change(const Action& action) {
    static constexpr const char* folders[] = {"", "deep", "deep\\deeper", "many"};
    Put(folders[action.a % 4], action.b % 6);
    model_.listsAreStale = true;
  }

  void Put(const std::string& folder, int kind) {
    static constexpr const char* names[] = {"a.ico", "b.dll", "c.ico", "d.ocx", "e.dll", "f.exe"};
    static constexpr int icons[] = {1, 3, 1, 3, 100, 3};
    const std::string name = names[kind];
    const std::string path = model::Joined(folder.empty() ? tree_.Path() : tree_.In(folder), name);
    if (log_.size() > 0) Note(path);
    if (disk_.Find(path)) {
      disk_.Remove(model::Above(path), name);
      DeleteFileW(ToWide(path).c_str());
      return;
    }
    disk_.Put(model::Above(path), name, icons[kind]);
    if (icons[kind] == 100) return CopyHundredIcons(path);
    if (icons[kind] == 3) return CopyThreeIcons(path);
    tree_.MakeFile(model::Joined(folder, name).substr(folder.empty() ? 1 : 0), support::IconFileOf(0x20C040));
  }

  void SendCommand(int id) { program_.Window().Send(WM_COMMAND, static_cast<WPARAM>(id)); }
  void SendScroll(int request, int bar) {
    program_.Window().Send(WM_VSCROLL, static_cast<WPARAM>(request),
                           reinterpret_cast<LPARAM>(program_.Item(bar).Window()));
  }

  // --- what the windows show
  std::string Title() const { return program_.Window().Text(); }
  std::string Status() const { return StatusText(program_.Item(FrmFindIcon_sbMain), 0); }
  bool IsEnabled(int id) const { return program_.Item(id).IsEnabled(); }

  std::string Difference(bool picture) {
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
      all +=
          Compared("type " + std::to_string(i), model_.types.at(static_cast<std::size_t>(i)) ? 1 : 0, ticked ? 1 : 0);
    }
    if (!model_.listsAreStale) {
      std::string files;
      for (const std::string& name : model_.files) files += name + "|";
      std::string shown;
      for (const std::string& name : program_.Item(FrmFindIcon_File1).ListItems()) shown += name + "|";
      all += Compared("files", files, shown);
    }
    return all + RowsDifference() + GridDifference(picture);
  }

  std::string RowsDifference() const {
    const ReportView list(program_.Item(FrmFindIcon_Lv));
    const auto count = static_cast<int>(model_.entries.size());
    std::string all = Compared("rows", count, list.RowCount());
    if (!all.empty() || count == 0) return all;
    const auto selected =
        std::ranges::count_if(model_.entries, [](const model::Entry& entry) { return entry.selected; });
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

  std::string GridDifference(bool picture) const {
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
  std::string FrameDifference(const RECT& frame) const {
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
  bool IsOnIcon(int x, int y) const {
    const int pitch = model_.grid.LineStep() == 0 ? model_.Size().pitch : model_.grid.LineStep();
    if (pitch != model_.Size().pitch) return true;
    const int inX = x % pitch;
    const int inY = y % pitch;
    return inX >= 3 && inX < pitch - 3 && inY >= 3 && inY < pitch - 3;
  }

  std::string KeptDifference() const {
    const std::string file = ToUtf8(program_.SettingsFile().wstring());
    std::array<char, 1024> value{};
    GetPrivateProfileStringA("FindIcon", "Folder", "", value.data(), static_cast<DWORD>(value.size()), file.c_str());
    return Compared("kept folder", *model_.kept.folder, value.data());
  }

  support::TemporaryFolder home_;
  support::TemporaryFolder tree_;
  LanguageValue noLanguage_{std::nullopt};
  Program program_{home_.Path()};
  model::Disk disk_{tree_.Path()};
  Model model_{disk_, model::Tongue::English};
  std::vector<Action> actions_;
  std::vector<std::string> log_;
  int stepsDone_ = 0;
  std::string boxDifference_;  // of a window that is closed by the time of the comparison
};

}  // namespace tarvik::end_to_end
