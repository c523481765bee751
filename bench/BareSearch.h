#pragma once

#include <windows.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "MainWindow.h"
#include "platform/Surface.h"

namespace tarvik::bench {

// The work of a program that only draws the icons: list folders twice, count, extract, draw and release each icon.
class BareSearch {
 public:
  // How it extracts icons: each file counted in both passes and each icon with a call of its own; or each file counted
  // once and 64 icons per call, which is the least work that the system permits.
  enum class Taking { OneByOne, SixtyFour };

  BareSearch(Scope scope, Taking taking);

  void Run();
  // How many icons the last run drew.
  int Icons() const { return number_; }

 private:
  void Visit(const std::wstring& folder);
  void TakeFile(const std::string& path);
  int CountOf(const std::string& path);
  void DrawGroup(const std::string& path, int first, int count);
  void DrawNext(HICON icon);

  Scope scope_;
  Taking taking_;
  Surface grid_;
  bool drawing_ = false;
  int number_ = 0;
  std::unordered_map<std::string, int> counts_;
};

}  // namespace tarvik::bench
