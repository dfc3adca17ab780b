// Setting up the program for the tests.
#include "tests/shell/program_fixture.h"

#include "apps/veritane_setup/data_layout.h"
#include "simulator/jcamp_writer.h"
#include "simulator/stored_spectrum.h"
#include "tests/support/test_data.h"

#include <algorithm>
#include <cmath>

namespace veritane::tests {

namespace fs = std::filesystem;

ProgramTest::ProgramTest() {
  const fs::path drive = folder_.Path() / "drive_c";
  fs::create_directories(drive / "ProgramData" / "Kestrova" / "Veritane" / "Standards");
  fs::create_directories(drive / "ProgramData" / "Kestrova" / "Veritane" / "Samples");
  fs::create_directories(drive / "Program");
  machine_.clock.Set({.year = 2026, .month = 11, .day = 21, .hour = 10, .minute = 59, .second = 0});
  Write(Data("Meths.tbl"), " 1 \r\n" + Standard("Disc.clm") + "\r\n");
  WriteProducts({"ASPIRIN-1,Disc,Euclidean,"});
  bench_.OnPrint(
      [this](const std::string& file) { run_.Interface().NotePrint(platform::PrintKind::kTemplate, file); });
  run_.program.start = Starter(run_, program_);
  run_.program.setClock = [this](const platform::DateTime& now) { machine_.clock.Set(now); };
}

std::unique_ptr<acquisition::SpectrometerApp> ProgramTest::Connect(const std::string& prog_id) {
  if (!TestsGoThroughAutomation()) return bench_.Create(prog_id);
  automation_ = std::make_unique<InMemoryAutomation>(simulator::ServeSpectrometerApp(bench_.Create(prog_id)));
  return acquisition::ConnectSpectrometerApp(*automation_, prog_id, {});
}

std::function<void()> ProgramTest::Starter(platform::ScriptRun& run,
                                           std::unique_ptr<shell::FrmVeritane>& program) {
  return [this, &run, &program] {
    run.Screen().UsePrinter(printer_);
    program = std::make_unique<shell::FrmVeritane>(
        run.Screen(), Facilities(), [this](const std::string& prog_id) { return Connect(prog_id); });
    program->Form_Load();
  };
}

platform::Machine ProgramTest::Facilities() {
  return {.files = machine_.files,
          .registry = *machine_.registry,
          .folders = folders_,
          .user = machine_.user,
          .clock = machine_.clock,
          .regional = machine_.regional,
          .libraries = libraries_};
}

void ProgramTest::LayOutShippedData() {
  machine_.files.DeleteFile(Data("Meth.tbl"));
  machine_.files.DeleteFile(Data("Meths.tbl"));
  setup::LayOutData(Facilities());
}

void ProgramTest::WriteMeasuringMethod() {
  const std::string method = "From = 400\r\nTo = 1600\r\nSpacing = 4\r\n";
  Write(Standard("Disc.clm"), method);
  Write(Standard("Initial.clm"), method);
  WriteSpectrum(Standard("Autoalign.bsp"), 100, 4, Bands(301));
}

void ProgramTest::WriteSettings(bool demonstration, const std::string& threshold,
                                const std::string& background) {
  Write(Data("settings.ini"), std::string(demonstration ? "1" : "0") + "\r\n0\r\n\r\n" + background +
                                  "\r\n0\r\n" + threshold + "\r\n0\r\n\r\n1\r\n1\r\n");
}

void ProgramTest::WriteProducts(const std::vector<std::string>& rows) {
  std::string text = " " + std::to_string(rows.size()) + " \r\n";
  for (const std::string& row : rows) text += row + "\r\n";
  Write(Data("Meth.tbl"), text);
}

void ProgramTest::WriteSpectrum(const std::string& path, std::int32_t lower, double spacing,
                                std::vector<double> values) {
  simulator::StoredSpectrum spectrum;
  spectrum.name = "stored";
  spectrum.spacing = spacing;
  spectrum.ordinates = {.lower = lower, .values = std::move(values)};
  const simulator::StoredSpectrum* const only = &spectrum;
  Write(path, simulator::WriteJcamp({&only, 1}));
}

void ProgramTest::WriteSpectra(const std::string& path, int count, std::vector<double> values) {
  simulator::StoredSpectrum spectrum;
  spectrum.name = "stored";
  spectrum.spacing = 4;
  spectrum.ordinates = {.lower = 100, .values = std::move(values)};
  const std::vector<const simulator::StoredSpectrum*> all(static_cast<std::size_t>(count), &spectrum);
  Write(path, simulator::WriteJcamp(all));
}

void ProgramTest::CopyTestData(const std::string& name, const std::string& path) {
  Write(path, TestDataBytes(name));
}

void ProgramTest::SetInstrument(const std::string& sample, int fault, int count) {
  bench_.SampleCompartment().Write({.sample = sample,
                                    .accessory = accessory_,
                                    .fault = fault,
                                    .faultCount = count,
                                    .noise = 0,
                                    .duration = 0,
                                    .seed = 1});
}

ProgramTest::Steps ProgramTest::EnterSample(const std::string& product, const std::string& name,
                                            const std::string& operator_name) {
  return {"click frmVeritane.cmdSample", "set frmSamp.cmbStandards \"" + product + "\"",
          "type frmSamp.txtSampName \"" + name + "\"",
          "type frmSamp.txtOperatorName \"" + operator_name + "\"", "click frmSamp.cmdProductIDOkay"};
}

ProgramTest::Steps ProgramTest::WithOkays(Steps steps, int boxes) {
  steps.insert(steps.end(), static_cast<std::size_t>(boxes), "answer OK");
  return steps;
}

ProgramTest::Steps ProgramTest::BackToTab(int tab) {
  return {"click frmVeritane.cmdBacktoMainMenu", "click frmVeritane.cmdSupervisor",
          "tab frmVeritane.SSTab1 " + std::to_string(tab)};
}

platform::Events ProgramTest::MeasureFirst(const std::string& product, const std::string& material,
                                           Steps more) {
  SetInstrument("empty");
  Steps steps = WithOkays(EnterSample(product), 2);
  steps.insert(steps.end(), {[this, material] { SetInstrument(material); }, "answer OK"});
  steps.insert(steps.end(), more.begin(), more.end());
  return Play(std::move(steps));
}

platform::Events ProgramTest::RunDemonstration(const std::string& product, const std::string& name) {
  // The background is announced, shown as done, and the sample is asked for.
  return Play(WithOkays(EnterSample(product, name), 3));
}

void ProgramTest::ExpectHandedBack(const std::vector<std::string>& calls) {
  const auto begins = [&](const std::string& start) {
    return std::count_if(calls.begin(), calls.end(),
                         [&](const std::string& call) { return call.starts_with(start); });
  };
  EXPECT_EQ(begins("OpenDocument(") + begins("NewDocument("), begins("CloseDocument"))
      << ::testing::PrintToString(calls);
  ASSERT_FALSE(calls.empty());
  EXPECT_EQ(calls.back(), "Interactive(true)");
}

std::vector<double> Bands(std::size_t points, double shift) {
  std::vector<double> values(points);
  for (std::size_t i = 0; i < points; ++i) {
    const double x = static_cast<double>(i);
    const auto band = [x](double centre, double width, double height) {
      return height / (1 + std::pow((x - centre) / width, 2));
    };
    values[i] = band(60 + shift, 6, 1) + band(150 + shift, 9, 0.6) + band(260 - shift, 5, 0.8) + 0.0005 * x;
  }
  return values;
}

}  // namespace veritane::tests
