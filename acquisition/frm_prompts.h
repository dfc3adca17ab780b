// The dialog for a collect method's two operator prompts.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::acquisition {

class FrmPrompts : public platform::Form {
public:
  explicit FrmPrompts(platform::Desktop& desktop);

  platform::Label lblBackgroundPrompt{*this, "lblBackgroundPrompt"};
  platform::TextBox txtBackgroundPrompt{*this, "txtBackgroundPrompt"};
  platform::Label lblSamplePrompt{*this, "lblSamplePrompt"};
  platform::TextBox txtSamplePrompt{*this, "txtSamplePrompt"};
  platform::Button cmdOK{*this, "cmdOK"};

  void cmdOK_Click();

protected:
  void Form_Activate() override { txtBackgroundPrompt.SetFocus(); }
};

}  // namespace veritane::acquisition
