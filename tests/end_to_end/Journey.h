#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <string>

#include "driver/SaveDialog.h"
#include "end_to_end/ViewByHand.h"

namespace tarvik::end_to_end {

// The names and texts that a user of that language sees.
struct Tongue {
  const char* code;
  const char* folder;     // where the icons are
  const char* newFolder;  // where a batch goes
  const char* file;       // a name for one icon
  const char* notice;     // of the start-up window
  const char* caption;
  const char* refused;  // around the two numbers
  const char* refusedBetween;
  const char* refusedEnd;
  const char* foundEnd;  // of the caption, after the number
  const char* view;      // the enhanced view's caption at 300 %
  friend void PrintTo(const Tongue& tongue, std::ostream* out) { *out << tongue.code; }
};

// The whole program as a user goes through it, one place after the other. Each place leaves a picture for people to
// look at: journeys/ENG and so on in the build's folder.
class Journey : public ViewByHand, public ::testing::WithParamInterface<Tongue> {
 protected:
  void SetUp() override;

  // The places, in their order.
  void StartUp();
  void ChooseFolder();
  void ChooseTypes();
  void Search();
  void LookAtMenus();
  void LookAtOneIcon();
  void Select();
  void SaveOneIcon();
  void SaveMany();
  void CopyIcon() const;
  void ReadTheGuide() const;
  void AskForAMissingGuide();
  void LookAtTheAboutBox();
  void Leave() const;
  void ComeBack();

  const Tongue& tongue_ = GetParam();

 private:
  // Icons of every kind, in a folder and one below it.
  void MakeIcons();
  std::filesystem::path Pictures() const;
  // Takes a picture of what the program shows; pictures are numbered along the way.
  void Picture(const std::string& name);

  // Ticks a box, and types a limit, with the mouse and the keys.
  void TickByMouse(int id) const;
  void TypeLimit(const std::string& limit) const;
  // Waits for a message box, takes a picture of it and closes it.
  void PassBox(const std::string& name);
  // Opens a menu of the menu bar, counted from 0, by the keyboard.
  void OpenMenuByKeys(int menu) const;
  void CloseMenu() const;
  // Gives one of the commands that save, by the keyboard.
  void ChooseInFileMenu(int command) const;

  // A size of the enhanced view on this display that is larger than the one it opens with.
  static SIZE LargerView();
  SaveDialog AskForName(int command) const;
  void LookAtTheList();
  void SaveAsJpeg(const std::string& name);
  void SaveAsGif(const std::string& name);
  void SaveAsCursor(const std::string& name);
  void SaveAllIcons();
  // Saves the two selected icons to the folder that SaveAllIcons made. `type` is the image type's index in its list.
  // `options` is a control of the dialog that asks for options and `finish` its OK button, 0 if there is no such
  // dialog.
  struct Batch {
    int command;
    int type;
    int options;
    int finish;
    const char* picture;
  };
  void SaveSelected(const Batch& batch);
  // Waits until a command that saves is over and the status shows this text again.
  void WaitForSave(const std::string& status) const;
  std::string BatchFolder() const;
  // How many files in the batches' folder are not empty and have a name that starts with `start`.
  int CountSaved(const std::wstring& start) const;

  static constexpr const char* root = "R:\\";
  const ExtraDrive drive_{tree_.Path(), "icons"};
  int count_ = 0;     // of all icons
  int pictures_ = 0;  // taken so far
};

}  // namespace tarvik::end_to_end
