// What the dialogs of this room look like before anybody uses them.
#include "acquisition/frm_collect_std.h"
#include "acquisition/frm_null_region.h"
#include "acquisition/frm_parse.h"
#include "acquisition/frm_prompts.h"
#include "acquisition/frm_select_method.h"

namespace veritane::acquisition {

FrmCollectStd::FrmCollectStd(platform::Desktop& desktop) : Form(desktop, "frmCollectStd") {
  txtProductID.SetToolTip("Name Used to Identify a Unique Product");
  lblFile.SetCaption("File");
  cmdChooseCalFile.SetCaption("C&hoose...");
  cmdScan.isDefault = true;
  cmdNoScanStandardNow.isCancel = true;
}

FrmSelectMethod::FrmSelectMethod(platform::Desktop& desktop) : Form(desktop, "frmSelectMethod") {
  cmdSelectMethodOK.isDefault = true;
  cmdSelectMethodOK.OnClick = [this] { cmdSelectMethodOK_Click(); };
  cmdSelectMethodCancel.isCancel = true;
  cmdSelectMethodCancel.OnClick = [this] { cmdSelectMethodCancel_Click(); };
}

void FrmSelectMethod::Form_Activate() {
  cancelled = 0;
  if (cmbSelectMethod.Selected() < 0 && cmbSelectMethod.Count() > 0) cmbSelectMethod.Select(0);
  cmbSelectMethod.SetFocus();
}

void FrmSelectMethod::cmdSelectMethodOK_Click() {
  Hide();
}

void FrmSelectMethod::cmdSelectMethodCancel_Click() {
  cancelled = 1;
  Hide();
}

FrmPrompts::FrmPrompts(platform::Desktop& desktop) : Form(desktop, "frmPrompts") {
  cmdOK.isDefault = true;
}

FrmNullRegion::FrmNullRegion(platform::Desktop& desktop) : Form(desktop, "frmNullRegion") {
  for (platform::Control* inside : std::initializer_list<platform::Control*>{
           &lblNullStart, &txtNullStart, &lblNullEnd, &txtNullEnd, &cmdAddNullRegion}) {
    inside->PlaceIn(fraAddNullRegion);
  }
  cmdDone.isCancel = true;
}

FrmParse::FrmParse(platform::Desktop& desktop) : Form(desktop, "frmParse") {
  cmdResetParser.SetCaption("Use Full Barcode for Product ID");
  cmdOK.isDefault = true;
}

}  // namespace veritane::acquisition
