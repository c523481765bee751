#pragma once

#include <functional>
#include <string>

#include "base/FileSink.h"
#include "export/SaveWindow.h"
#include "grid/SearchState.h"
#include "search/icons/IconList.h"
#include "startup/Language.h"
#include "startup/ProgramState.h"

namespace tarvik {

// The main window's commands that save and copy icons. Each runs to its end before it returns, shows its own messages,
// and restores the pointer and the status text. If its dialog is cancelled, a command ends silently.
class SaveCommands {
 public:
  // All of them outlive the commands.
  struct Dependencies {
    SaveDialogs& dialogs;
    FileSink& files;
    TemporaryPicture& temporaryPicture;
  };

  SaveCommands(SaveWindow& window, Dependencies dependencies, const IconList& list, const SearchState& search,
               ProgramState& state)
      : window_(window), dependencies_(dependencies), list_(list), search_(search), state_(state) {}

  // Save the current icon under a name that the user chooses. Do nothing without a current entry.
  void mnuSaveAs_Click();
  void MnuSaveAsBitmap_Click();
  void MnuSaveAsCursor_Click();

  // Save every entry into a folder. Files are numbered like the entries; existing files of the same name are replaced.
  void mnuSaveAll_Click();
  void mnuSaveAll2_Click();
  void mnuSaveAll3_Click();

  // Save the selected entries into a folder, the files numbered from 1. If none is selected, a message says so first.
  void mnuSaveSel_Click();
  void mnuSaveSel2_Click();
  void mnuSaveSel3_Click();

  // Copies the current icon to the clipboard.
  void mnuCopy_Click();

  // Called when the main window closes: deletes a temporary bitmap and frees the encoders.
  void CleanUp();

 private:
  enum class Scope { All, Selected };
  // Writes the icon on the surfaces to a path; returns false if that fails.
  using Write = std::function<bool(const std::string& path)>;
  // The file names of a batch and its message for a failed file.
  struct BatchKind {
    std::string_view prefix;
    std::string_view extension;
    const Text& failed;
  };
  class Saving;

  bool RenderCurrent();
  bool WriteIcon(const std::string& path);
  bool WriteCursor(const std::string& path);
  bool WriteBitmap(const std::string& path);

  void SaveBMPToJPG(const std::string& path);
  void SaveBMPToGIF(const std::string& path);
  void SaveBitmapNamed(const std::string& path);

  bool IsAnySelected();
  std::string AskForFolder(std::string_view saveExtension);
  void SaveIcons(Scope scope);
  void SaveCursors(Scope scope);
  void SaveImages(Scope scope);
  void SaveBMPToJPGForNoSingle(Scope scope, const std::string& folder, const BatchKind& kind);
  void SaveBMPToGIFForNoSingle(Scope scope, const std::string& folder, const BatchKind& kind);
  void SaveBatch(Scope scope, const std::string& folder, const BatchKind& kind, const Write& write);

  void Tell(const Text& text, MessageKind kind, const std::string& path = {});

  SaveWindow& window_;
  Dependencies dependencies_;
  const IconList& list_;
  const SearchState& search_;
  ProgramState& state_;
};

}  // namespace tarvik
