#include "BenchData.h"

#include <windows.h>

#include <vector>

#include "base/FolderPath.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik::bench {
namespace {

testing::IconPicture Picture(int number) {
  return testing::BitmapPicture(32, 24, 0x010305U * static_cast<Color>(number % 80),
                                0x030201U * static_cast<Color>(number % 80));
}

}  // namespace

std::string MakeIconFiles(const testing::TemporaryFolder& folder, int folders, int filesInEach) {
  const std::string root = "files" + std::to_string(folders);
  folder.MakeFolder(root);
  for (int i = 0; i < folders; ++i) {
    const std::string sub = JoinPath(root, "folder " + std::to_string(i));
    folder.MakeFolder(sub);
    for (int k = 0; k < filesInEach; ++k) {
      const testing::IconPicture picture = Picture(i + k);
      folder.MakeFile(JoinPath(sub, std::to_string(k) + ".ico"), testing::IconFile({&picture, 1}));
    }
  }
  return folder.In(root);
}

std::string MakeIconLibrary(const testing::TemporaryFolder& folder, int icons) {
  folder.MakeFolder("library");
  const std::string path = folder.In("library\\icons.dll");
  CopyFileW(ToWide(JoinPath(SystemFolder(), "version.dll")).c_str(), ToWide(path).c_str(), FALSE);
  std::vector<testing::IconPicture> pictures;
  for (int i = 0; i < icons; ++i) pictures.push_back(Picture(i));
  testing::AddIcons(path, pictures);
  return folder.In("library");
}

std::string MakeEmptyFolders(const std::string& root, int count) {
  const std::string path = JoinPath(root, std::to_string(count));
  CreateDirectoryW(ToWide(path).c_str(), nullptr);
  for (int i = 0; i < count; ++i) {
    CreateDirectoryW(ToWide(JoinPath(path, "folder " + std::to_string(i))).c_str(), nullptr);
  }
  const testing::IconPicture picture = Picture(7);
  const testing::Bytes bytes = testing::IconFile({&picture, 1});
  const FileHandle file(
      CreateFileW(ToWide(JoinPath(path, "one.ico")).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  DWORD written = 0;
  WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  return path;
}

}  // namespace tarvik::bench
