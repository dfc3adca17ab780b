// The functions of the library as a program calls them: items, codes, and calls that make no sense.
#include "pls/pls_library.h"

#include "plslibrary/calibration_file.h"
#include "plslibrary/prediction.h"
#include "tests/pls/f_test_reference.h"
#include "tests/plslibrary/gasoline.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <map>

namespace veritane::plslibrary {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

std::string ClipboardText;

std::int32_t VERITANE_PLS_CALL ReadClipboard(char* text, std::int32_t capacity) {
  const auto length = static_cast<std::int32_t>(ClipboardText.size());
  std::memcpy(text, ClipboardText.data(), static_cast<std::size_t>(std::min(length, capacity)));
  return length;
}

// A calibration file with octane by 3 factors, and with two constituents, in a folder of the test's own.
class PlsLibrary : public ::testing::Test {
protected:
  PlsLibrary() {
    Write("gas.cal", CalibrationFileText(calibrations_));
    handle_ = LoadCalFile(PathOf("gas.cal").c_str());
  }

  ~PlsLibrary() override {
    SetPlsClipboardReader(nullptr);
    UnLoadCalFile(handle_);
  }

  std::string PathOf(const std::string& name) const { return (folder_.Path() / name).string(); }

  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder_.Path() / name, std::ios::binary) << bytes;
  }

  // As text of two columns.
  void WriteSpectrum(const std::string& name, const MeasuredSpectrum& spectrum) const {
    std::string text = "X Type = " + std::to_string(spectrum.xType) + "\n";
    const double step = (spectrum.lastX - spectrum.firstX) / static_cast<double>(spectrum.y.size() - 1);
    for (std::size_t i = 0; i < spectrum.y.size(); ++i) {
      char line[80];
      std::snprintf(line, sizeof line, "%.17g %.17g\n", spectrum.firstX + step * static_cast<double>(i),
                    spectrum.y[i]);
      text += line;
    }
    Write(name, text);
  }

  std::int32_t PredictSpectrum(const MeasuredSpectrum& spectrum, std::int32_t number = 1) const {
    WriteSpectrum("sample.txt", spectrum);
    EXPECT_EQ(LoadAsciiDiskFile(handle_, PathOf("sample.txt").c_str()), 0);
    return PlsIqPredic(handle_, number);
  }

  std::vector<double> Item(const std::string& name) const {
    const std::int32_t record = name == "bands" ? 5 : 1;
    const std::int32_t size = GetItemSize(handle_, name.c_str());
    std::vector<double> values(static_cast<std::size_t>(size * record), std::nan(""));
    const std::int32_t copied = CopyItem(handle_, values.data(), name.c_str(), size * record);
    EXPECT_EQ(copied, IsCounted(name) ? size : 0) << name;
    return values;
  }

  static bool IsCounted(const std::string& name) {
    return name == "calfac" || name == "bands" || name == "flags" || name == "prep" || name == "bsln" ||
           name == "thick";
  }

  const Gasoline gasoline_;
  const std::vector<Calibration> calibrations_{gasoline_.Calibrate(3).calibration,
                                               gasoline_.TwoConstituents()};
  tests::TemporaryFolder folder_;
  std::int32_t handle_ = 0;
};

TEST_F(PlsLibrary, EveryItemHasTheSizeThatIsCopied) {
  ASSERT_EQ(PredictSpectrum(gasoline_.Measured(52), 2), 0);
  const std::map<std::string, std::size_t> sizes{{"residual", 2},
                                                 {"concentration", 2},
                                                 {"scores", 5},
                                                 {"distance", 2},
                                                 {"resid_spectrum", 702},
                                                 {"source", 401},
                                                 {"memo", 16},
                                                 {"constituent_names", 64},
                                                 {"fsets", 1},
                                                 {"ffp", 1},
                                                 {"flp", 1},
                                                 {"npts", 1},
                                                 {"xtype", 1},
                                                 {"ytype", 1},
                                                 {"conc_limits", 4},
                                                 {"score_limits", 10},
                                                 {"resid_limits", 4},
                                                 {"dist_limits", 4},
                                                 {"fratio", 4},
                                                 {"calfac", 2},
                                                 {"ncomp", 1},
                                                 {"bands", 10},
                                                 {"proc_spectrum", 351},
                                                 {"flags", 3},
                                                 {"prep", 2},
                                                 {"bsln", 1},
                                                 {"thick", 1}};
  ASSERT_EQ(sizes.size(), 27U);
  for (const auto& [name, size] : sizes) {
    const std::vector<double> values = Item(name);
    EXPECT_EQ(values.size(), size) << name;
    EXPECT_FALSE(std::ranges::any_of(values, [](double value) { return std::isnan(value); })) << name;

    std::vector<double> guarded(size + 1, -77);
    const std::int32_t refused =
        CopyItem(handle_, guarded.data(), name.c_str(), static_cast<std::int32_t>(size) - 1);
    EXPECT_EQ(refused, IsCounted(name) ? 0 : 11) << name;
    EXPECT_THAT(guarded, Each(-77)) << name << " is not copied by halves";
    CopyItem(handle_, guarded.data(), name.c_str(), static_cast<std::int32_t>(size) + 1);
    EXPECT_EQ(guarded.back(), -77) << name;
  }
}

TEST_F(PlsLibrary, ItemsSayWhatTheCalibrationAndThePredictionAre) {
  ASSERT_EQ(PredictSpectrum(gasoline_.Measured(52), 2), 0);
  EXPECT_THAT(Item("ncomp"), ElementsAre(2));
  EXPECT_THAT(Item("fsets"), ElementsAre(2));
  EXPECT_THAT(Item("calfac"), ElementsAre(3, 2));
  EXPECT_THAT(Item("bands"), ElementsAre(900, 1198, 1, 150, 150, 1300, 1700, 201, 401, 201));
  EXPECT_THAT(Item("prep"), ElementsAre(1, 1));
  EXPECT_THAT(Item("flags"), ElementsAre(1, 50, 10));
  EXPECT_THAT(Item("ffp"), ElementsAre(900));
  EXPECT_THAT(Item("flp"), ElementsAre(1700));
  EXPECT_THAT(Item("npts"), ElementsAre(401));
  EXPECT_THAT(Item("xtype"), ElementsAre(3));
  EXPECT_EQ(Item("conc_limits")[0], gasoline_.octane.head(50).maxCoeff());
  EXPECT_EQ(Item("conc_limits")[1], gasoline_.octane.head(50).minCoeff());
  const std::vector<double> names = Item("constituent_names");
  EXPECT_EQ(std::string(names.begin(), names.begin() + 7), std::string("octane\0", 7));
  EXPECT_EQ(names[32 + 13], 0xB5) << "one code a character";
  EXPECT_EQ(Item("source"), gasoline_.Measured(52).y);
  char memo[kPlsMemoBufferSize];
  ASSERT_EQ(GetCalMemo(handle_, 2, memo), 0);
  EXPECT_STREQ(memo, "Two constituents");

  // What the factors explain and what they do not are the whole of the preprocessed spectrum.
  const FactorSet& octane = calibrations_[1].sets[0];
  const std::vector<double> scores = Item("scores");
  const std::vector<double> processed = Item("proc_spectrum");
  const std::vector<double> rest = Item("resid_spectrum");
  double squares = 0;
  for (Eigen::Index point = 0; point < 351; ++point) {
    const auto i = static_cast<std::size_t>(point);
    double explained = 0;
    for (Eigen::Index factor = 0; factor < 3; ++factor) {
      explained += scores[static_cast<std::size_t>(factor)] * octane.loadings(point, factor);
    }
    EXPECT_NEAR(explained + rest[i], processed[i], 1e-10);
    squares += rest[i] * rest[i];
  }
  EXPECT_NEAR(Item("residual")[0], squares, 1e-9 * squares);
}

TEST_F(PlsLibrary, TheFTestTellsAGoodSpectrumFromAnOutlyingOne) {
  const auto probability = [&](const MeasuredSpectrum& spectrum) {
    EXPECT_EQ(PredictSpectrum(spectrum), 0);
    const std::vector<double> pair = Item("fratio");
    return pls::FTestProbability(Item("residual")[0] * pair[0] / pair[1], pair[0] - Item("calfac")[0] - 2);
  };
  // Of the samples themselves, most lie well inside.
  std::vector<long double> own;
  for (Eigen::Index row = 0; row < 50; ++row) own.push_back(probability(gasoline_.Measured(row)));
  std::ranges::sort(own);
  EXPECT_LT(own[25], 0.6);
  EXPECT_LT(own.back(), 0.99);

  MeasuredSpectrum contaminated = gasoline_.Measured(7);
  for (std::size_t i = 100; i < 140; ++i) contaminated.y[i] += 0.1;
  EXPECT_GT(probability(contaminated), 0.99);

  MeasuredSpectrum strange = gasoline_.Measured(7);
  for (double& y : strange.y) y = 2 * y;
  EXPECT_EQ(PredictSpectrum(strange), 0);
  EXPECT_GT(Item("distance")[0], Item("dist_limits")[0]);
  EXPECT_EQ(PredictSpectrum(gasoline_.Measured(7)), 0);
  EXPECT_LT(Item("distance")[0], Item("dist_limits")[0]);
  EXPECT_LT(Item("residual")[0], Item("resid_limits")[0]);
}

TEST_F(PlsLibrary, ASpectrumThatDoesNotMatchIsCode6) {
  const MeasuredSpectrum good = gasoline_.Measured(0);
  MeasuredSpectrum turned{good.lastX, good.firstX, {good.y.rbegin(), good.y.rend()}, good.xType, good.yType};
  ASSERT_EQ(PredictSpectrum(good), 0);
  const double concentration = Item("concentration")[0];
  ASSERT_EQ(PredictSpectrum(turned), 0) << "the direction of x does not matter";
  EXPECT_EQ(Item("concentration")[0], concentration);
  EXPECT_EQ(Item("source"), good.y);

  MeasuredSpectrum shifted = good;
  shifted.firstX += 0.015;
  shifted.lastX += 0.015;
  EXPECT_EQ(PredictSpectrum(shifted), 0) << "rounded ends";
  shifted.firstX += 0.1;
  shifted.lastX += 0.1;
  EXPECT_EQ(PredictSpectrum(shifted), 6);
  MeasuredSpectrum shorter = good;
  shorter.y.pop_back();
  EXPECT_EQ(PredictSpectrum(shorter), 6);
  MeasuredSpectrum wavenumbers = good;
  wavenumbers.xType = 1;
  EXPECT_EQ(PredictSpectrum(wavenumbers), 6);
  wavenumbers.xType = 0;
  EXPECT_EQ(PredictSpectrum(wavenumbers), 0) << "a unit that is not stated";
}

TEST_F(PlsLibrary, AFailedLoadLeavesNoSpectrumThatCouldBeTakenForIt) {
  ASSERT_EQ(PredictSpectrum(gasoline_.Measured(0)), 0);
  const std::vector<double> concentration = Item("concentration");
  EXPECT_EQ(LoadSpcDiskFile(handle_, PathOf("missing.spc").c_str()), 4);
  EXPECT_EQ(LoadSpcDiskFile(handle_, folder_.Path().string().c_str()), 4);
  EXPECT_EQ(LoadSpcDiskFile(handle_, PathOf("gas.cal").c_str()), 5);
  EXPECT_EQ(Item("concentration"), concentration) << "an earlier prediction stays until the next one";
  EXPECT_EQ(PlsIqPredic(handle_, 1), 5);
  EXPECT_EQ(GetItemSize(handle_, "concentration"), 0);
}

TEST_F(PlsLibrary, FloatsAndTheClipboardAreSourcesToo) {
  const std::vector<double> y = gasoline_.Measured(3).y;
  const std::vector<float> floats(y.begin(), y.end());
  Write("sample.dat",
        std::string(reinterpret_cast<const char*>(floats.data()), floats.size() * sizeof(float)));
  ASSERT_EQ(LoadMemDouble(handle_, PathOf("sample.dat").c_str()), 0);
  ASSERT_EQ(PlsIqPredic(handle_, 1), 0);
  const double concentration = Item("concentration")[0];
  EXPECT_NEAR(concentration, gasoline_.octane(3), 0.6);

  EXPECT_EQ(LoadClipboardText(handle_), 4) << "no source of text";
  SetPlsClipboardReader(ReadClipboard);
  WriteSpectrum("sample.txt", gasoline_.Measured(3));
  std::ifstream file(PathOf("sample.txt"));
  ClipboardText.assign(std::istreambuf_iterator<char>(file), {});
  ASSERT_EQ(LoadClipboardText(handle_), 0);
  ASSERT_EQ(PlsIqPredic(handle_, 1), 0);
  EXPECT_NEAR(Item("concentration")[0], concentration, 1e-3);
  ClipboardText = "no spectrum";
  EXPECT_EQ(LoadClipboardText(handle_), 5);
}

TEST_F(PlsLibrary, ReadingACalibrationGivesItsOwnItemsAndNoPrediction) {
  EXPECT_EQ(GetItemSize(handle_, "memo"), 0);
  ASSERT_EQ(ReadCalFile(handle_, 2), 0);
  EXPECT_EQ(GetItemSize(handle_, "bands"), 2);
  EXPECT_EQ(GetItemSize(handle_, "ffp"), 0);
  EXPECT_EQ(GetItemSize(handle_, "concentration"), 0);
  ASSERT_EQ(PredictSpectrum(gasoline_.Measured(0), 1), 0);
  EXPECT_EQ(GetItemSize(handle_, "calfac"), 1) << "the calibration used last";
  EXPECT_EQ(ReadCalFile(handle_, 3), 8);
  EXPECT_EQ(PlsIqPredic(handle_, 0), 8);
}

TEST_F(PlsLibrary, SeveralFilesAreOpenAtOnce) {
  const std::int32_t other = LoadCalFile(PathOf("gas.cal").c_str());
  ASSERT_NE(other, 0);
  ASSERT_NE(other, handle_);
  ASSERT_EQ(PredictSpectrum(gasoline_.Measured(0)), 0);
  EXPECT_EQ(GetItemSize(other, "concentration"), 0);
  EXPECT_EQ(UnLoadCalFile(other), 0);
  EXPECT_EQ(UnLoadCalFile(other), 2);
  EXPECT_EQ(GetCalTotal(other), 0);
  EXPECT_EQ(GetItemSize(handle_, "concentration"), 1);
}

TEST_F(PlsLibrary, CallsThatMakeNoSenseAreAnsweredByACode) {
  EXPECT_EQ(LoadCalFile(nullptr), 0);
  EXPECT_EQ(LoadCalFile(PathOf("missing.cal").c_str()), 0);
  EXPECT_EQ(LoadCalFile(folder_.Path().string().c_str()), 0);
  Write("foreign.cal", "something else");
  EXPECT_EQ(LoadCalFile(PathOf("foreign.cal").c_str()), 0);
  double value = 0;
  char memo[kPlsMemoBufferSize];
  for (const std::int32_t handle : {0, -1, 12345}) {
    EXPECT_EQ(UnLoadCalFile(handle), 2);
    EXPECT_EQ(GetCalMemo(handle, 1, memo), 2);
    EXPECT_EQ(LoadSpcDiskFile(handle, "x"), 2);
    EXPECT_EQ(LoadClipboardText(handle), 2);
    EXPECT_EQ(PlsIqPredic(handle, 1), 2);
    EXPECT_EQ(ReadCalFile(handle, 1), 2);
    EXPECT_EQ(GetItemSize(handle, "memo"), 0);
    EXPECT_EQ(CopyItem(handle, &value, "calfac", 1), 0);
    EXPECT_EQ(CopyItem(handle, &value, "ncomp", 1), 2);
  }
  EXPECT_EQ(GetCalMemo(handle_, 1, nullptr), 11);
  EXPECT_EQ(LoadSpcDiskFile(handle_, nullptr), 4);
  EXPECT_EQ(LoadMemDouble(handle_, nullptr), 4);
  ASSERT_EQ(PredictSpectrum(gasoline_.Measured(0)), 0);
  EXPECT_EQ(GetItemSize(handle_, nullptr), 0);
  EXPECT_EQ(GetItemSize(handle_, "Residual"), 0);
  EXPECT_EQ(CopyItem(handle_, nullptr, "residual", 1), 11);
  EXPECT_EQ(CopyItem(handle_, &value, nullptr, 1), 11);
  EXPECT_EQ(CopyItem(handle_, &value, "residual", -1), 11);
  EXPECT_EQ(CopyItem(handle_, &value, "no such item", 1), 11);
}

TEST_F(PlsLibrary, ADamagedCalibrationIsCode3AndALongMemoIsCut) {
  std::vector<Calibration> calibrations = calibrations_;
  calibrations[0].memo = std::string(300, 'm');
  std::string bytes = CalibrationFileText(calibrations);
  bytes[bytes.size() - 40] ^= 1;
  Write("damaged.cal", bytes);
  const std::int32_t damaged = LoadCalFile(PathOf("damaged.cal").c_str());
  ASSERT_NE(damaged, 0);
  EXPECT_EQ(GetCalTotal(damaged), 2);
  EXPECT_EQ(ReadCalFile(damaged, 2), 3);
  char memo[kPlsMemoBufferSize + 1];
  memo[kPlsMemoBufferSize] = '#';
  EXPECT_EQ(GetCalMemo(damaged, 2, memo), 3);
  EXPECT_EQ(GetCalMemo(damaged, 1, memo), 0);
  EXPECT_EQ(std::strlen(memo), 255U);
  EXPECT_EQ(memo[kPlsMemoBufferSize], '#');
  UnLoadCalFile(damaged);
}

TEST_F(PlsLibrary, APointThatIsNoNumberIsNoConcentration) {
  Eigen::VectorXd source = gasoline_.spectra.row(0);
  Prediction prediction = RoomForPrediction(calibrations_[0]);
  source(17) = std::nan("");
  EXPECT_ANY_THROW(Predict(calibrations_[0], source, prediction));
  source.setConstant(1e300);
  EXPECT_ANY_THROW(Predict(calibrations_[0], source, prediction));
}

}  // namespace
}  // namespace veritane::plslibrary
