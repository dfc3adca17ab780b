// The Reprocess Data tab: choosing two stored spectra and comparing them again.
#include "shell/frm_veritane.h"

namespace veritane::shell {

review::Reprocessing FrmVeritane::Reprocess() {
  return {bench_, dialogs_.frmSelectSpectrum, {.lblStdName = lblStdName, .lblSampleName = lblSampleName}};
}

void FrmVeritane::cmdStandard_Click() {
  Reprocess().ChooseStandard();
}

void FrmVeritane::cmdSamp_Click() {
  Reprocess().ChooseSample();
}

void FrmVeritane::cmdNow_Click() {
  Reprocess().Run(cmbAlg.Text());
}

}  // namespace veritane::shell
