#include "BareSearch.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <utility>

#include "BareIcon.h"
#include "grid/GridGeometry.h"
#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::bench {
namespace {

constexpr int gridHeight = 12'000;  // pixels; enough for 4,000 icons
constexpr UINT maxIcons = 100'000;  // the shell returns more for a file that it cannot read
constexpr int groupSize = 64;

using Entries = std::vector<std::wstring>;

Entries List(const std::wstring& pattern, bool folders) {
  Entries names;
  WIN32_FIND_DATAW data;
  const FindHandle find(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &data, FindExSearchNameMatch, nullptr,
                                         FIND_FIRST_EX_LARGE_FETCH));
  if (!find) return names;
  do {
    const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (isFolder == folders && data.cFileName[0] != L'.') names.emplace_back(data.cFileName);
  } while (FindNextFileW(find.get(), &data) != FALSE);
  return names;
}

}  // namespace

BareSearch::BareSearch(Scope scope, Taking taking)
    : scope_(std::move(scope)), taking_(taking), grid_(WidestGrid(), gridHeight, white) {}

void BareSearch::Run() {
  counts_.clear();
  number_ = 0;
  for (const bool drawing : {false, true}) {
    drawing_ = drawing;
    Visit(ToWide(scope_.folder));
  }
}

void BareSearch::Visit(const std::wstring& folder) {
  const std::wstring start = folder + L'\\';
  for (const std::wstring& name : List(start + ToWide(scope_.pattern), false)) TakeFile(ToUtf8(start + name));
  if (!scope_.subFolders) return;
  for (const std::wstring& name : List(start + L'*', true)) Visit(start + name);
}

int BareSearch::CountOf(const std::string& path) {
  const auto known = counts_.find(path);
  if (taking_ == Taking::SixtyFour && known != counts_.end()) return known->second;
  const UINT count = ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0);
  return counts_[path] = count > maxIcons ? 0 : static_cast<int>(count);
}

void BareSearch::TakeFile(const std::string& path) {
  const int count = CountOf(path);
  if (!drawing_) return;
  const int step = taking_ == Taking::SixtyFour ? groupSize : 1;
  for (int first = 0; first < count; first += step) DrawGroup(path, first, std::min(step, count - first));
}

void BareSearch::DrawGroup(const std::string& path, int first, int count) {
  if (taking_ == Taking::SixtyFour) {
    for (const IconHandle& icon : TakeBareIcons(path, first, count)) DrawNext(icon.get());
    return;
  }
  HICON large = nullptr;
  ExtractIconExA(path.c_str(), first, &large, nullptr, 1);
  const IconHandle icon(large);
  DrawNext(icon.get());
}

void BareSearch::DrawNext(HICON icon) {
  const GridGeometry& geometry = gridGeometries[1];
  const Point corner = IconCorner(geometry, number_++);
  DrawIconEx(grid_.Dc(), corner.x, corner.y, icon, geometry.IconSize, geometry.IconSize, 0, nullptr, DI_NORMAL);
}

}  // namespace tarvik::bench
