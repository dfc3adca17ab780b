// The dialog that defines, by example, which part of a Product ID names the product.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

#include <functional>
#include <string>

namespace veritane::acquisition {

class FrmParse : public platform::Form {
public:
  explicit FrmParse(platform::Desktop& desktop);

  platform::Label lblInstruction{*this, "lblInstruction"};
  platform::TextBox txtTmpProductID{*this, "txtTmpProductID"};
  platform::Button cmdOK{*this, "cmdOK"};
  platform::Button cmdResetParser{*this, "cmdResetParser"};

  // Keep the definition, and take it back.
  std::function<void(const std::string& example, const std::string& part)> Define;
  std::function<void()> Reset;

  bool txtTmpProductID_KeyPress(int key);
  void cmdOK_Click();
  void cmdResetParser_Click();

protected:
  void Form_Activate() override;
};

}  // namespace veritane::acquisition
