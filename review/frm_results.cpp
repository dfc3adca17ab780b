// The results window.
#include "review/frm_results.h"

#include "platform/desktop.h"
#include "platform/text_printout.h"

namespace veritane::review {

FrmResults::FrmResults(platform::Desktop& desktop) : Form(desktop, "frmResults") {
  SetCaption("Results");
  txtResults.isMultiLine = true;
  txtResults.isReadOnly = true;
  txtResults.OnKeyPress = [this](int key) { return txtResults_KeyPress(key); };
  cmdPrint.SetCaption("&Print");
  cmdPrint.OnClick = [this] { cmdPrint_Click(); };
}

void FrmResults::cmdPrint_Click() {
  platform::TextPrintout printout("Results", txtResults.Text());
  Screen().Print(printout);
}

bool FrmResults::txtResults_KeyPress(int key) {
  if (key != platform::kEscapeKey) return true;
  Hide();
  return false;
}

}  // namespace veritane::review
