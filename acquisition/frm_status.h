// The status window: one line of what the program is doing while it blocks.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::acquisition {

class FrmStatus : public platform::Form {
public:
  explicit FrmStatus(platform::Desktop& desktop) : Form(desktop, std::string(platform::kStatusForm)) {}

  platform::Label lblStatus{*this, "lblStatus"};

protected:
  // It closes when the work is done, not by hand.
  void Form_QueryUnload() override {}
};

}  // namespace veritane::acquisition
