#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "base/NonCopyable.h"
#include "model/MadeMachine.h"
#include "model/Model.h"

namespace tarvik::model {

// The program's real windows over a made machine, from one start to its end.
class RealProgram : NonCopyable {
 public:
  // `disk` and `settings` outlive it; settings are by "Section/Key", and written as the program writes them.
  RealProgram(Disk& disk, std::map<std::string, std::string>& settings, Tongue tongue);
  ~RealProgram();

  // The main window; null when it is gone.
  HWND Main() const;
  // Processes messages until `isDone` returns true.
  void Serve(const std::function<bool()>& isDone);
  void ServeWaiting();
  // Ends all windows as the end of a session does.
  void End();
  // Whether the program would end now because it has no window left.
  bool WouldEnd();

  // Sets the answer of the Save dialog from now on.
  void AnswerPath(const std::string& path);
  MadeFiles& Files();
  // How often the guide was opened.
  int Guides() const;
  std::string HandedPath() const;
  int HandedIndex() const;
  Spot HotSpot() const;

  static constexpr const char* ownFolder = "C:\\program";

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tarvik::model
