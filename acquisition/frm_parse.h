// The dialog that defines, by example, which part of a Product ID names the product.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::acquisition {

class FrmParse : public platform::Form {
public:
  explicit FrmParse(platform::Desktop& desktop);

  platform::Label lblInstruction{*this, "lblInstruction"};
  platform::TextBox txtTmpProductID{*this, "txtTmpProductID"};
  platform::Button cmdOK{*this, "cmdOK"};
  platform::Button cmdResetParser{*this, "cmdResetParser"};
};

}  // namespace veritane::acquisition
