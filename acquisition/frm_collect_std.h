// The dialog in which a supervisor defines a new product and its Standard.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

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
};

}  // namespace veritane::acquisition
