// The dialog in which a supervisor defines a new product and its Standard.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

#include <functional>
#include <optional>
#include <string>

namespace veritane::acquisition {

class FrmCollectStd : public platform::Form {
public:
  explicit FrmCollectStd(platform::Desktop& desktop);

  platform::Label lblProductID{*this, "lblProductID"};
  platform::TextBox txtProductID{*this, "txtProductID"};
  platform::Label lblCollectMethod{*this, "lblCollectMethod"};
  platform::ComboBox cmbmth{*this, "cmbmth"};
  platform::Label lblAlgorithm{*this, "lblAlgorithm"};
  platform::ComboBox cmbAlg{*this, "cmbAlg"};
  platform::Label lblFile{*this, "lblFile"};
  platform::TextBox txtCalFileName{*this, "txtCalFileName"};
  platform::Button cmdChooseCalFile{*this, "cmdChooseCalFile"};
  platform::Button cmdScan{*this, "cmdScan"};
  platform::Button cmdNoScanStandardNow{*this, "cmdNoScanStandardNow"};

  // Whether the dialog was left without confirming it.
  bool cancelled = false;

  // Why the Product ID that was typed cannot become a product, as a sentence, or "".
  std::function<std::string(const std::string& product_id)> WhyNotAProduct;
  // Asks for the file that an algorithm needs.
  std::function<std::optional<std::string>(const std::string& algorithm)> ChooseFile;

  bool txtProductID_KeyPress(int key);
  void cmbAlg_Click();
  void cmdChooseCalFile_Click();
  void cmdScan_Click();
  void cmdNoScanStandardNow_Click();

protected:
  void Form_Activate() override;
  void Form_QueryUnload() override { cmdNoScanStandardNow_Click(); }

private:
  std::string WhyNotComplete() const;
};

}  // namespace veritane::acquisition
