// The dialog that asks for a password.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::shell {

class FrmPassword : public platform::Form {
public:
  explicit FrmPassword(platform::Desktop& desktop);

  platform::Label lblPassword{*this, "lblPassword"};
  platform::TextBox txtPassword{*this, "txtPassword"};
  platform::Button cmdPasswordOK{*this, "cmdPasswordOK"};

  // Whether the dialog was closed without an answer since it showed last.
  bool cancelled = false;

  bool txtPassword_KeyPress(int key);
  void cmdPasswordOK_Click();

protected:
  void Form_Activate() override;
  void Form_QueryUnload() override;
};

}  // namespace veritane::shell
