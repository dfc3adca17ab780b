// The captions of all windows, from the string table.
#pragma once

#include "acquisition/frm_collect_std.h"
#include "acquisition/frm_null_region.h"
#include "acquisition/frm_parse.h"
#include "acquisition/frm_prompts.h"
#include "acquisition/frm_select_method.h"
#include "acquisition/frm_status.h"
#include "identification/frm_samp.h"
#include "pls/main_form.h"
#include "review/frm_results.h"
#include "review/frm_select_spectrum.h"
#include "shell/frm_password.h"
#include "shell/main_controls.h"

namespace veritane::shell {

// Every dialog of the program.
struct Dialogs {
  Dialogs(platform::Desktop& desktop, std::function<std::vector<std::string>()> product_ids,
          std::function<std::string()> operator_name, pls::PredictionSurroundings prediction);

  acquisition::FrmCollectStd frmCollectStd;
  acquisition::FrmNullRegion frmNullRegion;
  acquisition::FrmStatus frmStatus;
  review::FrmSelectSpectrum frmSelectSpectrum;
  acquisition::FrmSelectMethod frmSelectMethod;
  identification::FrmSamp frmSamp;
  acquisition::FrmPrompts frmPrompts;
  FrmPassword frmPassword;
  acquisition::FrmParse frmParse;
  review::FrmResults frmResults;
  pls::MainForm mainForm;
};

// Sets the captions with the numbers 16 to 96, window by window in the order of the table; what was added
// since sets its own.
void LoadScreenTexts(Dialogs& dialogs, MainControls& main);

}  // namespace veritane::shell
