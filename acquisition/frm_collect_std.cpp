// Defining a new product: the checks before its Standard may be measured.
#include "acquisition/frm_collect_std.h"

#include "acquisition/additional_file.h"
#include "platform/windows_path.h"
#include "shell/state/messages.h"
#include "shell/state/program_state.h"

namespace veritane::acquisition {

using state::Text;
using state::TextId;

FrmCollectStd::FrmCollectStd(platform::Desktop& desktop) : Form(desktop, "frmCollectStd") {
  txtProductID.SetToolTip(Text(TextId::kProductIdTip));
  lblFile.SetCaption(Text(TextId::kAdditionalFile));
  cmdChooseCalFile.SetCaption(Text(TextId::kChooseAdditionalFile));
  cmbAlg.AddAll({state::kEuclidean, state::kFourier, state::kLumivar, state::kPls, state::kMarkPeaks});
  txtProductID.OnKeyPress = [this](int key) { return txtProductID_KeyPress(key); };
  cmbAlg.OnClick = [this] { cmbAlg_Click(); };
  cmdChooseCalFile.OnClick = [this] { cmdChooseCalFile_Click(); };
  cmdScan.isDefault = true;
  cmdScan.OnClick = [this] { cmdScan_Click(); };
  cmdNoScanStandardNow.isCancel = true;
  cmdNoScanStandardNow.OnClick = [this] { cmdNoScanStandardNow_Click(); };
}

void FrmCollectStd::Form_Activate() {
  cancelled = false;
  txtProductID.SetText("");
  txtCalFileName.SetText("");
  if (cmbmth.Selected() < 0 && cmbmth.Count() > 0) cmbmth.Select(0);
  cmbAlg.Select(0);
  txtProductID.SetFocus();
}

// A barcode scanner sends Enter behind the code: that leads on to the collect method, and does not begin to
// measure with whatever method stands there.
bool FrmCollectStd::txtProductID_KeyPress(int key) {
  if (key != platform::kEnterKey) return true;
  cmbmth.SetFocus();
  return false;
}

void FrmCollectStd::cmbAlg_Click() {
  const bool needs_file = NeedsAdditionalFile(cmbAlg.Text());
  lblFile.SetVisible(needs_file);
  txtCalFileName.SetVisible(needs_file);
  cmdChooseCalFile.SetVisible(needs_file);
  // A file of the one kind is none of the other.
  txtCalFileName.SetText("");
}

void FrmCollectStd::cmdChooseCalFile_Click() {
  if (const auto path = ChooseFile(cmbAlg.Text())) txtCalFileName.SetText(*path);
}

std::string FrmCollectStd::WhyNotComplete() const {
  if (platform::UpperCase(txtProductID.Text()) == "BACK") {
    return Text(TextId::kBackIsReserved);
  }
  if (NeedsAdditionalFile(cmbAlg.Text()) && txtCalFileName.Text().empty()) {
    return Text(cmbAlg.Text() == state::kPls ? TextId::kCalibrationFileRequired : TextId::kPeakFileRequired);
  }
  if (cmbmth.Selected() < 0) return Text(TextId::kCollectMethodRequired);
  return WhyNotAProduct(txtProductID.Text());
}

void FrmCollectStd::cmdScan_Click() {
  const std::string why = WhyNotComplete();
  if (why.empty()) return Hide();
  Screen().ShowMessage(
      {.text = why, .title = Text(TextId::kPlainNotice), .icon = platform::MessageIcon::kExclamation});
}

void FrmCollectStd::cmdNoScanStandardNow_Click() {
  cancelled = true;
  Hide();
}

}  // namespace veritane::acquisition
