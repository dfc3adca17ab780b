// The whole program on a data folder of its own, played from lines: what a laboratory has before it, without
// a window.
#pragma once

#include "apps/simulated_bench.h"
#include "platform/pdf/pdf_printer.h"
#include "platform/system/system_machine.h"
#include "shell/frm_veritane.h"
#include "simulator/spectrum_file.h"
#include "tests/support/automation_connection.h"
#include "tests/support/script_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace veritane::tests {

class ProgramTest : public ::testing::Test {
protected:
  using Steps = std::vector<platform::ScriptRun::Step>;

  // Lays out an empty data folder: both tables with one method and the products given, no settings.
  ProgramTest();

  // Windows paths.
  static std::string Data(const std::string& leaf) { return "C:\\ProgramData\\Kestrova\\Veritane\\" + leaf; }
  static std::string Standard(const std::string& leaf) { return Data("Standards\\" + leaf); }
  static std::string Sample(const std::string& leaf) { return Data("Samples\\" + leaf); }

  void Write(const std::string& path, const std::string& text) { machine_.files.WriteBytes(path, text); }
  std::string Read(const std::string& path) const { return machine_.files.ReadBytes(path); }
  // The product table's text.
  std::string Table() const { return Read(Data("Meth.tbl")); }
  // The spectra in a file.
  std::vector<simulator::StoredSpectrum> Spectra(const std::string& path) const {
    return simulator::ReadSpectrumFile(path, Read(path)).spectra;
  }
  bool Exists(const std::string& path) const { return machine_.files.FileExists(path); }

  // Ten lines of settings; the threshold and whether the program demonstrates.
  void WriteSettings(bool demonstration, const std::string& threshold = "90",
                     const std::string& background = "1");
  platform::Machine Facilities();
  // Puts what ships in place of the empty data folder.
  void LayOutShippedData();
  // What measuring by the method "Disc" takes: the method, 301 points from 400 cm⁻¹ on, and the
  // calibration's.
  void WriteMeasuringMethod();
  // The product table with these rows ("ID,method,algorithm,file").
  void WriteProducts(const std::vector<std::string>& rows);
  // A spectrum file with the given ordinates from point `lower` on.
  void WriteSpectrum(const std::string& path, std::int32_t lower, double spacing, std::vector<double> values);
  // The same, several spectra alike.
  void WriteSpectra(const std::string& path, int count, std::vector<double> values);
  // A data file of the tests under another name.
  void CopyTestData(const std::string& name, const std::string& path);

  // The simulated application, in process or through automation as the environment asks for.
  std::unique_ptr<acquisition::SpectrometerApp> Connect(const std::string& prog_id);
  // What starts a program on this machine in a run of its own.
  std::function<void()> Starter(platform::ScriptRun& run, std::unique_ptr<shell::FrmVeritane>& program);

  // What lies in the simulated instrument, and the fault that the next `count` collections report. It
  // measures at once and without noise, with the accessory that is in it.
  void SetInstrument(const std::string& sample, int fault = 0, int count = 0);

  // Starts the program with the machine as it is and plays the steps.
  platform::Events Play(Steps steps) { return run_.Lines(std::move(steps)); }
  // The steps of one sample of a product, up to and with the OK of the dialog.
  static Steps EnterSample(const std::string& product, const std::string& name = "Lot 7",
                           const std::string& operator_name = "Ann");
  // The steps, and behind them OK for as many boxes.
  static Steps WithOkays(Steps steps, int boxes = 1);
  // From the spectrum on display to a tab of the supervisor's.
  static Steps BackToTab(int tab);
  // A first sample of a product takes a background, too; further steps answer what comes behind the result.
  platform::Events MeasureFirst(const std::string& product, const std::string& material, Steps more = {});
  // A sample in demonstration mode, all boxes answered.
  platform::Events RunDemonstration(const std::string& product, const std::string& name = "Lot 7");

  std::string Caption(const std::string& control) { return run_.Get(control)["caption"]; }
  std::string Verdict() { return run_.Get("frmVeritane.chart")["labels"][platform::Chart::kVerdictLabel]; }
  bool IsVisible(const std::string& control) { return run_.Get(control)["visible"]; }
  std::vector<std::string> Calls() { return bench_.Calls().Take(); }
  // The last of the calls, "" when there were none.
  std::string LastCall() {
    const std::vector<std::string> calls = Calls();
    return calls.empty() ? "" : calls.back();
  }

  // Of the operations called, what opened and closed documents: each one opened must be closed again, and
  // the application is the user's.
  static void ExpectHandedBack(const std::vector<std::string>& calls);

  std::string accessory_ = simulator::kTransmissionAccessory;
  TemporaryFolder folder_;
  platform::SystemMachine machine_{folder_.Path(), "C"};
  TestFolders folders_;
  // The prediction library lies beside the programs, not beside the tests.
  platform::DynamicLibraryLoader libraries_{machine_.paths, VERITANE_PROGRAMS};
  apps::SimulatedBench bench_{machine_, [](std::chrono::milliseconds) {}};
  std::unique_ptr<InMemoryAutomation> automation_;
  // There is no printer: everything goes into files.
  platform::PdfPrinter printer_{machine_.files, machine_.clock, [this] { return program_->PrintFolder(); }};
  platform::ScriptRun run_;
  std::unique_ptr<shell::FrmVeritane> program_;
};

// A spectrum with some bands on a slope: nothing about it is symmetric or flat.
std::vector<double> Bands(std::size_t points, double shift = 0);

}  // namespace veritane::tests
