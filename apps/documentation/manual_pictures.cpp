// Takes the pictures of the user's guide: the program in its real window, on an empty data root, with a fixed
// clock and a simulated spectrometer whose noise is fixed.
//
// manual_pictures PICTURES ROOT [--smallest]    (docs/manual/make_pictures runs it on a screen of its own)
#include "apps/documentation/picture_interface.h"
#include "apps/simulated_bench.h"
#include "apps/veritane_setup/data_layout.h"
#include "platform/desktop.h"
#include "shell/frm_veritane.h"
#include "shell/state/data_folders.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/toplevel.h>

#include <cstdio>
#include <cstring>

namespace veritane::documentation {
namespace {

using platform::Button;
using platform::ComboBox;
using platform::Label;
using platform::ListBox;
using platform::TextBox;
using shell::TabPage;

class ManualPictures {
public:
  // With `smallest` the main window is as small as it gets.
  ManualPictures(PictureInterface& screen, const std::filesystem::path& root, bool smallest)
      : screen_(screen), machine_(root, "C") {
    std::filesystem::create_directories(root / "drive_c");
    machine_.clock.Set({.year = 2026, .month = 11, .day = 21, .hour = 10, .minute = 59, .second = 0});
    setup::LayOutData(machine_.Facilities());
    PutIn("empty", "Transmission");
    PlanDialogs();
    desktop_.Perform([this] { main_.Form_Load(); });
    if (smallest) {
      auto& window = dynamic_cast<wxTopLevelWindow&>(*wxWindow::FindWindowByName("frmVeritane"));
      window.SetClientSize(window.GetMinClientSize());
    }
  }

  void TakeAll() {
    TakeOperatorPictures();
    Click(main_.cmdSupervisor);
    TakeSecurityPictures();
    TakeBackgroundPictures();
    TakeMethodPictures();
    TakeStandardPictures();
    TakeOptionPictures();
    TakeReprocessPictures();
    ShowTab(shell::kExpertTab, "supervisor-expert");
    desktop_.End(0);
  }

private:
  void PutIn(const std::string& sample, const std::string& accessory) {
    simulator::CompartmentState state;
    state.sample = sample;
    state.accessory = accessory;
    state.duration = 1;
    state.seed = 7;
    bench_.SampleCompartment().Write(state);
  }

  void Click(Button& button) {
    desktop_.Perform([&button] { button.Click(); });
  }

  void TakeMainWindow(const std::string& name) { screen_.TakePicture(name, {"frmVeritane"}); }

  template <typename Kind>
  Kind& In(const char* form, const char* control) {
    return dynamic_cast<Kind&>(*desktop_.Find(form)->Find(control));
  }

  // The first measurement of all shows the status window.
  void WhileMeasuring() {
    const std::string& status = In<Label>("frmStatus", "lblStatus").Caption();
    if (is_status_taken_ || status != " Scanning...") return;
    is_status_taken_ = true;
    screen_.TakePicture("status", {"frmStatus"});
  }

  void PlanDialogs() {
    screen_.OnDialog("frmSamp", [this] {
      In<ComboBox>("frmSamp", "cmbStandards").SetText(product_);
      In<TextBox>("frmSamp", "txtSampName").SetText(sample_name_);
      // Whoever makes the pictures, the operator in them is the same.
      In<TextBox>("frmSamp", "txtOperatorName").SetText("Maria Lindqvist");
      if (!is_entry_taken_) screen_.TakePicture("sample-entry", {"frmSamp"});
      is_entry_taken_ = true;
      In<Button>("frmSamp", "cmdProductIDOkay").Click();
    });
    screen_.OnDialog("frmPassword", [this] {
      In<TextBox>("frmPassword", "txtPassword").SetText("spectra");
      screen_.TakePicture("password", {"frmPassword"});
    });
    screen_.OnDialog("frmSelectMethod", [this] {
      screen_.TakePicture("select-method", {"frmSelectMethod"});
      In<Button>("frmSelectMethod", "cmdSelectMethodCancel").Click();
    });
    screen_.OnDialog("frmNullRegion", [this] { FillNullRegions(); });
    screen_.OnDialog("frmPrompts", [this] {
      In<TextBox>("frmPrompts", "txtBackgroundPrompt").SetText(" Please empty the sample holder.");
      In<TextBox>("frmPrompts", "txtSamplePrompt").SetText(" Please put the film into the sample holder.");
      screen_.TakePicture("prompts", {"frmPrompts"});
    });
    screen_.OnDialog("frmCollectStd", [this] { FillStandard(); });
    screen_.OnDialog("frmParse", [this] {
      auto& example = In<TextBox>("frmParse", "txtTmpProductID");
      example.SetText("L2611-PARACETAMOL-0042");
      example.Highlight(6, 11);
      screen_.TakePicture("product-id-part", {"frmParse"});
    });
    screen_.OnDialog("frmSelectSpectrum", [this] {
      screen_.TakePicture("select-spectrum", {"frmSelectSpectrum"});
      In<ListBox>("frmSelectSpectrum", "lstSpectrum").Select(0);
    });
  }

  void FillNullRegions() {
    const auto add = [this](const char* start, const char* end) {
      In<TextBox>("frmNullRegion", "txtNullStart").SetText(start);
      In<TextBox>("frmNullRegion", "txtNullEnd").SetText(end);
    };
    auto& button = In<Button>("frmNullRegion", "cmdAddNullRegion");
    add("2400", "2280");
    button.Click();
    add("690", "640");
    button.Click();
    add("3900", "3600");
    screen_.TakePicture("null-regions", {"frmNullRegion"});
    button.Click();
  }

  void FillStandard() {
    In<TextBox>("frmCollectStd", "txtProductID").SetText("IBUPROFEN-200");
    screen_.TakePicture("standard", {"frmCollectStd"});
    In<ComboBox>("frmCollectStd", "cmbAlg").Select(4);
    In<TextBox>("frmCollectStd", "txtCalFileName").SetText(data_folder_ + "Standards\\ibuprofen peaks.txt");
    screen_.TakePicture("standard-with-file", {"frmCollectStd"});
    In<Button>("frmCollectStd", "cmdNoScanStandardNow").Click();
  }

  // From the menu to the result; `before` is done while the program asks for the sample.
  void Measure(const std::string& product, const std::string& name, const std::string& material,
               const std::string& accessory, const std::string& picture_of_request = "") {
    product_ = product;
    sample_name_ = name;
    screen_.Expect({.text = "Ready for Sample.", .picture = picture_of_request, .act = [=, this] {
                      PutIn(material, accessory);
                    }});
    Click(main_.cmdSample);
    PutIn("empty", accessory);
  }

  void TakeOperatorPictures() {
    TakeMainWindow("operator-menu");
    screen_.Expect({.text = "A new Background is required.", .picture = "background-due"});
    screen_.Expect({.text = "Background Done"});
    Measure("ASA-100", "Lot 4711-B", "acetylsalicylic acid", "Transmission", "sample-ready");
    TakeMainWindow("result-pass");
    main_.chart.Zoom({1500, 1900}, {0, 1});
    TakeMainWindow("result-zoomed");
    Click(main_.cmdResetLimits);
    Click(main_.cmdBacktoMainMenu);

    Measure("ASA-100", "Lot 4712-A", "paracetamol", "Transmission");
    TakeMainWindow("result-fail");
    Click(main_.cmdBacktoMainMenu);

    Measure("ASA-100-BANDS", "Lot 4713-C", "acetylsalicylic acid 0.9 + lactose 0.3", "Transmission");
    screen_.TakePicture("result-lumivar", {"frmVeritane", "frmResults"});
    desktop_.Perform([this] { desktop_.Find("frmResults")->Close(); });
    Click(main_.cmdBacktoMainMenu);

    screen_.Expect({.text = "A new Background is required."});
    screen_.Expect({.text = "Incorrect sampling accessory", .picture = "wrong-accessory", .act = [this] {
                      PutIn("empty", "ATR");
                    }});
    screen_.Expect({.text = "Background Done"});
    Measure("POLYSTYRENE-PEAKS", "Film 26-118", "polystyrene", "ATR");
    TakeMainWindow("result-marked-peaks");
    Click(main_.cmdBacktoMainMenu);
  }

  void ShowTab(TabPage page, const std::string& picture) {
    desktop_.Perform([&] { main_.SSTab1.SetTab(page); });
    if (!picture.empty()) TakeMainWindow(picture);
  }

  void TakeSecurityPictures() {
    desktop_.Perform([this] { main_.optPassword.Check(); });
    ShowTab(shell::kSecurityTab, "supervisor-security");
    desktop_.Perform([this] { main_.optNoPassword.Check(); });
  }

  void TakeBackgroundPictures() {
    desktop_.Perform([this] {
      main_.optBackInterval.Check();
      main_.txtbackInterval.SetText("8");
    });
    ShowTab(shell::kBackgroundTab, "supervisor-background");
    Click(main_.cmdBack);
  }

  void TakeMethodPictures() {
    platform::FileSystem& files = machine_.files;
    const std::string standards = data_folder_ + "Standards\\";
    files.WriteBytes(standards + "Film holder.clm", files.ReadBytes(standards + "Pressed disc.clm"));
    ShowTab(shell::kMethodsTab, "");
    screen_.ExpectFile(standards + "Film holder.clm");
    Click(main_.cmdAddMeth);
    desktop_.Perform([this] { main_.lstMeths.Select(0); });
    Click(main_.cmdNullRegions);
    TakeMainWindow("supervisor-methods");
  }

  void TakeStandardPictures() {
    ShowTab(shell::kStandardsTab, "");
    desktop_.Perform([this] { main_.grid.SetRow(3); });
    TakeMainWindow("supervisor-standards");
    Click(main_.cmdCollectStdNow);
    screen_.Expect({.text = "Are you sure you want to delete",
                    .picture = "delete-product",
                    .act = {},
                    .answer = platform::MessageAnswer::kNo});
    Click(main_.cmdDel);
  }

  void TakeOptionPictures() {
    ShowTab(shell::kOptionsTab, "supervisor-options");
    Click(main_.cmdParse);
  }

  void TakeReprocessPictures() {
    ShowTab(shell::kReprocessTab, "");
    screen_.ExpectFile(data_folder_ + "Standards\\ASA-100.bsp");
    Click(main_.cmdStandard);
    screen_.ExpectFile(data_folder_ + "Samples\\ASA-100.bsp");
    Click(main_.cmdSamp);
    TakeMainWindow("supervisor-reprocess");
    Click(main_.cmdNow);
    TakeMainWindow("result-reprocessed");
    Click(main_.cmdBacktoMainMenu);
    Click(main_.cmdSupervisor);
  }

  PictureInterface& screen_;
  platform::SystemMachine machine_;
  platform::Desktop desktop_{screen_};
  apps::SimulatedBench bench_{machine_, [this](std::chrono::milliseconds) { WhileMeasuring(); }};
  shell::FrmVeritane main_{desktop_, machine_.Facilities(),
                           [this](const std::string& prog_id) { return bench_.Create(prog_id); }};
  const std::string data_folder_ = state::DataFolderBelow(machine_.folders.CommonApplicationData(true));
  std::string product_;
  std::string sample_name_;
  bool is_entry_taken_ = false;
  bool is_status_taken_ = false;
};

class PictureApplication : public wxApp {
public:
  PictureApplication(std::filesystem::path folder, std::filesystem::path root, bool smallest)
      : folder_(std::move(folder)), root_(std::move(root)), smallest_(smallest) {}

  bool OnInit() override {
    SetExitOnFrameDelete(false);
    return true;
  }

  int OnRun() override {
    wxGUIEventLoop loop;
    const wxEventLoopActivator activator(&loop);
    PictureInterface screen(folder_);
    ManualPictures pictures(screen, root_, smallest_);
    pictures.TakeAll();
    return screen.HasFailed() ? 1 : 0;
  }

private:
  std::filesystem::path folder_;
  std::filesystem::path root_;
  bool smallest_;
};

}  // namespace
}  // namespace veritane::documentation

int main(int argc, char** argv) {
  const bool smallest = argc == 4 && std::strcmp(argv[3], "--smallest") == 0;
  if (argc != 3 && !smallest) {
    std::fputs("usage: manual_pictures PICTURES ROOT [--smallest]\n", stderr);
    return 2;
  }
  const std::filesystem::path folder = std::filesystem::absolute(argv[1]);
  std::filesystem::create_directories(folder);
  // The toolkit would take the arguments for its own.
  int own_arguments = 1;
  wxApp::SetInstance(
      new veritane::documentation::PictureApplication(folder, std::filesystem::absolute(argv[2]), smallest));
  return wxEntry(own_arguments, argv);
}
