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

  // 1 when the dialog was left without a choice.
  int cancelled = 0;

  void cmdSelectMethodOK_Click();
  void cmdSelectMethodCancel_Click();

protected:
  void Form_Activate() override;
  void Form_QueryUnload() override { cmdSelectMethodCancel_Click(); }
};

}  // namespace veritane::acquisition
