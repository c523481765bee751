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
  // The picture left of its text.
  Control Sign() const;
  // Presses a button and waits until the box is gone.
  void Press(int button) const;

 private:
  Control window_;
};

// A file of this build, by its path relative to the test program's own folder.
std::filesystem::path BuiltFile(const char* relativePath);

// A copy of tarvik.exe that a test runs from a folder of its own, where its settings file is the test's too.
class Program : NonCopyable {
 public:
  // `folder` is where the copy lies, and must be there; `name` is the copy's file name. Both are UTF-8.
  explicit Program(const std::string& folder, const std::string& name = "tarvik.exe");
  // One more run of a copy that is there.
  explicit Program(std::filesystem::path copy);
  // Ends a program that still runs, by force.
  ~Program();

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path SettingsFile() const;

  // Starts the process alone. Its first window is the start-up window.
  void Launch();
  // The start-up window, or the same window as About box, once it is there.
  Control WaitForStartUpWindow() const;
  // Waits until the main window is up and brings it to the front.
  void WaitForMainWindow();
  // The visible top-level window that has a control with that id, once there is one.
  Control WaitForWindowWith(int id) const;
  // How many visible top-level windows the process has, and how many of them have a control with that id.
  int CountWindows() const;
  int CountWindowsWith(int id) const;
  // The part of the screen that holds all of them.
  RECT Extent() const;
  // Starts the program, has the start-up window go at once as it does by itself after some seconds, and waits for the
  // main window.
  void Start();
  // The same for a process that can make no file longer than so many bytes, a multiple of 512: what goes beyond fails
  // to be written, as on a full disk.
  void StartWithFilesUpTo(int bytes);
  // Whether it was ever started, and whether it runs.
  bool WasStarted() const { return static_cast<bool>(process_); }
  bool IsRunning() const;
  // The process, with all rights to it; owned by this object.
  HANDLE Process() const { return process_.get(); }
  // Waits until the process has ended; its exit code.
  DWORD WaitForEnd();
  // Asks the main window to close and waits for the end; the exit code.
  DWORD Close();
  // Stops the process where it is, and lets it go on: what is sent meanwhile has surely come during what it does now.
  void Suspend();
  void Resume();

  // The folder that the process stands in, with a backslash at its end.
  std::string CurrentFolder() const;

  // The main window; none before Start.
  Control Window() const { return window_; }
  // The control of the main window with that id. Throws std::runtime_error where there is none.
  Control Item(int id) const;
  // Gives a menu item's or button's command to the main window.
  void Command(int id) const { window_.Post(WM_COMMAND, static_cast<WPARAM>(id)); }
  // Makes the main window the one that the keyboard goes to.
  void BringToFront() const;
  // The control that has the keyboard.
  Control Focus() const;
  // The menu that is dropped down, if any.
  std::optional<Control> OpenMenu() const;

  // The message box that the program shows now, if any; or waits for one.
  std::optional<Box> FindBox() const;
  Box WaitForBox() const;

 private:
  void PassStartUpWindow();
  // Makes the process that runs the copy this object's own; whether there is one yet.
  bool Adopt();
  // The visible top-level windows of the process.
  std::vector<Control> TopWindows() const;

  std::filesystem::path path_;
  KernelHandle process_;
  KernelHandle job_;  // takes the process down with the test, however that ends
  DWORD processId_ = 0;
  DWORD threadId_ = 0;
  Control window_;
};

}  // namespace tarvik::end_to_end
