// Editing the list of null regions.
#include "acquisition/frm_null_region.h"

#include "platform/number_text.h"
#include "shell/state/messages.h"

namespace veritane::acquisition {

namespace {

// Only digits reach a box; Escape, which closes the dialog, is none of its text.
bool IsAccepted(int key) {
  return (key >= '0' && key <= '9') || key == platform::kEscapeKey;
}

}  // namespace

FrmNullRegion::FrmNullRegion(platform::Desktop& desktop) : Form(desktop, "frmNullRegion") {
  for (platform::Control* inside : std::initializer_list<platform::Control*>{
           &lblNullStart, &txtNullStart, &lblNullEnd, &txtNullEnd, &cmdAddNullRegion}) {
    inside->PlaceIn(fraAddNullRegion);
  }
  txtNullStart.OnKeyPress = [this](int key) { return txtNullStart_KeyPress(key); };
  txtNullEnd.OnKeyPress = [this](int key) { return txtNullEnd_KeyPress(key); };
  cmdAddNullRegion.OnClick = [this] { cmdAddNullRegion_Click(); };
  cmdDeleteNullRegion.OnClick = [this] { cmdDeleteNullRegion_Click(); };
  cmdDone.isCancel = true;
  cmdDone.OnClick = [this] { cmdDone_Click(); };
}

bool FrmNullRegion::txtNullStart_KeyPress(int key) {
  if (key == platform::kEnterKey) txtNullEnd.SetFocus();
  return IsAccepted(key);
}

bool FrmNullRegion::txtNullEnd_KeyPress(int key) {
  if (key == platform::kEnterKey) cmdAddNullRegion.Click();
  return IsAccepted(key);
}

void FrmNullRegion::cmdAddNullRegion_Click() {
  if (txtNullStart.Text().empty() || txtNullEnd.Text().empty()) return;
  // Pasted text is not filtered key by key.
  if (!platform::ParseNumber(txtNullStart.Text()) || !platform::ParseNumber(txtNullEnd.Text())) {
    state::PlainNotice(Screen(), state::Text(state::TextId::kNullRegionNeedsWavenumbers));
    txtNullStart.SetFocus();
    return;
  }
  lstNulls.Add(txtNullStart.Text() + " - " + txtNullEnd.Text());
  txtNullStart.SetText("");
  txtNullEnd.SetText("");
  txtNullStart.SetFocus();
}

void FrmNullRegion::cmdDeleteNullRegion_Click() {
  if (lstNulls.Selected() < 0) {
    state::Notice(Screen(), state::TextId::kSelectRegionToDelete, platform::MessageIcon::kExclamation);
    return;
  }
  lstNulls.Remove(lstNulls.Selected());
}

void FrmNullRegion::cmdDone_Click() {
  Hide();
}

}  // namespace veritane::acquisition
