#pragma once

#include <windows.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/NonCopyable.h"
#include "driver/Controls.h"
#include "platform/Handles.h"

namespace tarvik::end_to_end {

// A message box as the user sees it.
class Box {
 public:
  explicit Box(Control window) : window_(window) {}

  std::string Title() const { return window_.Text(); }
  std::string Text() const;
  // Ids of its buttons: IDOK, IDYES ...
  std::vector<int> Buttons() const;
  // The icon to the left of its text.
  Control Sign() const;
  // Presses a button and waits until the box has closed.
  void Press(int button) const;

 private:
  Control window_;
};

// A file of this build, by its path relative to the test program's own folder.
std::filesystem::path BuiltFile(const char* relativePath);

// A copy of tarvik.exe that a test runs from a folder of its own, so that the settings file is the test's own too.
class Program : NonCopyable {
 public:
  // `folder` is the folder of the copy and must exist; `name` is the copy's file name. Both are UTF-8.
  explicit Program(const std::string& folder, const std::string& name = "tarvik.exe");
  // Another run of an existing copy.
  explicit Program(std::filesystem::path copy);
  // Terminates the program if it still runs.
  ~Program();

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path SettingsFile() const;

  // Only starts the process. Its first window is the start-up window.
  void Launch();
  // Waits for the start-up window, or the same window as About box.
  Control WaitForStartUpWindow() const;
  // Waits for the main window and brings it to the foreground.
  void WaitForMainWindow();
  // Waits for a visible top-level window that has a control with that id.
  Control WaitForWindowWith(int id) const;
  // How many visible top-level windows the process has, and how many of them have a control with that id.
  int CountWindows() const;
  int CountWindowsWith(int id) const;
  // The bounding rectangle of all of them on the screen.
  RECT Extent() const;
  // Starts the program, closes the start-up window at once instead of after some seconds, and waits for the main
  // window.
  void Start();
  // The same for a process whose files are limited to so many bytes, a multiple of 512: writing more fails, as on a
  // full disk.
  void StartWithFilesUpTo(int bytes);
  // Whether it was ever started, and whether it runs.
  bool WasStarted() const { return static_cast<bool>(process_); }
  bool IsRunning() const;
  // The process handle with all access rights; owned by this object.
  HANDLE Process() const { return process_.get(); }
  // Waits until the process has ended; returns its exit code.
  DWORD WaitForEnd();
  // Asks the main window to close and waits for the end; returns the exit code.
  DWORD Close();
  // Suspends and resumes the process: messages sent in between are certain to arrive during its current work.
  void Suspend();
  void Resume();

  // The current folder of the process, with a trailing backslash.
  std::string CurrentFolder() const;

  // The main window; none before Start.
  Control Window() const { return window_; }
  // The control of the main window with that id. Throws std::runtime_error if there is none.
  Control Item(int id) const;
  // Sends a menu item's or button's command to the main window.
  void Command(int id) const { window_.Post(WM_COMMAND, static_cast<WPARAM>(id)); }
  // Brings the main window to the foreground, so that it receives keyboard input.
  void BringToFront() const;
  // The control that has the keyboard focus.
  Control Focus() const;
  // The menu that is open, if any.
  std::optional<Control> OpenMenu() const;

  // The tool tip that is visible, if any.
  std::optional<Control> ShownTip() const;

  // The message box that the program shows now, if any; or waits for one.
  std::optional<Box> FindBox() const;
  Box WaitForBox() const;

 private:
  void PassStartUpWindow();
  // Opens the process that runs the copy; returns whether there is one yet.
  bool Adopt();
  // The visible top-level windows of the process.
  std::vector<Control> TopWindows() const;

  std::filesystem::path path_;
  KernelHandle process_;
  KernelHandle job_;  // ends the process together with the test, however the test ends
  DWORD processId_ = 0;
  DWORD threadId_ = 0;
  Control window_;
};

}  // namespace tarvik::end_to_end
