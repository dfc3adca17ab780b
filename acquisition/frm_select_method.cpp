// Choosing the collect method of a background.
#include "acquisition/frm_select_method.h"

namespace veritane::acquisition {

FrmSelectMethod::FrmSelectMethod(platform::Desktop& desktop) : Form(desktop, "frmSelectMethod") {
  cmdSelectMethodOK.isDefault = true;
  cmdSelectMethodOK.OnClick = [this] { cmdSelectMethodOK_Click(); };
  cmdSelectMethodCancel.isCancel = true;
  cmdSelectMethodCancel.OnClick = [this] { cmdSelectMethodCancel_Click(); };
}

void FrmSelectMethod::Form_Activate() {
  cancelled = 0;
  if (cmbSelectMethod.Selected() < 0 && cmbSelectMethod.Count() > 0) cmbSelectMethod.Select(0);
  cmbSelectMethod.SetFocus();
}

void FrmSelectMethod::cmdSelectMethodOK_Click() {
  Hide();
}

void FrmSelectMethod::cmdSelectMethodCancel_Click() {
  cancelled = 1;
  Hide();
}

}  // namespace veritane::acquisition
