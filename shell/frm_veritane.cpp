// The main window's construction, the operator panel and the spectrum panel.
#include "shell/frm_veritane.h"

#include "acquisition/product_table.h"
#include "identification/sample_run.h"
#include "identification/spectrum_preparation.h"
#include "platform/desktop.h"
#include "platform/number_text.h"
#include "review/printing.h"

namespace veritane::shell {

FrmVeritane::FrmVeritane(platform::Desktop& desktop, const platform::Machine& machine,
                         acquisition::CreateSpectrometerApp create_spectrometer_app)
    : MainControls(desktop),
      machine_(machine),
      create_spectrometer_app_(std::move(create_spectrometer_app)),
      prediction_library_(machine.libraries, [&desktop] { return desktop.ClipboardText(); }),
      dialogs_(
          desktop, [this] { return ProductIds(); }, [this] { return state::CurrentUserName(machine_.user); },
          PredictionAround()),
      bench_{.desktop = desktop,
             .machine = machine,
             .state = state_,
             .session = session_,
             .frmStatus = dialogs_.frmStatus,
             .panel = {.fraMainMenu = fraMainMenu,
                       .fraSupervisorMode = fraSupervisorMode,
                       .fraSpectrum = fraSpectrum,
                       .chart = chart,
                       .lblResult = lblResult,
                       .txtResults = dialogs_.frmResults.txtResults,
                       .frmResults = dialogs_.frmResults},
             .Predict = [this] { return Predict(); },
             .MarkStandard = [this] { MarkStandard(); },
             .PrintByTemplate = [this] { review::Printing(bench_).PrintByTemplate(); }},
      methods_(desktop, machine.files, state_,
               {.lstMeths = lstMeths,
                .lstNullRegions = lstNullRegions,
                .frmPrompts = dialogs_.frmPrompts,
                .frmNullRegion = dialogs_.frmNullRegion},
               [this] { LoadMethods(); }),
      products_(desktop, machine.files, state_,
                {.grid = grid,
                 .lblCurrentProductID = lblCurrentProductID,
                 .cmbCollectMethod = cmbCollectMethod,
                 .cmbAlgorithm = cmbAlgorithm}) {
  ConnectOperatorHandlers();
  ConnectSupervisorHandlers();
  ConnectSetUpHandlers();
  ConnectSpectrumHandlers();
  ConnectRecovery();
}

std::vector<std::string> FrmVeritane::ProductIds() const {
  std::vector<std::string> ids;
  const std::string table = acquisition::ProductTablePath(state_);
  for (const acquisition::Product& product :
       acquisition::ReadProductTable(machine_.files.ReadBytes(table), table)) {
    ids.push_back(product.productId);
  }
  return ids;
}

// After a fault in a handler the panel that it came from is there again.
void FrmVeritane::ConnectRecovery() {
  Screen().OnError([this] {
    const bool menu = fraMainMenu.Visible();
    const bool supervisor = fraSupervisorMode.Visible();
    const bool spectrum = fraSpectrum.Visible();
    const bool prediction = dialogs_.mainForm.Shown();
    return [this, menu, supervisor, spectrum, prediction] {
      dialogs_.frmStatus.Hide();
      if (!prediction) dialogs_.mainForm.Hide();
      fraMainMenu.SetVisible(menu);
      fraSupervisorMode.SetVisible(supervisor);
      fraSpectrum.SetVisible(spectrum);
    };
  });
}

void FrmVeritane::ConnectOperatorHandlers() {
  cmdSample.OnClick = [this] { cmdSample_Click(); };
  cmdSupervisor.OnClick = [this] { cmdSupervisor_Click(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };
}

void FrmVeritane::ConnectSpectrumHandlers() {
  chart.OnMouseMove = [this](double x, double y) { chart_MouseMove(x, y); };
  cmdNextSample.OnClick = [this] { cmdNextSample_Click(); };
  cmdResetLimits.OnClick = [this] { cmdResetLimits_Click(); };
  cmdPrint.OnClick = [this] { cmdPrint_Click(); };
  cmdScreenCopy.OnClick = [this] { cmdScreenCopy_Click(); };
  cmdBacktoMainMenu.OnClick = [this] { cmdBacktoMainMenu_Click(); };
}

void FrmVeritane::cmdSample_Click() {
  state_.reprocessing = 0;
  identification::SampleRun run(bench_, dialogs_.frmSamp, Log());
  run.Run({.beforeEverySample = optBackBeforeSample.Checked(),
           .byInterval = optBackInterval.Checked(),
           .intervalHours = platform::LeadingNumber(txtbackInterval.Text())});
}

void FrmVeritane::chart_MouseMove(double pixel_x, double pixel_y) {
  constexpr double kLargestWavenumber = 10000;
  const auto point = chart.PixelToData(pixel_x, pixel_y);
  if (point.x <= kLargestWavenumber) {
    Screen().SetMousePointer(platform::Pointer::kCrosshair);
    lblReadout.SetCaption(platform::FormatPattern(point.x, "####.0") + "," +
                          platform::FormatPattern(point.y, "#0.####"));
  } else {
    Screen().SetMousePointer(platform::Pointer::kDefault);
    lblReadout.SetCaption("");
  }
}

void FrmVeritane::cmdNextSample_Click() {
  cmdBacktoMainMenu_Click();
  // An action of its own: should it fail, the operator panel is the screen to come back to.
  Screen().Perform([this] { cmdSample.Click(); });
}

void FrmVeritane::cmdResetLimits_Click() {
  identification::ResetChartLimits(state_, chart);
}

void FrmVeritane::cmdPrint_Click() {
  review::Printing(bench_).Print();
}

void FrmVeritane::cmdScreenCopy_Click() {
  Screen().CopyPicture(fraSpectrum);
}

void FrmVeritane::cmdBacktoMainMenu_Click() {
  Screen().SetMousePointer(platform::Pointer::kDefault);
  lblReadout.SetCaption("");
  state::ShowPanel(bench_.panel, fraMainMenu);
}

}  // namespace veritane::shell
