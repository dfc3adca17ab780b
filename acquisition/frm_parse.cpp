// Taking the highlighted part of an example as the product's.
#include "acquisition/frm_parse.h"

#include "shell/state/messages.h"

namespace veritane::acquisition {

FrmParse::FrmParse(platform::Desktop& desktop) : Form(desktop, "frmParse") {
  cmdResetParser.SetCaption(state::Text(state::TextId::kUseFullBarcode));
  txtTmpProductID.OnKeyPress = [this](int key) { return txtTmpProductID_KeyPress(key); };
  cmdOK.isDefault = true;
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdResetParser.OnClick = [this] { cmdResetParser_Click(); };
}

void FrmParse::Form_Activate() {
  txtTmpProductID.SetText("");
  txtTmpProductID.SetFocus();
}

// The Enter that a scanner sends behind the example confirms nothing: the part is yet to be highlighted.
bool FrmParse::txtTmpProductID_KeyPress(int key) {
  return key != platform::kEnterKey || txtTmpProductID.HighlightLength() > 0;
}

void FrmParse::cmdOK_Click() {
  const std::string part = txtTmpProductID.HighlightedText();
  if (part.empty()) {
    state::Notice(Screen(), state::TextId::kSelectRegionToDelete, platform::MessageIcon::kExclamation);
    txtTmpProductID.SetFocus();
    return;
  }
  Define(txtTmpProductID.Text(), part);
  Hide();
}

void FrmParse::cmdResetParser_Click() {
  Reset();
  Hide();
}

}  // namespace veritane::acquisition
