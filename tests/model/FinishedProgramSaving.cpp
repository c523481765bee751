// Saving, with the files that it writes.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <string>

#include "driver/Dialogs.h"
#include "driver/Waiting.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {

using model::Kind;
using model::Scope;

void FinishedProgram::Save(const Action& action) {
  const auto selected = std::ranges::count_if(model_.entries, [](const model::Entry& entry) { return entry.selected; });
  if (selected == 0 || selected > 5) return Skip();
  model_.SaveMany(action.a % 2 == 0 ? Kind::Icon : Kind::Cursor, Scope::Selected);
  program_.Command(action.a % 2 == 0 ? FrmFindIcon_mnuSaveSel : FrmFindIcon_mnuSaveSel3);
  const FolderChooser chooser(program_);
  if (chooser.Path() != model_.folder) boxDifference_ += "chooser's folder: " + chooser.Path() + "\n";
  const bool ok = action.b % 3 != 0;
  Note(ok ? "OK" : "Cancel");
  model_.EndChooser(ok);
  if (ok) {
    chooser.Ok();
  } else {
    chooser.Cancel();
  }
  for (const auto& [path, file] : model_.written) {
    const bool isThere = Eventually([&] { return !support::ReadAll(path).empty(); });
    if (!isThere) boxDifference_ += "not written: " + path + "\n";
    // The next search finds as many icons in it as the shell does: in some saved files none.
    const auto slash = path.rfind('\\');
    const UINT icons = ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0);
    disk_.Put(path.substr(0, slash), path.substr(slash + 1), static_cast<int>(icons));
  }
  // The status looks like this before the first file is written, too.
  Eventually([this] { return program_.Window().IsEnabled() && Status() == model_.status; });
  if (!model_.written.empty()) model_.listsAreStale = true;
  model_.written.clear();
}

}  // namespace tarvik::end_to_end
