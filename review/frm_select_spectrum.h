// The dialog that lists the spectra of a file to choose one.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::review {

// A click on an entry closes the dialog and leaves the entry selected for the caller. In the window the arrow
// keys only walk through the list, and Enter takes the entry. Closed in any other way, by Escape or by the
// system menu, it leaves none selected.
class FrmSelectSpectrum : public platform::Form {
public:
  explicit FrmSelectSpectrum(platform::Desktop& desktop);

  platform::ListBox lstSpectrum{*this, "lstSpectrum"};

  void lstSpectrum_Click();

protected:
  void Form_Activate() override;
};

}  // namespace veritane::review
