#include "BenchData.h"

#include <windows.h>

#include <array>
#include <vector>

#include "base/FolderPath.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik::bench {
namespace {

support::IconPicture Picture(int number) {
  return support::BitmapPicture(32, 24, 0x010305U * static_cast<Color>(number % 80),
                                0x030201U * static_cast<Color>(number % 80));
}

void Copy(const std::string& from, const std::string& to) {
  CopyFileW(ToWide(from).c_str(), ToWide(to).c_str(), FALSE);
}

void MakeLibrary(const std::string& path, int icons) {
  Copy(JoinPath(SystemFolder(), "version.dll"), path);
  std::vector<support::IconPicture> pictures;
  pictures.reserve(static_cast<std::size_t>(icons));
  for (int i = 0; i < icons; ++i) pictures.push_back(Picture(i));
  support::AddIcons(path, pictures);
}

}  // namespace

std::string MakeIconFiles(const support::TemporaryFolder& folder, int folders, int filesInEach) {
  const std::string root = "files" + std::to_string(folders);
  folder.MakeFolder(root);
  for (int i = 0; i < folders; ++i) {
    const std::string sub = JoinPath(root, "folder " + std::to_string(i));
    folder.MakeFolder(sub);
    for (int k = 0; k < filesInEach; ++k) {
      const support::IconPicture picture = Picture(i + k);
      folder.MakeFile(JoinPath(sub, std::to_string(k) + ".ico"), support::IconFile({&picture, 1}));
    }
  }
  return folder.In(root);
}

std::string MakeIconLibrary(const support::TemporaryFolder& folder, int icons, int libraries) {
  const std::string name = "library" + std::to_string(icons) + "x" + std::to_string(libraries);
  folder.MakeFolder(name);
  const std::string path = folder.In(JoinPath(name, "icons.dll"));
  MakeLibrary(path, icons);
  for (int i = 1; i < libraries; ++i) {
    Copy(path, folder.In(JoinPath(name, "icons" + std::to_string(i) + ".dll")));
  }
  return folder.In(name);
}

std::string MakeAllKinds(const support::TemporaryFolder& folder, int folders) {
  constexpr std::array others{"a.txt", "b.html", "c.cpp", "d.dat", "e.log", "f.png"};
  constexpr std::array<Color, 2> colors{0x0000FF, 0x00FF00};
  const std::string library = JoinPath(MakeIconLibrary(folder, 5, 1), "icons.dll");
  const support::Bytes text(3000, std::byte{'a'});
  const support::Bytes animation = support::AnimationFile(colors);
  folder.MakeFolder("all kinds");
  for (int i = 0; i < folders; ++i) {
    const std::string sub = JoinPath("all kinds", std::to_string(i));
    folder.MakeFolder(sub);
    const support::IconPicture picture = Picture(i);
    const auto icon = support::IconFile({&picture, 1});
    folder.MakeFile(JoinPath(sub, "a.ico"), icon);
    folder.MakeFile(JoinPath(sub, "b.cur"), i % 4 == 0 ? icon : text);
    for (const char* other : others) folder.MakeFile(JoinPath(sub, other), text);
    if (i % 10 == 0) {
      Copy(library, folder.In(JoinPath(sub, "g.dll")));
    } else {
      folder.MakeFile(JoinPath(sub, "g.json"), text);
    }
    folder.MakeFile(JoinPath(sub, i % 16 == 0 ? "h.ani" : "h.xml"), i % 16 == 0 ? animation : text);
  }
  return folder.In("all kinds");
}

std::string MakeEmptyFolders(const std::string& root, int count) {
  std::string path = JoinPath(root, std::to_string(count));
  CreateDirectoryW(ToWide(path).c_str(), nullptr);
  for (int i = 0; i < count; ++i) {
    CreateDirectoryW(ToWide(JoinPath(path, "folder " + std::to_string(i))).c_str(), nullptr);
  }
  const support::IconPicture picture = Picture(7);
  const support::Bytes bytes = support::IconFile({&picture, 1});
  const FileHandle file(
      CreateFileW(ToWide(JoinPath(path, "one.ico")).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  DWORD written = 0;
  WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  return path;
}

}  // namespace tarvik::bench
