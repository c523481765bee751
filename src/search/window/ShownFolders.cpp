#include "search/window/ShownFolders.h"

#include <utility>

namespace tarvik {

void ShownFolders::Attach(HWND drive1, HWND dir1, HWND file1, HWND chkSubDir) {
  chkSubDir_ = chkSubDir;
  drive1_.Attach(drive1, dependencies_.drives);
  dir1_.Attach(
      dir1,
      [this](const std::string& folder) {
        return folder == unread_ ? std::vector<std::string>() : dependencies_.folders.SubFolders(folder);
      },
      [this] { Dir1_Change(); });
  file1_.Attach(file1, [this](const std::string& folder, const std::string& pattern) {
    return folder == unread_ ? std::vector<std::string>() : dependencies_.folders.Files(folder, pattern);
  });
}

// A search reads this several times per folder, and Wine searches all controls for an id.
bool ShownFolders::chkSubDir() const {
  return SendMessageW(chkSubDir_, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void ShownFolders::Dir1_Change() {
  file1_.SetPath(dir1_.Path());
}

void ShownFolders::Show(const std::string& folder) {
  dir1_.SetPath(folder);
  ChooseShownDrive();
}

void ShownFolders::ShowUnread(const std::string& folder) {
  unread_ = folder;
  Show(folder);
}

void ShownFolders::OpenChosen() {
  if (!std::exchange(unread_, {}).empty()) {
    dir1_.Reread();
    file1_.Reread();
  }
  dir1_.OpenChosen();
}

void ShownFolders::Reread() {
  unread_.clear();
  drive1_.Refresh();
  dir1_.Reread();
  file1_.Reread();
}

ShownFolders::Held ShownFolders::HoldForWalk() {
  unread_.clear();
  return {file1_.Hold(), dir1_.Hold()};
}

}  // namespace tarvik
