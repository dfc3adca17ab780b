// Where the main window's controls lie and what they show before the settings are applied.
#include "shell/main_controls.h"

#include "shell/state/settings_file.h"
#include "shell/state/string_table.h"

#include <initializer_list>

namespace veritane::shell {

namespace {

using platform::Control;
using state::Text;
using state::TextId;

void Place(platform::Frame& frame, std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->PlaceIn(frame);
}

void Place(platform::TabControl& tabs, TabPage page, std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->PlaceIn(tabs, page);
}

}  // namespace

MainControls::MainControls(platform::Desktop& desktop) : Form(desktop, "frmVeritane") {
  PlaceControls();
  platform::OptionButton::Group({&optNoPassword, &optPassword});
  platform::OptionButton::Group({&optManualBackground, &optBackInterval, &optBackBeforeSample});
  platform::OptionButton::Group({&optDefaultPrint, &optPrintTemplate});

  Label8.SetCaption(Text(TextId::kSubtitle));
  const state::ShownOptions shown = state::ShownOf({});
  txtbackInterval.SetText(shown.backInterval);
  txtThreshold.SetText(shown.threshold);
  chkPrintPassFail.SetCaption(Text(TextId::kShowPassFail));
  chkPrintPassFail.SetChecked(shown.printPassFail != 0);
  fraPrint.SetCaption(Text(TextId::kPrintOptions));
  optDefaultPrint.SetCaption(Text(TextId::kDefaultPrinting));
  optPrintTemplate.SetCaption(Text(TextId::kPrintWithTemplate));
  cmdSelTemplate.SetCaption(Text(TextId::kChooseTemplate));
  lblReprocessAlgorithm.SetCaption(Text(TextId::kReprocessAlgorithm));
  cmdNextSample.SetCaption(Text(TextId::kNextSample));
  cmdNextSample.isDefault = true;
  cmdBacktoMainMenu.isCancel = true;
}

void MainControls::PlaceControls() {
  Place(fraMainMenu, {&Label8, &cmdSample, &cmdSupervisor, &cmdExit});
  Place(fraSupervisorMode, {&SSTab1, &cmdMainMenu});
  Place(fraSpectrum, {&chart, &lblReadout, &lblResult, &cmdNextSample, &cmdResetLimits, &cmdPrint,
                      &cmdScreenCopy, &cmdBacktoMainMenu});

  SSTab1.SetPages(kTabCount);
  Place(SSTab1, kSecurityTab, {&fraPassword});
  Place(fraPassword, {&optNoPassword, &optPassword});
  Place(SSTab1, kBackgroundTab, {&fraBackground, &cmdBack});
  Place(fraBackground,
        {&optManualBackground, &optBackInterval, &txtbackInterval, &lblHours, &optBackBeforeSample});
  Place(SSTab1, kMethodsTab, {&fraMethods, &cmdAddMeth, &cmdDeleteMethod, &cmdNullRegions});
  Place(fraMethods, {&lblMethods, &lstMeths, &lblNull, &lstNullRegions});
  Place(SSTab1, kStandardsTab, {&grid, &fraCurrentSelection, &cmdCollectStdNow});
  Place(fraCurrentSelection, {&lblProductID, &lblCurrentProductID, &lblCollectMethod, &cmbCollectMethod,
                              &lblAlgorithm, &cmbAlgorithm, &cmdChooseCalFile, &cmdDel});
  Place(SSTab1, kOptionsTab, {&lblThreshold, &txtThreshold, &cmdParse, &fraPrint, &chkPrintPassFail});
  Place(fraPrint, {&optDefaultPrint, &optPrintTemplate, &lblPrintTemplate, &cmdSelTemplate});
  Place(SSTab1, kReprocessTab, {&fraReprocess});
  Place(fraReprocess,
        {&cmdStandard, &lblStdName, &cmdSamp, &lblSampleName, &lblReprocessAlgorithm, &cmbAlg, &cmdNow});
  Place(SSTab1, kExpertTab, {&cmdExpertMode});
}

}  // namespace veritane::shell
