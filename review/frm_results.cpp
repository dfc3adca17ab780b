// The results window.
#include "review/frm_results.h"

namespace veritane::review {

FrmResults::FrmResults(platform::Desktop& desktop) : Form(desktop, "frmResults") {
  SetCaption("Results");
  txtResults.isMultiLine = true;
  txtResults.isReadOnly = true;
  txtResults.OnKeyPress = [this](int key) { return txtResults_KeyPress(key); };
  cmdPrint.SetCaption("&Print");
  // Printing comes later.
  cmdPrint.SetEnabled(false);
  cmdPrint.SetToolTip("Not available in this version");
}

bool FrmResults::txtResults_KeyPress(int key) {
  if (key != platform::kEscapeKey) return true;
  Hide();
  return false;
}

}  // namespace veritane::review
