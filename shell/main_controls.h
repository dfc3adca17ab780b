// The controls of the main window, panel by panel and in tab order.
#pragma once

#include "platform/chart.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/grid.h"

namespace veritane::shell {

// Pages of SSTab1.
enum TabPage : int {
  kSecurityTab,
  kBackgroundTab,
  kMethodsTab,
  kStandardsTab,
  kOptionsTab,
  kReprocessTab,
  kExpertTab,
  kTabCount
};

class MainControls : public platform::Form {
public:
  explicit MainControls(platform::Desktop& desktop);

  // Operator panel.
  platform::Frame fraMainMenu{*this, "fraMainMenu"};
  platform::Label Label8{*this, "Label8"};
  platform::Button cmdSample{*this, "cmdSample"};
  platform::Button cmdSupervisor{*this, "cmdSupervisor"};
  platform::Button cmdExit{*this, "cmdExit"};

  // Supervisor panel.
  platform::Frame fraSupervisorMode{*this, "fraSupervisorMode"};
  platform::TabControl SSTab1{*this, "SSTab1"};

  platform::Frame fraPassword{*this, "fraPassword"};
  platform::OptionButton optNoPassword{*this, "optNoPassword"};
  platform::OptionButton optPassword{*this, "optPassword"};

  platform::Frame fraBackground{*this, "fraBackground"};
  platform::OptionButton optManualBackground{*this, "optManualBackground"};
  platform::OptionButton optBackInterval{*this, "optBackInterval"};
  platform::TextBox txtbackInterval{*this, "txtbackInterval"};
  platform::Label lblHours{*this, "lblHours"};
  platform::OptionButton optBackBeforeSample{*this, "optBackBeforeSample"};
  platform::Button cmdBack{*this, "cmdBack"};

  platform::Frame fraMethods{*this, "fraMethods"};
  platform::Label lblMethods{*this, "lblMethods"};
  platform::ListBox lstMeths{*this, "lstMeths"};
  platform::Label lblNull{*this, "lblNull"};
  platform::ListBox lstNullRegions{*this, "lstNullRegions"};
  platform::Button cmdAddMeth{*this, "cmdAddMeth"};
  platform::Button cmdDeleteMethod{*this, "cmdDeleteMethod"};
  platform::Button cmdNullRegions{*this, "cmdNullRegions"};

  platform::Grid grid{*this, "grid"};
  platform::Frame fraCurrentSelection{*this, "fraCurrentSelection"};
  platform::Label lblProductID{*this, "lblProductID"};
  platform::Label lblCurrentProductID{*this, "lblCurrentProductID"};
  platform::Label lblCollectMethod{*this, "lblCollectMethod"};
  platform::ComboBox cmbCollectMethod{*this, "cmbCollectMethod"};
  platform::Label lblAlgorithm{*this, "lblAlgorithm"};
  platform::ComboBox cmbAlgorithm{*this, "cmbAlgorithm"};
  platform::Button cmdChooseCalFile{*this, "cmdChooseCalFile"};
  platform::Button cmdDel{*this, "cmdDel"};
  platform::Button cmdCollectStdNow{*this, "cmdCollectStdNow"};

  platform::Label lblThreshold{*this, "lblThreshold"};
  platform::TextBox txtThreshold{*this, "txtThreshold"};
  platform::Button cmdParse{*this, "cmdParse"};
  platform::Frame fraPrint{*this, "fraPrint"};
  platform::OptionButton optDefaultPrint{*this, "optDefaultPrint"};
  platform::OptionButton optPrintTemplate{*this, "optPrintTemplate"};
  platform::Label lblPrintTemplate{*this, "lblPrintTemplate"};
  platform::Button cmdSelTemplate{*this, "cmdSelTemplate"};
  platform::CheckBox chkPrintPassFail{*this, "chkPrintPassFail"};

  platform::Frame fraReprocess{*this, "fraReprocess"};
  platform::Button cmdStandard{*this, "cmdStandard"};
  platform::Label lblStdName{*this, "lblStdName"};
  platform::Button cmdSamp{*this, "cmdSamp"};
  platform::Label lblSampleName{*this, "lblSampleName"};
  platform::Label lblReprocessAlgorithm{*this, "lblReprocessAlgorithm"};
  platform::ComboBox cmbAlg{*this, "cmbAlg"};
  platform::Button cmdNow{*this, "cmdNow"};

  platform::Button cmdExpertMode{*this, "cmdExpertMode"};
  platform::Button cmdMainMenu{*this, "cmdMainMenu"};

  // Spectrum panel.
  platform::Frame fraSpectrum{*this, "fraSpectrum"};
  platform::Chart chart{*this, "chart"};
  platform::Label lblReadout{*this, "lblReadout"};
  platform::Label lblResult{*this, "lblResult"};
  platform::Button cmdNextSample{*this, "cmdNextSample"};
  platform::Button cmdResetLimits{*this, "cmdResetLimits"};
  platform::Button cmdPrint{*this, "cmdPrint"};
  platform::Button cmdScreenCopy{*this, "cmdScreenCopy"};
  platform::Button cmdBacktoMainMenu{*this, "cmdBacktoMainMenu"};

private:
  void PlaceControls();
};

}  // namespace veritane::shell
