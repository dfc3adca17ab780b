// The prompts stand in the boxes; whoever showed the dialog reads them there.
#include "acquisition/frm_prompts.h"

namespace veritane::acquisition {

FrmPrompts::FrmPrompts(platform::Desktop& desktop) : Form(desktop, "frmPrompts") {
  cmdOK.isDefault = true;
  cmdOK.OnClick = [this] { cmdOK_Click(); };
}

void FrmPrompts::cmdOK_Click() {
  Hide();
}

}  // namespace veritane::acquisition
