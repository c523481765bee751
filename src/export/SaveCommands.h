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
// and leaves the pointer and the status text as it found them. A dialog that is cancelled ends its command silently.
class SaveCommands {
 public:
  // Everything outlives the commands.
  struct Dependencies {
    SaveDialogs& dialogs;
    FileSink& files;
    TemporaryPicture& temporaryPicture;
  };

  SaveCommands(SaveWindow& window, Dependencies dependencies, const IconList& list, const SearchState& search,
               ProgramState& state)
      : window_(window), dependencies_(dependencies), list_(list), search_(search), state_(state) {}

  // One icon, the current one, under a name that the user gives. Without a current entry they do nothing.
  void mnuSaveAs_Click();
  void MnuSaveAsBitmap_Click();
  void MnuSaveAsCursor_Click();

  // Every entry into a folder. Files are numbered as the entries are; those of the same name are replaced.
  void mnuSaveAll_Click();
  void mnuSaveAll2_Click();
  void mnuSaveAll3_Click();

  // The selected entries into a folder, the files numbered from 1 on. Where none is selected, that is said first.
  void mnuSaveSel_Click();
  void mnuSaveSel2_Click();
  void mnuSaveSel3_Click();

  // The current icon to the clipboard.
  void mnuCopy_Click();

  // For the end of the main window: deletes a temporary bitmap and lets the encoders go.
  void CleanUp();

 private:
  enum class Scope { All, Selected };
  // Writes the icon that the surfaces hold to a path; false where it failed.
  using Write = std::function<bool(const std::string& path)>;
  // What a batch names its files and says of one that failed.
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
