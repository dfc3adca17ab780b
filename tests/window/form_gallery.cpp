// Shows every form of the program with sample data, one after the other, and saves a picture of each: to look
// at, after a change of the layouts. Not a test.
//
// form_gallery FOLDER    (needs a display, and the program "import" of ImageMagick)
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/timer.h>
#include <wx/utils.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

#include "acquisition/frm_collect_std.h"
#include "acquisition/frm_null_region.h"
#include "acquisition/frm_parse.h"
#include "acquisition/frm_prompts.h"
#include "acquisition/frm_select_method.h"
#include "acquisition/frm_status.h"
#include "identification/frm_samp.h"
#include "platform/system/system_machine.h"
#include "platform/wx/wx_user_interface.h"
#include "pls/main_form.h"
#include "review/frm_results.h"
#include "review/frm_select_spectrum.h"
#include "shell/main_controls.h"
#include "tests/pls/scripted_library.h"

namespace veritane {
namespace {

using platform::ChartSeries;
using platform::Desktop;
using platform::Form;

// Forms of rooms that the gallery does not link.
class PasswordForm : public Form {
public:
  explicit PasswordForm(Desktop& desktop) : Form(desktop, "frmPassword") {
    SetCaption("Password");
    lblPassword.SetCaption(" Enter Password");
    txtPassword.isSecret = true;
    txtPassword.SetText("secret");
    cmdPasswordOK.SetCaption("O&K");
  }
  platform::Label lblPassword{*this, "lblPassword"};
  platform::TextBox txtPassword{*this, "txtPassword"};
  platform::Button cmdPasswordOK{*this, "cmdPasswordOK"};
};

// What the prediction form shows when it is opened.
class TabletLibrary : public pls::ScriptedLibrary {
public:
  TabletLibrary() {
    items["ncomp"] = {2};
    items["constituent_names"] = pls::NameBlocks({"Moisture", "Active ingredient"});
    items["concentration"] = {4.21, 97.8};
  }
};

const std::map<std::string, std::string> kMainCaptions = {
    {"fraSupervisorMode", "Supervisor Options"},
    {"cmdMainMenu", "Ret&urn to Operator Mode"},
    {"fraPassword", "Password Options"},
    {"optNoPassword", "No Password"},
    {"optPassword", "Password Required"},
    {"fraBackground", "Background Options"},
    {"optManualBackground", "Manually Collect Background"},
    {"optBackInterval", "New Background Required Every"},
    {"lblHours", "Hours"},
    {"optBackBeforeSample", "Collect Background Before Every Sample"},
    {"cmdBack", "Coll&ect Background Now"},
    {"fraMethods", "Methods"},
    {"lblMethods", "Currently Defined Collect Methods"},
    {"lblNull", "Null"},
    {"cmdAddMeth", "&Add Collect Method"},
    {"cmdDeleteMethod", "Delete Met&hod"},
    {"cmdNullRegions", "Add &Null Regions"},
    {"fraCurrentSelection", "Current Selection"},
    {"lblProductID", "Product ID"},
    {"lblCurrentProductID", "Paracetamol 500 mg"},
    {"lblCollectMethod", "Collect Method"},
    {"lblAlgorithm", "Algorithm"},
    {"cmdChooseCalFile", "Chan&ge"},
    {"cmdDel", "&Delete"},
    {"cmdCollectStdNow", "Collect &Standard Spectrum No&w"},
    {"lblThreshold", "Pass/Fail Threshold (0-100%)"},
    {"cmdParse", "De&fine Product ID/Barcode Identifier"},
    {"lblPrintTemplate",
     "C:\\ProgramData\\Veritane\\Templates\\Laboratory report with chart and signature.bpt"},
    {"fraReprocess", "Reprocess"},
    {"cmdStandard", "Sele&ct Standard"},
    {"lblStdName", "C:\\ProgramData\\Veritane\\Standards\\R&D\\Paracetamol 500 mg.bsp"},
    {"cmdSamp", "Se&lect Sample"},
    {"lblSampleName", "Z:\\home\\laboratory\\archive\\2026\\November\\Paracetamol 500 mg-12.bsp"},
    {"cmdNow", "&Reprocess Now"},
    {"cmdExpertMode", "Exit to Expert Mode"},
    {"fraSpectrum", " Match Quality"},
    {"cmdResetLimits", "&Reset Spectrum Limits"},
    {"cmdPrint", "&Print Spectrum"},
    {"cmdScreenCopy", "&Screen Copy"},
    {"cmdBacktoMainMenu", "&Back to Main Menu"},
    {"fraMainMenu", "Operator Mode"},
    {"cmdSample", "&Sample"},
    {"cmdSupervisor", "Su&pervisor Mode"},
    {"cmdExit", "E&xit"},
    {"lblReadout", "1685.2,0.9312"},
    {"lblResult",
     "Sample Name: Lot 4711-B, drum 3 of 12  97.35%.  Saturday November 21 2026 at 10:59:00  Operator= Maria "
     "Lindqvist"},
};

// A spectrum of some bands with a little noise.
ChartSeries Spectrum(const std::string& title, double shift, double scale) {
  ChartSeries series{.title = title, .x = {}, .y = {}};
  for (double wavenumber = 400; wavenumber <= 4000; wavenumber += 0.125) {
    double value = 0.03 + 0.00002 * (wavenumber - 400);
    for (const auto& [centre, width, height] : {std::tuple{698.0, 6.0, 0.9},
                                                {757.0, 8.0, 0.7},
                                                {1028.0, 9.0, 0.3},
                                                {1452.0, 9.0, 0.55},
                                                {1493.0, 7.0, 0.6},
                                                {1601.0, 6.0, 0.4},
                                                {2849.0, 16.0, 0.4},
                                                {2922.0, 22.0, 0.75},
                                                {3026.0, 14.0, 0.6}}) {
      const double distance = (wavenumber - centre - shift) / width;
      value += height * scale / (1 + distance * distance);
    }
    value += 0.006 * std::sin(wavenumber * 12.9898 + shift) * std::cos(wavenumber * 78.233);
    series.x.push_back(wavenumber);
    series.y.push_back(value);
  }
  return series;
}

void FillChart(platform::Chart& chart) {
  const platform::ChartBatch batch(chart);
  chart.SetSeries(0, Spectrum("Standard: Paracetamol 500 mg", 0, 1));
  chart.SetSeries(1, Spectrum("Sample: Lot 4711-B", 4, 0.93));
  chart.SetX({400, 4000});
  chart.SetY({-0.08, 1.1});
  chart.SetY2({-0.08, 1.1});
  chart.SetTitles("Wavenumber (cm⁻¹)", "Absorbance (normalised)");
  chart.SetHeader(
      {"Standard: Paracetamol 500 mg, collected Friday November 20 2026", "Collect method: Tablet ATR"});
  chart.SetLabel(platform::Chart::kVerdictLabel, "PASS");
  chart.SetVerdictColour(platform::VerdictColour::kPass);
}

class Gallery {
public:
  Gallery(platform::WxUserInterface& ui, std::filesystem::path folder)
      : ui_(ui), folder_(std::move(folder)), desktop_(ui), main_(desktop_) {
    CaptionMain();
    CaptionDialogs();
    desktop_.AttachForms();
  }

  void Show() {
    ShowMain();
    for (Form* form : desktop_.Forms()) {
      if (form == &main_) continue;
      form->Show();
      Save(form->Name());
      form->Hide();
    }
    ShowMessage("message_ok",
                {" Ready for Sample. Please put the tablet on the crystal and press it down."
                 " Click OK to scan Sample.",
                 " Notice", platform::MessageIcon::kExclamation, platform::MessageButtons::kOk});
    ShowMessage("message_yes_no",
                {"Are you sure you want to delete R&D 7? Standard spectra, Sample spectra, and Histogram "
                 "file will be "
                 "deleted.",
                 "Delete Row...", platform::MessageIcon::kQuestion, platform::MessageButtons::kYesNo});
    ShowMessage("message_short", {" Access Denied", " Notice", platform::MessageIcon::kCritical});
    desktop_.End(0);
  }

private:
  void CaptionMain() {
    main_.SetCaption("Veritane 1.0.0");
    for (const auto& [name, caption] : kMainCaptions) main_.Find(name)->SetCaption(caption);
    const char* tabs[] = {"Securit&y", "&Background",     "Collect Meth&ods", "S&tandards",
                          "Opt&ions",  "&Reprocess Data", "Expert &Mode"};
    for (int page = 0; page < shell::kTabCount; ++page) main_.SSTab1.SetPageCaption(page, tabs[page]);
    main_.optNoPassword.Check();
    main_.optBackInterval.Check();
    main_.txtbackInterval.SetText("8");
    main_.optPrintTemplate.Check();
    main_.lstMeths.AddAll({"C:\\ProgramData\\Veritane\\Standards\\Tablet ATR.clm",
                           "C:\\ProgramData\\Veritane\\Standards\\Powder DRIFT.clm"});
    main_.lstMeths.Select(0);
    main_.lstNullRegions.AddAll({"2400 - 2280", "690 - 640"});
    for (auto* combo : {&main_.cmbAlgorithm, &main_.cmbAlg}) {
      combo->AddAll({"Euclidean", "Fourier", "Lumivar", "PLS", "Mark Peaks"});
      combo->Select(0);
    }
    main_.cmbCollectMethod.AddAll({"Tablet ATR", "Powder DRIFT"});
    main_.cmbCollectMethod.Select(0);
    FillGrid();
    FillChart(main_.chart);
    main_.fraSupervisorMode.SetVisible(false);
    main_.fraSpectrum.SetVisible(false);
  }

  void FillGrid() {
    main_.grid.SetFormat("< Product ID  |< Collect Method  |< Algorithm |<File Name");
    std::vector<std::vector<std::string>> rows;
    for (int i = 1; i <= 10000; ++i) {
      rows.push_back({"Product " + std::to_string(i), i % 3 == 0 ? "Powder DRIFT" : "Tablet ATR",
                      i % 5 == 0 ? "PLS" : "Euclidean",
                      i % 5 == 0 ? "C:\\ProgramData\\Veritane\\Standards\\moisture in tablets.cal" : ""});
    }
    rows[0][0] = "Paracetamol 500 mg";
    main_.grid.SetBody(std::move(rows));
    main_.grid.SetRow(3);
  }

  void CaptionDialogs() {
    samp_.SetCaption("Sample");
    samp_.lblProductID.SetCaption("Product ID");
    samp_.lblSampName.SetCaption("Sample Name");
    samp_.lblOperator.SetCaption("Operator Name");
    samp_.cmdProductIDOkay.SetCaption("O&K");
    samp_.cmdSampleCancelled.SetCaption("&Cancel");
    collect_.SetCaption("Standard");
    collect_.lblProductID.SetCaption("Product ID");
    collect_.lblCollectMethod.SetCaption("Collect Method");
    collect_.lblAlgorithm.SetCaption("Algorithm");
    collect_.cmdScan.SetCaption("&Scan Standard");
    collect_.cmdNoScanStandardNow.SetCaption("&Cancel");
    null_.SetCaption("Null Region");
    null_.lblNullStart.SetCaption("Start of Null Region (high wavenumber)");
    null_.lblNullEnd.SetCaption("End of Null Region (low wavenumber");
    null_.fraAddNullRegion.SetCaption("Add a Null Region");
    null_.cmdAddNullRegion.SetCaption("&Add");
    null_.cmdDeleteNullRegion.SetCaption("Delete &Null Region");
    null_.cmdDone.SetCaption("&Done");
    null_.lstNulls.AddAll({"2400 - 2280", "690 - 640"});
    status_.SetCaption("Status");
    status_.lblStatus.SetCaption(" Scanning...");
    select_spectrum_.SetCaption("Select a Spectrum");
    for (int i = 1; i <= 30; ++i) {
      select_spectrum_.lstSpectrum.Add("Lot 4711-" + std::to_string(i) + " Collected on 21.11.2026 10:59:00");
    }
    select_method_.SetCaption("Select Method");
    select_method_.lblSelectMethod.SetCaption("Select a Collect Method for the Background");
    select_method_.cmbSelectMethod.AddAll({"Tablet ATR", "Powder DRIFT"});
    select_method_.cmdSelectMethodOK.SetCaption("O&K");
    select_method_.cmdSelectMethodCancel.SetCaption("&Cancel");
    prompts_.SetCaption("Operator Prompts");
    prompts_.lblBackgroundPrompt.SetCaption("Operator Prompt for a Background");
    prompts_.lblSamplePrompt.SetCaption("Operator Prompt for a Sample");
    prompts_.cmdOK.SetCaption("O&K");
    parse_.SetCaption("Define Product ID/Barcode Identifier");
    parse_.lblInstruction.SetCaption(
        "Type in representative Product ID or scan in a representative Barcode. Use the mouse to hilight "
        "that portion "
        "of the Product ID that identifies the general product type (ie. ignore date fields, batch number "
        "fields etc.)");
    parse_.cmdOK.SetCaption("O&K");
    parse_.txtTmpProductID.SetText("LOT123-ASPIRIN-2024");
    parse_.txtTmpProductID.Highlight(7, 7);
    state_.calfilename = "C:\\ProgramData\\Veritane\\Standards\\moisture in tablets.cal";
    results_.txtResults.SetText(
        "500 - 600     .000104\r\n600 - 700     .000087\r\n700 - 800     .0012\r\n800 - 900     .\r\n");
  }

  void ShowMain() {
    main_.Show();
    Save("main_operator");
    main_.fraMainMenu.SetVisible(false);
    main_.fraSupervisorMode.SetVisible(true);
    for (int page = 0; page < shell::kTabCount; ++page) {
      main_.SSTab1.SetTab(page);
      Save("main_tab_" + std::to_string(page));
    }
    main_.fraSupervisorMode.SetVisible(false);
    main_.fraSpectrum.SetVisible(true);
    Save("main_spectrum_pass");
    main_.chart.SetLabel(platform::Chart::kVerdictLabel, "FAIL");
    main_.chart.SetVerdictColour(platform::VerdictColour::kFail);
    main_.chart.SetMarkers({{698, "698.0"},
                            {757, "757.0"},
                            {1028, "1028.0"},
                            {1452, "1452.0"},
                            {1493, "1493.0"},
                            {1601, "1601.0"},
                            {2922, "2922.0"},
                            {3026, "3026.0"}});
    main_.chart.SetRegions({{2280, 2400, "Null region"}, {640, 660, ""}});
    ChartSeries second{
        .title = "Difference", .x = {400, 1500, 2500, 4000}, .y = {0.1, 0.9, 0.3, 0.5}, .onSecondAxis = true};
    main_.chart.SetSeries(2, second);
    main_.chart.SetY2({0, 5});
    Save("main_spectrum_fail");
    main_.chart.Zoom({1400, 1700}, {0, 0.8});
    Save("main_spectrum_zoom");
  }

  void ShowMessage(const std::string& name, const platform::Message& message) {
    wxTimer photographer;
    photographer.Bind(wxEVT_TIMER, [this, name](wxTimerEvent&) {
      Save(name);
      if (auto* box = dynamic_cast<wxDialog*>(wxWindow::FindWindowByName("message"))) box->EndModal(wxID_OK);
    });
    photographer.StartOnce(300);
    desktop_.ShowMessage(message);
  }

  void Save(const std::string& name) {
    for (int i = 0; i < 8; ++i) {
      ui_.ProcessPendingEvents();
      wxMilliSleep(40);
    }
    const std::string command = "import -window root '" + (folder_ / (name + ".png")).string() + "'";
    if (std::system(command.c_str()) != 0) std::fprintf(stderr, "no picture of %s\n", name.c_str());
  }

  platform::WxUserInterface& ui_;
  std::filesystem::path folder_;
  Desktop desktop_;
  shell::MainControls main_;
  identification::FrmSamp samp_{desktop_,
                                [] {
                                  return std::vector<std::string>{"Paracetamol 500 mg", "Caffeine"};
                                },
                                [] { return std::string("Maria Lindqvist"); }};
  PasswordForm password_{desktop_};
  acquisition::FrmCollectStd collect_{desktop_};
  acquisition::FrmNullRegion null_{desktop_};
  acquisition::FrmParse parse_{desktop_};
  acquisition::FrmPrompts prompts_{desktop_};
  acquisition::FrmSelectMethod select_method_{desktop_};
  acquisition::FrmStatus status_{desktop_};
  review::FrmResults results_{desktop_};
  review::FrmSelectSpectrum select_spectrum_{desktop_};
  platform::SystemMachine machine_{folder_, "C"};
  state::ProgramState state_;
  TabletLibrary library_;
  pls::MainForm prediction_{desktop_,
                            {.files = machine_.files,
                             .state = state_,
                             .library = library_,
                             .sampleName = [] { return std::string("Lot 4711-B"); },
                             .exportSpectrum = [](const std::string&) {},
                             .driveApplication = [] {},
                             .endProgram = [] {}}};
};

}  // namespace
}  // namespace veritane

int main(int argc, char** argv) {
  const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
  std::filesystem::create_directories(folder);
  std::unique_ptr<veritane::Gallery> gallery;
  const auto same = [](const std::string& path) { return path; };
  return veritane::platform::RunInWindow(argc, argv, {.toNative = same, .toWindows = same},
                                         [&](veritane::platform::WxUserInterface& ui) {
                                           gallery = std::make_unique<veritane::Gallery>(ui, folder);
                                           gallery->Show();
                                         });
}
