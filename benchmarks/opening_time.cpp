// How long a supervisor waits for 10,000 products: from the press of the button to the drawn grid, and from
// row to row. Writes milliseconds as JSON; run it on a machine that does nothing else.
//
// opening_time ROOT    (an empty folder, which becomes the data root)
#include "apps/simulated_bench.h"
#include "apps/veritane_setup/data_layout.h"
#include "platform/desktop.h"
#include "platform/wx/wx_user_interface.h"
#include "shell/frm_veritane.h"

#include <nlohmann/json.hpp>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/grid.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace veritane::platform {
namespace {

constexpr int kProducts = 10000;
constexpr int kOpenings = 7;
constexpr int kSteps = 100;

std::string Same(const std::string& path) {
  return path;
}

class OpeningTime {
public:
  explicit OpeningTime(const std::filesystem::path& root) : machine_(root, "C") {
    std::filesystem::create_directories(root / "drive_c");
    setup::LayOutData(machine_.Facilities());
    setup::SetDemonstrationMode(machine_.Facilities(), true);
    std::string table = " " + std::to_string(kProducts) + " \r\n";
    for (int i = 1; i <= kProducts; ++i)
      table += "PRODUCT-" + std::to_string(i) + ",Pressed disc,Euclidean,\r\n";
    machine_.files.WriteBytes("C:\\ProgramData\\Kestrova\\Veritane\\Meth.tbl", table);
    main_.Form_Load();
    grid_ = dynamic_cast<wxGrid*>(wxWindow::FindWindowByName("grid"));
    grid_->GetGridWindow()->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
      ++paints_;
      event.Skip();
    });
  }

  void Print() {
    std::vector<double> openings;
    for (int i = 0; i < kOpenings; ++i) {
      openings.push_back(TimeUntilDrawn([this] {
        main_.cmdSupervisor.Click();
        main_.SSTab1.SetTab(shell::kStandardsTab);
      }));
      main_.cmdMainMenu.Click();
    }
    main_.cmdSupervisor.Click();
    main_.SSTab1.SetTab(shell::kStandardsTab);
    std::vector<double> steps;
    for (int i = 1; i <= kSteps; ++i)
      steps.push_back(TimeUntilDrawn([this, i] { main_.grid.SetRow(i * kProducts / kSteps); }));
    const nlohmann::ordered_json report = {
        {"products", kProducts}, {"opening", Summary(openings)}, {"hundred_rows_on", Summary(steps)}};
    std::puts(report.dump().c_str());
    desktop_.End(0);
  }

private:
  double TimeUntilDrawn(const std::function<void()>& act) {
    const auto begin = std::chrono::steady_clock::now();
    const int before = paints_;
    act();
    do {
      wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
    } while (paints_ == before || grid_->GetNumberRows() != kProducts);
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
  }

  static nlohmann::ordered_json Summary(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return {{"runs", times.size()}, {"median_ms", times[times.size() / 2]}, {"longest_ms", times.back()}};
  }

  SystemMachine machine_;
  WxUserInterface screen_{{.toNative = Same, .toWindows = Same}};
  Desktop desktop_{screen_};
  apps::SimulatedBench bench_{machine_, [](std::chrono::milliseconds) {}};
  shell::FrmVeritane main_{desktop_, machine_.Facilities(),
                           [this](const std::string& prog_id) { return bench_.Create(prog_id); }};
  wxGrid* grid_ = nullptr;
  int paints_ = 0;
};

class TimingApplication : public wxApp {
public:
  explicit TimingApplication(std::filesystem::path root) : root_(std::move(root)) {}

  bool OnInit() override {
    SetExitOnFrameDelete(false);
    return true;
  }

  int OnRun() override {
    wxGUIEventLoop loop;
    const wxEventLoopActivator activator(&loop);
    OpeningTime(root_).Print();
    return 0;
  }

private:
  std::filesystem::path root_;
};

}  // namespace
}  // namespace veritane::platform

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: opening_time ROOT\n", stderr);
    return 2;
  }
  // The toolkit would take the argument for its own.
  int own_arguments = 1;
  wxApp::SetInstance(new veritane::platform::TimingApplication(std::filesystem::absolute(argv[1])));
  return wxEntry(own_arguments, argv);
}
