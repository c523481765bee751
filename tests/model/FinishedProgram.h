#pragma once

#include <windows.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "driver/Dialogs.h"
#include "driver/EnhancedView.h"
#include "end_to_end/EndToEndTest.h"
#include "model/Action.h"
#include "model/Model.h"

namespace tarvik::end_to_end {

using model::Action;
using model::Model;

inline constexpr int pictureEach = 40;  // steps between two pictures of the screen
inline constexpr int folderCount = 5;   // in which files come and go

// The drives that the test makes, and that of its folders.
inline constexpr const char* stickRoot = "R:\\";
inline const std::array<model::Disk::Drive, 3> drives{
    {{stickRoot, "r: [stick]"}, {"Q:\\", "q:", false}, {"C:\\", "c:"}}};

// The program over folders of its own, step by step.
class FinishedProgram {
 public:
  explicit FinishedProgram(std::vector<Action> actions);

  // The first difference; empty if there is none.
  std::string Run();
  const std::vector<std::string>& Log() const { return log_; }
  int StepsDone() const { return stepsDone_; }

 private:
  struct Choice {
    int weight;
    const char* name;
    void (FinishedProgram::*act)(const Action& action);
  };

  void Do(const Action& action);
  void Note(const std::string& detail) { log_.back() += ": " + detail; }
  // The action is not possible now.
  void Skip() {
    log_.back() += " (cannot be done now)";
    --stepsDone_;
  }
  void Start();
  // Closes the program by one of the ways of the user.
  void CloseBy(int way);
  // Waits until the program has handled all that was posted so far.
  void WaitForPosted() const;
  // Compares the message box that the model shows, and closes it.
  void PassBox();
  void Tell(const std::string& difference) { boxDifference_ += difference; }

  // --- actions
  void StartAgain(const Action& action);
  void Change(const Action& action);
  void About(const Action& action);
  void Guide(const Action& action);

  // On the options, and the search.
  void Find(const Action& action);
  void Tick(const Action& action);
  void SubDir(const Action& action);
  void Size(const Action& action);
  void Limit(const Action& action);
  void Spin(const Action& action);
  void Open(const Action& action);
  void ClickFolder(const Action& action);
  void ChooseDrive(const Action& action);
  void Drop(const Action& action);

  // On the grid, the list and the enhanced view.
  void Click(const Action& action);
  void Scroll(const Action& action);
  // By a line, a page or to an end; returns which of the six ways: line down, line up, page down, page up, end, start.
  int ScrollModel(const Action& action);
  void TurnWheel(const Action& action);
  void ScrollByKey(const Action& action);
  void ClickList(const Action& action);
  void SelectAll(const Action& action);
  void Switch(const Action& action);
  void Invert(const Action& action);
  void Labels(const Action& action);
  void View(const Action& action);
  void Copy(const Action& action);

  void LookAround(const EnhancedView& view, const Action& action);
  void RunShow(const EnhancedView& view);
  void CompareView(const EnhancedView& view);
  // One of the rows of the folders that the test made.
  int FolderRow(int number) const;

  // Saving.
  void SaveOne(const Action& action);
  void SaveMany(const Action& action);
  void PickHotSpot(const Dialog& dialog, const Action& action);
  void EndOptions(bool jpeg, bool ok);
  void WaitForWritten() const;
  // Compares what was written with the icons of those rows, and adds it to the model's disk.
  void CompareWritten(const std::vector<int>& rows);
  model::Capture Captured(int row) const;

  // One of the folders in which files come and go.
  std::string Folder(int number) const;
  // A file that comes or goes.
  void Put(const std::string& folder, int kind);

  void SendCommand(int id) { program_.Window().Send(WM_COMMAND, static_cast<WPARAM>(id)); }
  void SendScroll(int request, int bar) {
    program_.Window().Send(WM_VSCROLL, static_cast<WPARAM>(request),
                           reinterpret_cast<LPARAM>(program_.Item(bar).Window()));
  }

  // --- what the windows show
  std::string Title() const { return program_.Window().Text(); }
  std::string Status() const { return StatusText(program_.Item(FrmFindIcon_sbMain), 0); }
  bool IsEnabled(int id) const { return program_.Item(id).IsEnabled(); }

  std::string Difference(bool picture);
  std::string FocusDifference() const;
  std::string DriveDifference() const;
  std::string ListsDifference() const;
  std::string RowsDifference() const;
  std::string GridDifference(bool picture) const;
  std::string FrameDifference(const RECT& frame) const;
  bool IsOnIcon(int x, int y) const;
  std::string KeptDifference() const;

  support::TemporaryFolder home_;
  support::TemporaryFolder tree_;
  support::TemporaryFolder stick_;
  ExtraDrive stickDrive_{stick_.Path(), "stick"};
  EmptyDrive reader_;
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
