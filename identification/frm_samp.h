// The sample entry dialog: Product ID, sample name, operator name.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

#include <functional>
#include <string>
#include <vector>

namespace veritane::identification {

class FrmSamp : public platform::Form {
public:
  // `product_ids` gives the products to choose from and `operator_name` the operator's name to begin with;
  // both are asked each time the dialog is shown.
  FrmSamp(platform::Desktop& desktop, std::function<std::vector<std::string>()> product_ids,
          std::function<std::string()> operator_name);

  platform::Label lblProductID{*this, "lblProductID"};
  platform::ComboBox cmbStandards{*this, "cmbStandards"};
  platform::Label lblSampName{*this, "lblSampName"};
  platform::TextBox txtSampName{*this, "txtSampName"};
  platform::Label lblOperator{*this, "lblOperator"};
  platform::TextBox txtOperatorName{*this, "txtOperatorName"};
  platform::Button cmdProductIDOkay{*this, "cmdProductIDOkay"};
  platform::Button cmdSampleCancelled{*this, "cmdSampleCancelled"};

  // Whether the dialog was left without confirming.
  bool cancelled = false;
  // The product to select while it is still in the table: the one of the run before.
  std::string previousProduct;

  bool cmbStandards_KeyPress(int key);
  bool txtSampName_KeyPress(int key);
  bool txtOperatorName_KeyPress(int key);
  void cmdProductIDOkay_Click();
  void cmdSampleCancelled_Click();

protected:
  void Form_Activate() override;
  void Form_QueryUnload() override { cmdSampleCancelled_Click(); }

private:
  std::function<std::vector<std::string>()> product_ids_;
  std::function<std::string()> operator_name_;
};

}  // namespace veritane::identification
