// The folder chooser and the dialog that makes a folder.
#include <array>
#include <string>

#include "model/Model.h"

namespace tarvik::model {
namespace {

constexpr int typesAdded = 9;
constexpr std::array<const char*, typesAdded> extensions{".bmp", ".gif", ".jpg", ".png", ".wbmp",
                                                         ".tif", ".tga", ".wmf", ".emf"};

}  // namespace

void Model::OpenChooserRow(int row) {
  chooser.folder = chooser.answer = FolderRows(*disk_, chooser.folder).at(static_cast<std::size_t>(row));
}

void Model::ChooseChooserDrive(int row) {
  chooser.drive = Disk::Drives().at(static_cast<std::size_t>(row)).root;
  chooser.folder = chooser.answer = chooser.drive;
}

// Each choice appends the types to the list again; only the first set has extensions.
void Model::ChooseChooserType(int row) {
  chooser.type = row;
  chooser.types += typesAdded;
  if (row < typesAdded) chooser.extension = extensions.at(static_cast<std::size_t>(row));
}

void Model::CloseChooserByBox() {
  EndChooser(true);
}

void Model::OpenNewFolder() {
  newFolderParent = chooser.folder;
  newFolderName = words::newFolder.In(tongue_);
  fronts.push_back(Front::NewFolder);
}

void Model::MakeFolder(const std::string& name) {
  newFolderName = name;
  const std::string path = Joined(newFolderParent, name);
  if (!disk_->CanMakeFolder(path)) {
    return ShowBox(words::cannotCreate.In(tongue_), words::cannotCreateText.In(tongue_), After::Nothing);
  }
  fronts.pop_back();
  chooser.folder = chooser.answer = path;
  listsAreStale = true;
}

}  // namespace tarvik::model
