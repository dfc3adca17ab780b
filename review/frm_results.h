// The results window: the text report of a comparison, beside the spectrum that it belongs to.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::review {

class FrmResults : public platform::Form {
public:
  explicit FrmResults(platform::Desktop& desktop);

  platform::TextBox txtResults{*this, "txtResults"};
  platform::Button cmdPrint{*this, "cmdPrint"};

  // Prints the report as it stands.
  void cmdPrint_Click();
  // Escape closes the window.
  bool txtResults_KeyPress(int key);
};

}  // namespace veritane::review
