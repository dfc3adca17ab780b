// The results window.
#include "review/frm_results.h"

#include "platform/desktop.h"
#include "platform/text_printout.h"
#include "shell/state/string_table.h"

namespace veritane::review {

using state::Text;
using state::TextId;

FrmResults::FrmResults(platform::Desktop& desktop) : Form(desktop, "frmResults") {
  SetCaption(Text(TextId::kResults));
  txtResults.isMultiLine = true;
  txtResults.isReadOnly = true;
  txtResults.OnKeyPress = [this](int key) { return txtResults_KeyPress(key); };
  cmdPrint.SetCaption(Text(TextId::kPrintResults));
  cmdPrint.OnClick = [this] { cmdPrint_Click(); };
}

void FrmResults::cmdPrint_Click() {
  platform::TextPrintout printout(Text(TextId::kResults), txtResults.Text());
  Screen().Print(printout);
}

bool FrmResults::txtResults_KeyPress(int key) {
  if (key != platform::kEscapeKey) return true;
  Hide();
  return false;
}

}  // namespace veritane::review
