// The sample entry dialog's rules: scanner first, nothing left empty.
#include "identification/frm_samp.h"

#include "platform/desktop.h"
#include "platform/utf8.h"
#include "platform/windows_path.h"
#include "shell/state/messages.h"

#include <algorithm>

namespace veritane::identification {

using state::Text;
using state::TextId;

FrmSamp::FrmSamp(platform::Desktop& desktop, std::function<std::vector<std::string>()> product_ids,
                 std::function<std::string()> operator_name)
    : Form(desktop, "frmSamp"),
      product_ids_(std::move(product_ids)),
      operator_name_(std::move(operator_name)) {
  lblSampName.SetCaption(Text(TextId::kSampleName));
  cmbStandards.isEditable = true;
  cmdProductIDOkay.isDefault = true;
  cmdSampleCancelled.isCancel = true;
  cmbStandards.OnKeyPress = [this](int key) { return cmbStandards_KeyPress(key); };
  txtSampName.OnKeyPress = [this](int key) { return txtSampName_KeyPress(key); };
  txtOperatorName.OnKeyPress = [this](int key) { return txtOperatorName_KeyPress(key); };
  cmdProductIDOkay.OnClick = [this] { cmdProductIDOkay_Click(); };
  cmdSampleCancelled.OnClick = [this] { cmdSampleCancelled_Click(); };
}

void FrmSamp::Form_Activate() {
  cancelled = false;
  const std::vector<std::string> ids = product_ids_();
  cmbStandards.Clear();
  cmbStandards.AddAll(ids);
  const auto same_product = [this](const std::string& id) {
    return platform::UpperCase(id) == platform::UpperCase(previousProduct);
  };
  const auto previous = std::find_if(ids.begin(), ids.end(), same_product);
  if (!ids.empty()) cmbStandards.Select(previous == ids.end() ? 0 : static_cast<int>(previous - ids.begin()));
  // The name of the sample before must never be filed with this one by mistake.
  txtSampName.SetText("");
  txtOperatorName.SetText(operator_name_());
  lblOperator.SetCaption(Text(TextId::kOperatorName));
  // A scanner overwrites what is highlighted.
  cmbStandards.SetFocus();
  cmbStandards.Highlight(0, static_cast<int>(platform::CharacterCount(cmbStandards.Text())));
}

bool FrmSamp::cmbStandards_KeyPress(int key) {
  if (key != platform::kEnterKey) return true;
  txtSampName.SetFocus();
  return false;
}

bool FrmSamp::txtSampName_KeyPress(int key) {
  if (key != platform::kEnterKey) return true;
  cmdProductIDOkay_Click();
  return false;
}

bool FrmSamp::txtOperatorName_KeyPress(int key) {
  return txtSampName_KeyPress(key);
}

void FrmSamp::cmdProductIDOkay_Click() {
  if (txtSampName.Text().empty()) {
    state::PlainNotice(Screen(), Text(TextId::kEnterSampleName));
    txtSampName.SetFocus();
    return;
  }
  if (txtOperatorName.Text().empty()) {
    state::PlainNotice(Screen(), Text(TextId::kEnterOperatorName));
    txtOperatorName.SetFocus();
    return;
  }
  Hide();
}

void FrmSamp::cmdSampleCancelled_Click() {
  cancelled = true;
  Hide();
}

}  // namespace veritane::identification
