#include "encoders/fComment.h"

#include "encoders/fSaveJPGTexts.h"
#include "resource.h"
#include "startup/FormPlacement.h"
#include "startup/FormSize.h"

namespace tarvik {
namespace {

constexpr int formWidth = 4800;  // twips
constexpr int formHeight = 3460;

}  // namespace

fComment::fComment(Application& application, const ProgramState& state)
    : Form(application, Dialog_fComment), state_(state) {}

void fComment::Form_Load() {
  SizeInTwips(*this, formWidth, formHeight);
  basInitEntry::ApplySkinToForm(*this);
  basInitEntry::CenterForm(*this);
  SetTexts(*this, commentTexts, state_.CurrentLanguage);
}

std::string fComment::Edit(HWND owner, const std::string& comment) {
  comment_ = comment;
  Load(owner);
  SetItemText(fComment_txtComment, comment);
  ShowModal(owner);
  return comment_;
}

bool fComment::OnCommand(int id, int code) {
  static constexpr Event<fComment> events[] = {
      {fComment_cmdFinish, fComment_cmdFinish, BN_CLICKED, Call<&fComment::cmdFinish_Click>},
      {IDCANCEL, IDCANCEL, BN_CLICKED, Call<&fComment::Cancel>},  // Esc
  };
  return Dispatch<fComment>(*this, events, id, code);
}

void fComment::cmdFinish_Click() {
  comment_ = ItemText(fComment_txtComment);
  Unload();
}

void fComment::Cancel() {
  Unload();
}

}  // namespace tarvik
