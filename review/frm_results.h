// The results window: the text report of a comparison.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::review {

class FrmResults : public platform::Form {
public:
  explicit FrmResults(platform::Desktop& desktop) : Form(desktop, "frmResults") {
    SetCaption("Results");
    txtResults.isMultiLine = true;
    txtResults.isReadOnly = true;
    cmdPrint.SetCaption("&Print");
  }

  platform::TextBox txtResults{*this, "txtResults"};
  platform::Button cmdPrint{*this, "cmdPrint"};
};

}  // namespace veritane::review
