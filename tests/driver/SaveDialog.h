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

  // What the list of file types offers, and which of them is chosen, counted from 0.
  std::vector<std::string> Filters() const;
  int Filter() const;
  // Chooses one as a user does: a name typed without an extension gets this type's from then on.
  void ChooseFilter(int index) const;

  std::string Name() const;
  // Types a name or a path and presses Save. What comes then, the end or a question, is waited for by whoever asks.
  void Save(const std::string& name) const;
  // The same, and waits until the dialog is gone.
  void SaveAs(const std::string& name) const;
  void Cancel() const;
};

}  // namespace tarvik::end_to_end
