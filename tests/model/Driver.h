#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/NonCopyable.h"
#include "model/Action.h"
#include "model/Disk.h"
#include "model/Model.h"
#include "model/RealProgram.h"
#include "model/Seen.h"
#include "resource.h"

namespace tarvik::model {

// Performs the steps of a sequence on the real windows, one after the other, also while a modal window or a message
// loop keeps the program busy. Compares the windows with the model before each step and at the end.
class Driver : NonCopyable {
 public:
  Driver(Tongue tongue, std::vector<Action> actions);
  ~Driver();

  // The first difference; empty if there is none.
  std::string Run();
  // The steps performed, one per line. If TARVIK_MODEL_TALK is set, each is also printed as it is performed.
  const std::vector<std::string>& Log() const { return log_; }
  // How many of them were possible at their moment.
  int StepsDone() const { return stepsDone_; }

 private:
  // A possible action. `act` returns false if the action is not possible at that moment.
  struct Choice {
    int weight;
    const char* name;
    bool (Driver::*act)(const Action& action);
  };
  template <std::size_t count>
  bool DoOneOf(const Choice (&choices)[count], const Action& action);

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void OnTick();
  void Watch();
  void PostTick();
  void Stop(const std::string& difference);
  void RunOnce();
  std::string Ended();
  bool IsSettled();
  void Next();
  // Whether the pixels of the grid differ and may still be painted: then they are compared again soon.
  bool AwaitPaint(const std::string& difference);
  // Returns whether the action was possible.
  bool Do(const Action& action);
  // Runs an action that may open a modal loop. The next steps are performed inside that loop.
  void Perform(const std::function<void()>& act);
  void Note(const std::string& detail) { log_.back() += ": " + detail; }

  // Actions in the main window.
  bool FindByButton(const Action& action);
  bool FindByMenu(const Action& action);
  bool FindByEnter(const Action& action);
  bool FindWithClicksWaiting(const Action& action);
  bool ClickGrid(const Action& action);
  bool DoubleClickGrid(const Action& action);
  bool Scroll(const Action& action);
  bool TurnWheel(const Action& action);
  bool TickType(const Action& action);
  bool TickSubDir(const Action& action);
  bool ChooseSize(const Action& action);
  bool TypeLimit(const Action& action);
  bool Spin(const Action& action);
  bool OpenFolder(const Action& action);
  bool ChooseDrive(const Action& action);
  bool SwitchView(const Action& action);
  bool ClickList(const Action& action);
  bool DoubleClickList(const Action& action);
  bool SelectAll(const Action& action);
  bool Invert(const Action& action);
  bool Labels(const Action& action);
  bool SaveOne(const Action& action);
  bool SaveMany(const Action& action);
  bool OpenAbout(const Action& action);
  bool OpenGuide(const Action& action);
  bool ChangeDisk(const Action& action);
  bool Close(const Action& action);
  bool ResizeMain(const Action& action);
  bool ChangeTheme(const Action& action);
  bool ClickFolder(const Action& action);
  bool Drop(const Action& action);
  bool PressShortcut(const Action& action);
  bool CopyIcon(const Action& action);
  bool HoverGrid(const Action& action);
  bool ScrollByKey(const Action& action);
  bool OpenRowMenu(const Action& action);

  // Actions in the windows over it.
  bool AnswerBox(const Action& action);
  bool CloseMainBelow(const Action& action);
  bool DropBelow(const Action& action);
  bool EndRowMenu(const Action& action);
  bool StepView(const Action& action);
  bool ShowInView(const Action& action);
  bool ZoomView(const Action& action);
  bool ResizeView(const Action& action);
  bool CloseView(const Action& action);
  bool PickHotSpot(const Action& action);
  bool EndHotSpot(const Action& action);
  bool OpenChooserRow(const Action& action);
  bool ChooseChooserDrive(const Action& action);
  bool ChooseChooserType(const Action& action);
  bool OpenNewFolder(const Action& action);
  bool EndChooser(const Action& action);
  bool NameFolder(const Action& action);
  bool EndNewFolder(const Action& action);
  bool EndOptions(const Action& action);
  bool EndAbout(const Action& action);

  void Find(const std::function<void()>& press);
  // Serves a key as if it came from the keyboard to that control of the main window.
  void ServeKey(HWND control, WPARAM key, bool ctrl = false);
  void DropOnMain(const std::vector<std::string>& paths) const;
  void ExpectOnClipboard(const Picture& expected);
  void ExpectOnClipboard(const std::string& expected);
  // Changes of the disk, without the program's knowledge.
  void ChangeFiles(const std::string& folder, const Action& action);
  void ChangeFolders(const std::string& above, const Action& action);
  void AddFile(const std::string& folder, const std::string& name);
  void MakeNews(const Action& action);
  // Clicks this row of the folder list; of a larger number, the remainder counts.
  void ClickFolderRow(int number);
  // Moves the pointer to that point of the grid.
  void RestOn(POINT point) const;
  void Command(HWND window, int id, int code = 0) const;
  HWND Main() const { return program_->Main(); }
  HWND Item(int id) const { return controls_->Of(id); }
  HWND Grid() const { return Item(FrmFindIcon_PicIcons); }
  void CloseAsked(int way);
  POINT PointOnGrid(const Action& action) const;
  // Reports these keys as held until the next call.
  static void HoldKeys(bool ctrl, bool shift, bool leftButton = false);

  Disk disk_;
  Model model_;
  std::map<std::string, std::string> settings_;
  std::unique_ptr<RealProgram> program_;
  std::optional<seen::Controls> controls_;  // of the main window
  std::vector<Action> actions_;
  std::size_t next_ = 0;
  int stepsDone_ = 0;
  std::deque<std::function<void()>> rest_;  // parts of a step that run between the program's own messages
  HWND window_ = nullptr;
  HHOOK hook_ = nullptr;
  int depth_ = 0;  // how many calls of Perform are nested
  bool tickOwed_ = false;
  bool isDone_ = false;
  ULONGLONG movedAt_ = 0;
  ULONGLONG wrongSince_ = 0;  // when pixels of the grid were first wrong; 0 if they are right
  std::string difference_;
  std::string ofStep_;  // a difference that a step found itself
  std::vector<std::string> log_;
};

// How a difference of the grid's pixels begins.
inline constexpr const char* wrongPixel = "grid pixel";

// The differences between the model and the windows; empty if there are none. `everything` includes the expensive
// comparisons.
std::string Difference(const Model& model, RealProgram& program, const seen::Controls& controls, bool everything);
std::string MainDifference(const Model& model, const seen::Controls& at, bool everything);
std::string LayoutDifference(const Model& model, const seen::Controls& at);
std::string DialogDifference(const Model& model);

}  // namespace tarvik::model
