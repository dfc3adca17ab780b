// The dialog that lists the spectra of a file to choose one.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace veritane::review {

class FrmSelectSpectrum : public platform::Form {
public:
  explicit FrmSelectSpectrum(platform::Desktop& desktop) : Form(desktop, "frmSelectSpectrum") {}

  platform::ListBox lstSpectrum{*this, "lstSpectrum"};
};

}  // namespace veritane::review
