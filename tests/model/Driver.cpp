// How the steps follow one another, also inside the message loops that the program runs itself.
#include "model/Driver.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <utility>

namespace tarvik::model {
namespace {

constexpr UINT tick = WM_APP + 1;
constexpr UINT_PTR watchTimer = 1;
constexpr UINT_PTR retryTimer = 2;
constexpr UINT watchPeriod = 1000;           // ms
constexpr UINT retryPeriod = 20;             // ms
constexpr UINT boxPeriod = 500;              // ms; a message box is noticed when it is activated
constexpr ULONGLONG patience = 30000;        // ms without any progress
constexpr ULONGLONG longestPainting = 1000;  // ms until wrong pixels count as wrong
constexpr int everythingEach = 16;           // steps between two complete comparisons

constexpr const char* firstFolder = "C:\\icons";
constexpr const wchar_t* className = L"TarvikModelDriver";

HWND awaitsBox = nullptr;  // the driver's window that gets a tick when a window is activated; null if none waits

// A message box activates itself when it is shown.
LRESULT CALLBACK OnWindowEvent(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_ACTIVATE && awaitsBox != nullptr) PostMessageW(std::exchange(awaitsBox, nullptr), tick, 0, 0);
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

Driver::Driver(Tongue tongue, std::vector<Action> actions)
    : model_(disk_, tongue), actions_(std::move(actions)), movedAt_(GetTickCount64()) {
  WNDCLASSW definition{};
  definition.lpfnWndProc = Procedure;
  definition.cbWndExtra = sizeof(LONG_PTR);
  definition.hInstance = GetModuleHandleW(nullptr);
  definition.lpszClassName = className;
  RegisterClassW(&definition);
  window_ = CreateWindowExW(0, className, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, definition.hInstance, nullptr);
  SetWindowLongPtrW(window_, 0, reinterpret_cast<LONG_PTR>(this));
  hook_ = SetWindowsHookExW(WH_CBT, OnWindowEvent, nullptr, GetCurrentThreadId());
  SetTimer(window_, watchTimer, watchPeriod, nullptr);
  SetCursorPos(0, 0);  // not over the grid, which would see it
  settings_["FindIcon/Folder"] = firstFolder;
  model_.kept.folder = firstFolder;
}

Driver::~Driver() {
  program_.reset();
  awaitsBox = nullptr;
  UnhookWindowsHookEx(hook_);
  DestroyWindow(window_);
  HoldKeys(false, false);
}

LRESULT CALLBACK Driver::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* driver = reinterpret_cast<Driver*>(GetWindowLongPtrW(window, 0));
  if (driver != nullptr && message == tick) driver->OnTick();
  if (driver != nullptr && message == WM_TIMER && wParam == watchTimer) driver->Watch();
  if (driver != nullptr && message == WM_TIMER && wParam == retryTimer) {
    KillTimer(window, retryTimer);
    driver->OnTick();
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

void Driver::PostTick() {
  PostMessageW(window_, tick, 0, 0);
}

void Driver::Watch() {
  if (isDone_ || GetTickCount64() - movedAt_ < patience) return;
  const HWND box = seen::MessageBoxInSight();
  Stop("nothing moves" + (box != nullptr ? ", and there is a box: " + seen::BoxText(box) : std::string()) + "\n");
}

void Driver::Stop(const std::string& difference) {
  difference_ = difference;
  isDone_ = true;
  EndMenu();
  program_->End();
  PostQuitMessage(0);  // ends the message loop of a box
}

std::string Driver::Run() {
  while (!isDone_) RunOnce();
  return difference_;
}

// From one start of the program to its end.
void Driver::RunOnce() {
  program_.reset();
  program_ = std::make_unique<RealProgram>(disk_, settings_, model_.Language());
  controls_.emplace(Main());
  seen::Forget();
  seen::DelayTips();
  model_.Start(RealProgram::ownFolder);
  PostTick();
  program_->Serve([this] { return isDone_ || !model_.IsRunning(); });
  if (isDone_) return;
  MSG message;
  while (PeekMessageW(&message, window_, tick, tick, PM_REMOVE)) continue;
  tickOwed_ = false;
  const std::string difference = Ended();
  if (!difference.empty()) Stop(difference);
  if (next_ == actions_.size()) isDone_ = true;
}

// Checks the state after the main window is gone.
std::string Driver::Ended() {
  std::string all;
  if (IsWindow(Main()) != FALSE) all += "the main window is still there\n";
  if (all.empty() && !program_->WouldEnd()) all += "the program does not end\n";
  const auto kept = [this](const char* key) {
    return settings_.contains(key) ? settings_.at(key) : std::string("none");
  };
  const auto expect = [&all](const char* what, const std::string& expected, const std::string& seen) {
    if (expected != seen) all += std::string(what) + ": \"" + seen + "\" and not \"" + expected + "\"\n";
  };
  expect("kept folder", *model_.kept.folder, kept("FindIcon/Folder"));
  expect("kept sub-folders", *model_.kept.subDir, kept("FindIcon/Subdir"));
  if (settings_.contains("Bitmapview/Width")) {
    constexpr int twipsOfPixel = 15;
    expect("kept width", std::to_string(model_.kept.viewWidth * twipsOfPixel), kept("Bitmapview/Width"));
    expect("kept height", std::to_string(model_.kept.viewHeight * twipsOfPixel), kept("Bitmapview/Height"));
  }
  expect("guides", std::to_string(model_.guides), std::to_string(program_->Guides()));
  expect("handed path", model_.handedPath, program_->HandedPath());
  expect("handed index", std::to_string(model_.handedIndex), std::to_string(program_->HandedIndex()));
  return all;
}

// Whether the program is idle: no messages are pending and nothing has to be painted. Input and timers have lower
// priority than posted messages, and these steps are posted. Under Wine the queue's state costs one request to the
// server, and looking at a message several.
bool Driver::IsSettled() {
  const auto waiting = [] { return HIWORD(GetQueueStatus(QS_POSTMESSAGE | QS_SENDMESSAGE | QS_PAINT)); };
  const WORD first = waiting();
  if ((first & QS_PAINT) != 0) seen::PaintAll();
  return first == 0 || (first == QS_PAINT && (waiting() & (QS_POSTMESSAGE | QS_SENDMESSAGE)) == 0);
}

void Driver::OnTick() {
  if (isDone_ || !model_.IsRunning()) return;
  // The program is still busy in the loop of a search or a batch.
  if (depth_ > model_.Depth()) {
    tickOwed_ = true;
    return;
  }
  const bool boxIsLate = model_.Foremost() == Front::Box && depth_ > 0 && seen::MessageBoxInSight() == nullptr;
  const bool menuIsLate = model_.Foremost() == Front::Menu && seen::MenuInSight() == nullptr;
  if (boxIsLate) awaitsBox = window_;
  if (boxIsLate || menuIsLate) {
    SetTimer(window_, retryTimer, boxIsLate ? boxPeriod : retryPeriod, nullptr);
    return;
  }
  if (!IsSettled()) {
    Watch();  // no timer is served as long as there are posted messages
    return PostTick();
  }
  movedAt_ = GetTickCount64();
  if (!rest_.empty()) {
    const std::function<void()> part = std::move(rest_.front());
    rest_.pop_front();
    return part();
  }
  Next();
}

void Driver::Next() {
  const bool isLast = next_ == actions_.size();
  const bool everything = isLast || stepsDone_ % everythingEach == 0;
  const std::string difference = ofStep_ + Difference(model_, *program_, *controls_, everything);
  if (AwaitPaint(difference)) return;
  if (!difference.empty()) return Stop(difference);
  model_.written.clear();
  program_->Files().written.clear();
  if (isLast) return Stop({});
  while (next_ < actions_.size()) {
    if (Do(actions_[next_++])) return;
  }
  PostTick();  // none was possible: ends
}

// A repaint may still be on its way when the windows seem painted. So wrong pixels are compared again, and fail if they
// stay wrong; how late the repaint was is printed.
bool Driver::AwaitPaint(const std::string& difference) {
  const ULONGLONG now = GetTickCount64();
  if (difference.find(wrongPixel) == std::string::npos) {
    if (wrongSince_ != 0) std::cout << "painted " << now - wrongSince_ << " ms late\n";
    wrongSince_ = 0;
    return false;
  }
  if (wrongSince_ == 0) wrongSince_ = now;
  if (now - wrongSince_ > longestPainting) return false;
  SetTimer(window_, retryTimer, retryPeriod, nullptr);
  return true;
}

void Driver::Perform(const std::function<void()>& act) {
  PostTick();
  ++depth_;
  act();
  --depth_;
  if (!tickOwed_) return;
  tickOwed_ = false;
  PostTick();
}

template <std::size_t count>
bool Driver::DoOneOf(const Choice (&choices)[count], const Action& action) {
  int total = 0;
  for (const Choice& choice : choices) total += choice.weight;
  int rest = action.what % total;
  const Choice* chosen = std::begin(choices);
  while (rest >= chosen->weight) rest -= (chosen++)->weight;
  log_.push_back(chosen->name);
  if (std::getenv("TARVIK_MODEL_TALK") != nullptr) std::cerr << log_.size() << "  " << chosen->name << "\n";
  const std::size_t line = log_.size() - 1;
  ++stepsDone_;
  if ((this->*chosen->act)(action)) return true;
  --stepsDone_;
  log_[line] += " (cannot be done now)";
  return false;
}

bool Driver::Do(const Action& action) {
  static constexpr Choice main[] = {
      {10, "Find", &Driver::FindByButton},
      {2, "Find by menu", &Driver::FindByMenu},
      {2, "Find by Enter", &Driver::FindByEnter},
      {2, "Find with clicks waiting", &Driver::FindWithClicksWaiting},
      {30, "Click the grid", &Driver::ClickGrid},
      {5, "Double-click the grid", &Driver::DoubleClickGrid},
      {8, "Scroll", &Driver::Scroll},
      {3, "Scroll by a key", &Driver::ScrollByKey},
      {6, "Turn the wheel", &Driver::TurnWheel},
      {4, "Rest on the grid", &Driver::HoverGrid},
      {4, "Tick a file type", &Driver::TickType},
      {3, "Tick sub-folders", &Driver::TickSubDir},
      {4, "Choose a size", &Driver::ChooseSize},
      {4, "Type a limit", &Driver::TypeLimit},
      {3, "Press the spinner", &Driver::Spin},
      {7, "Open a folder", &Driver::OpenFolder},
      {3, "Click a folder", &Driver::ClickFolder},
      {2, "Choose a drive", &Driver::ChooseDrive},
      {3, "Drop files", &Driver::Drop},
      {6, "Switch grid and list", &Driver::SwitchView},
      {10, "Click the list", &Driver::ClickList},
      {2, "Double-click the list", &Driver::DoubleClickList},
      {1, "Select all rows", &Driver::SelectAll},
      {6, "Open a row's menu", &Driver::OpenRowMenu},
      {4, "Press a shortcut", &Driver::PressShortcut},
      {3, "Invert the selection", &Driver::Invert},
      {3, "Change the labels", &Driver::Labels},
      {4, "Save one", &Driver::SaveOne},
      {3, "Save many", &Driver::SaveMany},
      {2, "Copy", &Driver::CopyIcon},
      {2, "Open the About box", &Driver::OpenAbout},
      {1, "Open the guide", &Driver::OpenGuide},
      {4, "Resize the window", &Driver::ResizeMain},
      {6, "Change the disk", &Driver::ChangeDisk},
      {2, "Change the theme or colours", &Driver::ChangeTheme},
      {1, "Close", &Driver::Close},
  };
  static constexpr Choice menu[] = {{8, "End the menu", &Driver::EndRowMenu},
                                    {1, "Close the main window below the menu", &Driver::CloseMainBelow}};
  static constexpr Choice box[] = {{30, "Answer the box", &Driver::AnswerBox},
                                   {1, "Drop a file below the box", &Driver::DropBelow},
                                   {1, "Close the main window below the box", &Driver::CloseMainBelow}};
  static constexpr Choice view[] = {{20, "Step", &Driver::StepView},
                                    {8, "Slide show", &Driver::ShowInView},
                                    {8, "Zoom", &Driver::ZoomView},
                                    {3, "Resize the view", &Driver::ResizeView},
                                    {3, "Change the disk", &Driver::ChangeDisk},
                                    {10, "Close the view", &Driver::CloseView},
                                    {1, "Drop a file below the view", &Driver::DropBelow},
                                    {1, "Close the main window below the view", &Driver::CloseMainBelow}};
  static constexpr Choice hotSpot[] = {{4, "Pick a hot spot", &Driver::PickHotSpot},
                                       {8, "End the hot-spot picker", &Driver::EndHotSpot},
                                       {1, "Drop a file below the picker", &Driver::DropBelow},
                                       {1, "Close the main window below the picker", &Driver::CloseMainBelow}};
  static constexpr Choice chooser[] = {{10, "Open a folder in the chooser", &Driver::OpenChooserRow},
                                       {4, "Choose a drive in the chooser", &Driver::ChooseChooserDrive},
                                       {8, "Choose a type", &Driver::ChooseChooserType},
                                       {4, "Open the dialog for a new folder", &Driver::OpenNewFolder},
                                       {16, "End the chooser", &Driver::EndChooser},
                                       {1, "Drop a file below the chooser", &Driver::DropBelow},
                                       {1, "Close the main window below the chooser", &Driver::CloseMainBelow}};
  static constexpr Choice newFolder[] = {{4, "Name the folder", &Driver::NameFolder},
                                         {8, "End the dialog for a new folder", &Driver::EndNewFolder},
                                         {1, "Close the main window below the dialog", &Driver::CloseMainBelow}};
  static constexpr Choice options[] = {{12, "End the options", &Driver::EndOptions},
                                       {1, "Close the main window below the options", &Driver::CloseMainBelow}};
  static constexpr Choice about[] = {{8, "Close the About box", &Driver::EndAbout},
                                     {1, "Close the main window below the About box", &Driver::CloseMainBelow}};
  switch (model_.Foremost()) {
    case Front::Main:
      return DoOneOf(main, action);
    case Front::Menu:
      return DoOneOf(menu, action);
    case Front::Box:
      return DoOneOf(box, action);
    case Front::View:
      return DoOneOf(view, action);
    case Front::HotSpot:
      return DoOneOf(hotSpot, action);
    case Front::Chooser:
      return DoOneOf(chooser, action);
    case Front::NewFolder:
      return DoOneOf(newFolder, action);
    case Front::JpegOptions:
    case Front::GifOptions:
      return DoOneOf(options, action);
    case Front::About:
      return DoOneOf(about, action);
  }
  return false;
}

}  // namespace tarvik::model
