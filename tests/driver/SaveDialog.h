#pragma once

#include <string>
#include <vector>

#include "driver/Dialogs.h"

namespace tarvik::end_to_end {

// The system's dialog that asks for the name of a file to save.
class SaveDialog : public Dialog {
 public:
  // Waits until the program shows it.
  explicit SaveDialog(const Program& program);

  // The entries of the list of file types, and the chosen one, counted from 0.
  std::vector<std::string> Filters() const;
  int Filter() const;
  // Chooses one as a user does: from then on a name typed without an extension gets this type's.
  void ChooseFilter(int index) const;

  std::string Name() const;
  // Types a name or a path and presses Save. The caller waits for the result: the dialog ends or asks a question.
  void Save(const std::string& name) const;
  // The same, and waits until the dialog is gone.
  void SaveAs(const std::string& name) const;
  void Cancel() const;
};

}  // namespace tarvik::end_to_end
