#pragma once

#include <string>
#include <vector>

#include "driver/Program.h"

namespace tarvik::end_to_end {

// A dialog over the main window.
class Dialog {
 public:
  // Waits until the program shows a window with a control of that id.
  Dialog(const Program& program, int id) : window_(program.WaitForWindowWith(id)) {}

  Control Window() const { return window_; }
  Control Item(int id) const { return window_.Child(id); }
  std::string TextOf(int id) const { return Item(id).Text(); }
  std::string Title() const { return window_.Text(); }
  bool IsOpen() const { return window_.IsVisible(); }

  // Presses a button without waiting for the effect.
  void Press(int button) const { window_.Post(WM_COMMAND, static_cast<WPARAM>(button)); }
  // Waits until the dialog is gone; throws std::runtime_error if it stays.
  void WaitForEnd() const;
  // Ends the dialog by a button, or by its close box.
  void End(int button) const;
  void EndByCloseBox() const;

 private:
  Control window_;
};

// The program's dialog that asks for a folder.
class FolderChooser : public Dialog {
 public:
  // Waits until the program shows it.
  explicit FolderChooser(const Program& program);

  // The current folder, as shown by the label.
  std::string Path() const;
  // Opens a folder in the list, an ancestor or a sub-folder, by its name there.
  void Open(const std::string& name) const;
  std::vector<std::string> Folders() const;
  void ChooseDrive(char letter) const;

  bool OffersTypes() const;
  std::vector<std::string> Types() const;
  void ChooseType(int index) const;

  // Ends the dialog by its OK button.
  void Ok() const;
  void Cancel() const;
};

// The program's dialog that makes a folder.
class NewFolderDialog : public Dialog {
 public:
  // Opens it over the chooser, and waits for it.
  NewFolderDialog(const Program& program, const FolderChooser& chooser);

  std::string Name() const;
  // Types a name and presses Create. The caller waits for the result: the dialog ends or shows a message.
  void Create(const std::string& name) const;
};

}  // namespace tarvik::end_to_end
