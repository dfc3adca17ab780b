// The dialog that asks for the collect method of a background.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::acquisition {

class FrmSelectMethod : public platform::Form {
public:
  explicit FrmSelectMethod(platform::Desktop& desktop);

  platform::Label lblSelectMethod{*this, "lblSelectMethod"};
  platform::ComboBox cmbSelectMethod{*this, "cmbSelectMethod"};
  platform::Button cmdSelectMethodOK{*this, "cmdSelectMethodOK"};
  platform::Button cmdSelectMethodCancel{*this, "cmdSelectMethodCancel"};
};

}  // namespace veritane::acquisition
