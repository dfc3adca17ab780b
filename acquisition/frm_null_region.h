// The dialog for the null regions of a collect method.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::acquisition {

class FrmNullRegion : public platform::Form {
public:
  explicit FrmNullRegion(platform::Desktop& desktop);

  platform::Frame fraAddNullRegion{*this, "fraAddNullRegion"};
  platform::Label lblNullStart{*this, "lblNullStart"};
  platform::TextBox txtNullStart{*this, "txtNullStart"};
  platform::Label lblNullEnd{*this, "lblNullEnd"};
  platform::TextBox txtNullEnd{*this, "txtNullEnd"};
  platform::Button cmdAddNullRegion{*this, "cmdAddNullRegion"};
  platform::ListBox lstNulls{*this, "lstNulls"};
  platform::Button cmdDeleteNullRegion{*this, "cmdDeleteNullRegion"};
  platform::Button cmdDone{*this, "cmdDone"};

  bool txtNullStart_KeyPress(int key);
  bool txtNullEnd_KeyPress(int key);
  void cmdAddNullRegion_Click();
  void cmdDeleteNullRegion_Click();
  void cmdDone_Click();

protected:
  void Form_Activate() override { txtNullStart.SetFocus(); }
};

}  // namespace veritane::acquisition
