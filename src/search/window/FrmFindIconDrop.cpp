// Files and folders dropped on the main window: a folder is searched; of a file, the folder that contains it.

#include <windows.h>

#include "base/FolderPath.h"
#include "forms/MessageBox.h"
#include "search/icons/FilePattern.h"
#include "search/window/FrmFindIcon.h"
#include "search/window/FrmFindIconTexts.h"
#include "startup/MessageTexts.h"

namespace tarvik {

// Refused like every command while a search or a save runs, and while a dialog is open over the window.
void FrmFindIcon::OnDrop(const std::string& path) {
  if (path.empty() || state_.IsSearching || isSaving_ || IsWindowEnabled(Window()) == FALSE) return;
  const std::string dropped = TidyFolderPath(path);
  const bool isFolder = dependencies_.isFolder(dropped);
  const std::string folder = isFolder ? dropped : ParentFolder(dropped);
  if (!dependencies_.isReadableFolder(folder)) {
    const std::string& language = dependencies_.state.CurrentLanguage;
    const auto text = Compose(folderNotReadable, language, {folder});
    if (text) tarvik::ShowMessage(Window(), *text, FailureTitle(language), MessageSign::Exclamation);
    return;
  }
  folders_.SetDir1Path(folder);
  if (!isFolder) {
    SetChecked(searchedTypes.at(FileTypeBoxOf(FolderName(dropped))).checkBox, true);
    ChkFileType_Click();
  }
  Reread();  // the drive or the file may be newer than the lists
  folders_.ChooseShownDrive();
}

}  // namespace tarvik
