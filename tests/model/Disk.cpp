#include "model/Disk.h"

#include <algorithm>
#include <array>

namespace tarvik::model {
namespace {

constexpr std::array<Pixel, 16> standardColors{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                               0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                               0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

unsigned Mixed(unsigned value) {
  value ^= value >> 16;
  value *= 0x7FEB352DU;
  value ^= value >> 15;
  value *= 0x846CA68BU;
  return value ^ (value >> 16);
}

unsigned NumberOf(const IconLook& look) {
  return Mixed(static_cast<unsigned>(look.id) * 4096U + static_cast<unsigned>(look.index));
}

std::string Extension(const std::string& name) {
  const auto dot = name.rfind('.');
  return dot == std::string::npos ? std::string() : name.substr(dot);
}

bool Matches(const std::string& name, const std::string& pattern) {
  if (pattern == "*.*") return true;
  return (pattern + ";").find("*" + Extension(name) + ";") != std::string::npos;
}

}  // namespace

bool IsTransparent(int size, int x, int y) {
  return x < size / 4 && y < size / 4;
}

// Four by four blocks of two colours, by the bits of the icon's number; an icon in sixteen has a colour for each pixel.
Pixel ColorAt(const IconLook& look, int size, int x, int y) {
  const unsigned number = NumberOf(look);
  const int block = y / (size / 4) * 4 + x / (size / 4);
  const bool bit = (number >> block & 1U) != 0;
  switch (number >> 16 & 15U) {
    case 0:
    case 1:
      return bit ? blackPixel : whitePixel;
    case 2:
    case 3:
    case 4:
    case 5:
      return standardColors[bit ? number >> 20 & 15U : number >> 24 & 15U];
    case 6:
      return (number & 0xFF0000U) | static_cast<Pixel>(y * 4) << 8 | static_cast<Pixel>(x * 4);
    default:
      return bit ? number >> 4 & 0xFFFFFFU : Mixed(number) & 0xFFFFFFU;
  }
}

const std::vector<Disk::Drive>& Disk::Drives() {
  static const std::vector<Drive> drives{{"C:\\", "c: [SYSTEM]"}, {"D:\\", "d: [DATA]"}, {"Q:\\", "q:", false}};
  return drives;
}

Disk::Disk() {
  for (const char* folder : {"C:\\", "C:\\empty", "C:\\icons", "C:\\icons\\deep", "C:\\icons\\deep\\deeper",
                             "C:\\icons\\many", "C:\\program", "D:\\", "D:\\a"})
    folders_[folder];
  Put("C:\\", "root.ico", 1);
  Put("C:\\icons", "a.ico", 80);
  Put("C:\\icons", "b.dll", 75);
  Put("C:\\icons", "c.ani", 8);
  Put("C:\\icons\\deep", "d.ico", 3);
  Put("C:\\icons\\deep\\deeper", "e.exe", 16);
  Put("C:\\icons\\deep\\deeper", "f.ico", 2);
  Put("C:\\icons\\many", "g.ico", 61);
  Put("C:\\icons\\many", "h.ocx", 45);
  Put("C:\\icons\\many", "i.icl", 15);
  Put("D:\\", "j.ico", 91);
  Put("D:\\a", "k.ico", 150);
  Put("D:\\a", "l.txt", 1);
}

bool Disk::IsReadable(const std::string& folder) const {
  return folders_.contains(folder);
}

std::vector<std::string> Disk::Files(const std::string& folder, const std::string& pattern) const {
  std::vector<std::string> names;
  const auto found = folders_.find(folder);
  if (found == folders_.end()) return names;
  for (const auto& [name, file] : found->second) {
    if (Matches(name, pattern)) names.push_back(name);
  }
  return names;
}

bool Disk::InAnyCase::operator()(const std::string& one, const std::string& other) const {
  const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
  return std::ranges::lexicographical_compare(one, other, {}, upper, upper);
}

std::vector<std::string> Disk::SubFolders(const std::string& folder) const {
  std::vector<std::string> paths;
  for (const auto& [path, files] : folders_) {
    if (path != folder && Above(path) == folder && IsReadable(folder)) paths.push_back(path);
  }
  return paths;
}

std::optional<MadeFile> Disk::Find(const std::string& path) const {
  const auto slash = path.rfind('\\');
  std::string folder = path.substr(0, slash);
  if (folder.ends_with(':')) folder += '\\';
  const auto inFolder = folders_.find(folder);
  if (inFolder == folders_.end()) return std::nullopt;
  const auto file = inFolder->second.find(path.substr(slash + 1));
  return file == inFolder->second.end() ? std::nullopt : std::optional(file->second);
}

int Disk::IconsOf(const std::string& path) const {
  const auto file = Find(path);
  return file ? file->icons : 0;
}

void Disk::Put(const std::string& folder, const std::string& name, int icons) {
  const auto found = folders_.find(folder);
  if (found != folders_.end()) found->second[name] = {nextId_++, icons};
}

void Disk::Remove(const std::string& folder, const std::string& name) {
  const auto found = folders_.find(folder);
  if (found != folders_.end()) found->second.erase(name);
}

bool Disk::CanMakeFolder(const std::string& path) const {
  const std::string name = LastName(path);
  const bool isName = !name.empty() && name.find_first_of("/:*?\"<>|") == std::string::npos;
  return isName && IsReadable(Above(path)) && !folders_.contains(path);
}

bool Disk::MakeFolder(const std::string& path) {
  if (!CanMakeFolder(path)) return false;
  folders_[path];
  return true;
}

void Disk::RemoveFolder(const std::string& path) {
  std::erase_if(folders_,
                [&path](const auto& folder) { return folder.first == path || folder.first.starts_with(path + "\\"); });
}

std::string Joined(const std::string& folder, const std::string& name) {
  return folder.ends_with('\\') ? folder + name : folder + "\\" + name;
}

std::string Above(const std::string& folder) {
  const auto slash = folder.rfind('\\');
  if (slash == folder.size() - 1) return folder;
  return slash == 2 ? folder.substr(0, 3) : folder.substr(0, slash);
}

std::vector<std::string> Chain(const std::string& folder) {
  std::vector<std::string> chain{folder};
  while (Above(chain.back()) != chain.back()) chain.push_back(Above(chain.back()));
  std::reverse(chain.begin(), chain.end());
  return chain;
}

std::string LastName(const std::string& folder) {
  return Above(folder) == folder ? folder : folder.substr(folder.rfind('\\') + 1);
}

bool IsAnimation(const std::string& path) {
  return path.ends_with(".ani");
}

}  // namespace tarvik::model
