#include "driver/SaveDialog.h"

#include <windows.h>

namespace tarvik::end_to_end {
namespace {

// Ids of its controls, defined by the system.
constexpr int nameId = 0x47c;
constexpr int filterId = 0x470;

}  // namespace

SaveDialog::SaveDialog(const Program& program) : Dialog(program, nameId) {}

std::vector<std::string> SaveDialog::Filters() const {
  return Item(filterId).ComboItems();
}

int SaveDialog::Filter() const {
  return Item(filterId).ComboChoice();
}

void SaveDialog::ChooseFilter(int index) const {
  const Control filters = Item(filterId);
  filters.Send(CB_SETCURSEL, static_cast<WPARAM>(index));
  // The dialog reacts to this notification, which ends the choice.
  Window().Send(WM_COMMAND, MAKEWPARAM(filterId, CBN_SELENDOK), reinterpret_cast<LPARAM>(filters.Window()));
}

std::string SaveDialog::Name() const {
  return Item(nameId).Text();
}

void SaveDialog::Save(const std::string& name) const {
  Item(nameId).SetText(name);
  Press(IDOK);
}

void SaveDialog::SaveAs(const std::string& name) const {
  Save(name);
  WaitForEnd();
}

void SaveDialog::Cancel() const {
  Press(IDCANCEL);
  WaitForEnd();
}

}  // namespace tarvik::end_to_end
