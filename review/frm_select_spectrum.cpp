// Choosing closes the dialog.
#include "review/frm_select_spectrum.h"

namespace veritane::review {

FrmSelectSpectrum::FrmSelectSpectrum(platform::Desktop& desktop) : Form(desktop, "frmSelectSpectrum") {
  lstSpectrum.OnClick = [this] { lstSpectrum_Click(); };
}

void FrmSelectSpectrum::Form_Activate() {
  lstSpectrum.SetFocus();
}

void FrmSelectSpectrum::lstSpectrum_Click() {
  Hide();
}

}  // namespace veritane::review
