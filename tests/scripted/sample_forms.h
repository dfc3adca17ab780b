// A small program for scripts to play: a main form with every kind of control, a dialog, the status window.
#pragma once

#include "platform/chart.h"
#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "platform/run_time_error.h"
#include "tests/support/script_run.h"

#include <string>
#include <vector>

namespace veritane::platform {

class SampleDialog : public Form {
public:
  explicit SampleDialog(Desktop& desktop) : Form(desktop, "frmDialog") {
    SetCaption("Name");
    cmdOK.isDefault = true;
    cmdCancel.isCancel = true;
    cmdOK.OnClick = [this] {
      if (txtName.Text().empty()) {
        Screen().ShowMessage({.text = "Please enter a name.", .title = " Notice"});
        return;
      }
      Hide();
    };
    cmdCancel.OnClick = [this] {
      cancelled = true;
      Hide();
    };
    cmdAsk.OnClick = [this] { Screen().ShowMessage({.text = "From the dialog", .title = "Nested"}); };
    cmdFail.OnClick = [] { throw RunTimeError(ErrorNumber::kFileNotFound); };
  }

  TextBox txtName{*this, "txtName"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
  Button cmdAsk{*this, "cmdAsk"};
  Button cmdFail{*this, "cmdFail"};
  bool cancelled = false;
};

class SampleMain : public Form {
public:
  explicit SampleMain(Desktop& desktop) : Form(desktop, "frmMain") {
    SetCaption("Sample program");
    for (Control* control : std::vector<Control*>{&cmdNext, &lblResult}) control->PlaceIn(fraResult);
    cmdNext.isDefault = true;
    cmdGo.isDefault = true;
    OptionButton::Group({&optOne, &optTwo});
    lstMethods.AddAll({"Tablet A", "Tablet B", "#1"});
    cmbAlgorithm.AddAll({"Euclidean", "Mark Peaks"});
    cmbProduct.AddAll({"P1", "P2"});
    cmbProduct.isEditable = true;
    txtNotes.isMultiLine = true;
    txtReport.isReadOnly = true;
    txtPassword.isSecret = true;
    tabs.SetPages(2);
    chkOnSecondTab.PlaceIn(tabs, 1);
    grid.Resize(3, 2);
    grid.SetFormat("<ID|<Method");
    fraResult.SetVisible(false);
  }

  Frame fraStart{*this, "fraStart"};
  Button cmdGo{*this, "cmdGo"};
  TextBox txtNumber{*this, "txtNumber"};
  TextBox txtNotes{*this, "txtNotes"};
  TextBox txtReport{*this, "txtReport"};
  TextBox txtPassword{*this, "txtPassword"};
  OptionButton optOne{*this, "optOne"};
  OptionButton optTwo{*this, "optTwo"};
  CheckBox chkPrint{*this, "chkPrint"};
  ListBox lstMethods{*this, "lstMethods"};
  ComboBox cmbAlgorithm{*this, "cmbAlgorithm"};
  ComboBox cmbProduct{*this, "cmbProduct"};
  TabControl tabs{*this, "tabs"};
  CheckBox chkOnSecondTab{*this, "chkOnSecondTab"};
  Grid grid{*this, "grid"};
  Chart chart{*this, "chart"};
  Frame fraResult{*this, "fraResult"};
  Button cmdNext{*this, "cmdNext"};
  Label lblResult{*this, "lblResult"};
};

class SampleStatus : public Form {
public:
  explicit SampleStatus(Desktop& desktop) : Form(desktop, "frmStatus") {}
  Label lblStatus{*this, "lblStatus"};
};

// A run of a script against these forms; the test adds the handlers that it is about.
struct SampleRun {
  SampleRun() {
    run.program.start = [this] {
      run.Screen().AttachForms();
      frmMain.Show();
    };
  }

  Events Lines(std::vector<ScriptRun::Step> steps) { return run.Lines(std::move(steps)); }

  ScriptRun run;
  SampleMain frmMain{run.Screen()};
  SampleDialog frmDialog{run.Screen()};
  SampleStatus frmStatus{run.Screen()};
};

}  // namespace veritane::platform
