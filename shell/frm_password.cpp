// The password dialog: Enter confirms, closing it gives none.
#include "shell/frm_password.h"

namespace veritane::shell {

FrmPassword::FrmPassword(platform::Desktop& desktop) : Form(desktop, "frmPassword") {
  txtPassword.isSecret = true;
  txtPassword.OnKeyPress = [this](int key) { return txtPassword_KeyPress(key); };
  cmdPasswordOK.isDefault = true;
  cmdPasswordOK.OnClick = [this] { cmdPasswordOK_Click(); };
}

bool FrmPassword::txtPassword_KeyPress(int key) {
  if (key != platform::kEnterKey) return true;
  cmdPasswordOK_Click();
  return false;
}

void FrmPassword::cmdPasswordOK_Click() {
  Hide();
}

void FrmPassword::Form_Activate() {
  cancelled = false;
  txtPassword.SetFocus();
}

void FrmPassword::Form_QueryUnload() {
  cancelled = true;
  txtPassword.SetText("");
  Hide();
}

}  // namespace veritane::shell
