// Form, wrapper, binding and the library that ships, together: octane of gasoline from its spectrum.
#include "platform/number_text.h"
#include "platform/system/system_machine.h"
#include "pls/loaded_prediction_library.h"
#include "pls/main_form.h"
#include "plslibrary/calibration_file.h"
#include "simulator/spc_writer.h"
#include "tests/pls/scripted_library.h"
#include "tests/plslibrary/gasoline.h"
#include "tests/support/noting_screen.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace veritane::pls {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kFirstPredicted = 50;
constexpr int kFactors = 3;

class Prediction : public ::testing::Test {
protected:
  Prediction() {
    fs::create_directories(folder_.Path() / "drive_c");
    fs::create_directories(Programs());
    fs::copy_file(VERITANE_PREDICTION_LIBRARY, Programs() / VERITANE_LIBRARY_FILE_NAME);
    state_.calfilename = "C:\\Gas.cal";
    machine_.files.WriteBytes(state_.calfilename,
                              plslibrary::CalibrationFileText(std::vector{
                                  gasoline_.Calibrate(kFactors).calibration, gasoline_.TwoConstituents()}));
  }

  fs::path Programs() const { return folder_.Path() / "program"; }

  // The sample's spectrum as the Spectrometer application exports it.
  std::string Exported(Eigen::Index sample) const {
    constexpr double kSpacing = 2;
    simulator::StoredSpectrum spectrum;
    spectrum.name = "gasoline";
    spectrum.xUnits = "NANOMETERS";
    spectrum.spacing = kSpacing;
    spectrum.ordinates.lower = static_cast<std::int32_t>(gasoline_.axis.firstX / kSpacing);
    const Eigen::RowVectorXd row = gasoline_.spectra.row(sample);
    spectrum.ordinates.values.assign(row.begin(), row.end());
    return simulator::WriteSpc(spectrum);
  }

  void Predict() {
    form_.Hide();
    form_.Show();
  }

  const plslibrary::Gasoline gasoline_;
  tests::TemporaryFolder folder_;
  platform::SystemMachine machine_{folder_.Path(), "C"};
  platform::DynamicLibraryLoader libraries_{machine_.paths, Programs()};
  std::optional<std::string> clipboard_;
  LoadedPredictionLibrary library_{libraries_, [this] { return clipboard_; }};
  state::ProgramState state_;
  tests::NotingScreen screen_;
  platform::Desktop desktop_{screen_};
  std::string exported_;
  MainForm form_{
      desktop_,
      {.files = machine_.files,
       .state = state_,
       .library = library_,
       .sampleName = [] { return std::string("gasoline"); },
       .exportSpectrum = [this](const std::string& path) { machine_.files.WriteBytes(path, exported_); },
       .driveApplication = [] {},
       .endProgram = [] {}}};
};

TEST_F(Prediction, OctaneIsWhatTheReferencePredicts) {
  // Columns: sample, octane as measured, predictions by 1 to 6 factors.
  const Eigen::MatrixXd reference = plslibrary::NumbersOf("gasoline_reference_predictions.csv");
  ASSERT_EQ(reference.rows(), 10);
  for (Eigen::Index sample = 0; sample < reference.rows(); ++sample) {
    exported_ = Exported(kFirstPredicted + sample);
    Predict();
    ASSERT_THAT(screen_.messages, IsEmpty());
    ASSERT_TRUE(form_.Succeeded());
    EXPECT_THAT(state_.PLSConstituentNames, ElementsAre("", "octane"));
    ASSERT_EQ(state_.PLSConcentrations.size(), 2U);
    // The export has single precision.
    EXPECT_NEAR(state_.PLSConcentrations[1], reference(sample, 1 + kFactors), 2e-4) << sample;
  }
}

TEST_F(Prediction, TheSecondCalibrationOfAFileIsReachedThroughTheWrapper) {
  machine_.files.WriteBytes("C:\\a.spc", Exported(kFirstPredicted));
  PLSPred pls(library_, desktop_);
  pls.LoadCalFile(state_.calfilename);
  std::int16_t total = 0;
  ASSERT_EQ(pls.GetCalTotal(total), 0);
  EXPECT_EQ(total, 2);
  std::string text;
  ASSERT_EQ(pls.GetCalMemo(text, 2), 0);
  EXPECT_EQ(text, "Two constituents" + std::string(240, ' '));
  ASSERT_EQ(pls.LoadSpcDiskFile("C:\\a.spc"), 0);
  ASSERT_EQ(pls.PlsIqPredic(2), 0);
  ASSERT_EQ(pls.GetConstituent_Names(text), 0);
  EXPECT_EQ(text, "octane\tslope at 1.2 \xC2\xB5m");
  Array values;
  std::int32_t size = 0;
  ASSERT_EQ(pls.GetFtest(values, size), 0);
  ASSERT_EQ(size, 4);
  for (const std::size_t probability : {1U, 3U}) {
    EXPECT_GT(values[probability], 0);
    EXPECT_LT(values[probability], 1);
  }
  EXPECT_EQ(pls.GetBands(values, size), 0);
  EXPECT_EQ(size, 10);
}

TEST_F(Prediction, TextOnTheClipboardIsASpectrumToo) {
  const Eigen::MatrixXd reference = plslibrary::NumbersOf("gasoline_reference_predictions.csv");
  PLSPred pls(library_, desktop_);
  pls.LoadCalFile(state_.calfilename);
  EXPECT_EQ(pls.LoadClipboardText(), 4) << "there is no text";
  clipboard_ = "wavelength\tabsorbance\r\n";
  for (Eigen::Index point = 0; point < gasoline_.spectra.cols(); ++point) {
    const double x = gasoline_.axis.firstX + 2.0 * static_cast<double>(point);
    *clipboard_ += platform::PlainNumberText(x) + "\t" +
                   platform::PlainNumberText(gasoline_.spectra(kFirstPredicted, point)) + "\r\n";
  }
  ASSERT_EQ(pls.LoadClipboardText(), 0);
  ASSERT_EQ(pls.PlsIqPredic(1), 0);
  Array values;
  std::int32_t size = 0;
  ASSERT_EQ(pls.GetConcentration(values, size), 0);
  EXPECT_NEAR(values[0], reference(0, 1 + kFactors), 1e-6);
  clipboard_ = "drum 7";
  EXPECT_EQ(pls.LoadClipboardText(), 5);
}

}  // namespace
}  // namespace veritane::pls
