// Feeds arbitrary bytes to the reader of calibration files, as a file and as one calibration whose checksum
// is right. What it takes must be written and read again without a change and must predict; what it refuses
// must be refused with a PlsError.
#include "plslibrary/calibration_file.h"
#include "plslibrary/items.h"
#include "plslibrary/pls_error.h"
#include "tests/fuzz/require.h"

namespace {

using namespace veritane::plslibrary;
using veritane::fuzz::Require;

void RequireUsable(const Calibration& calibration) {
  const std::string json = CalibrationJson(calibration);
  Require(CalibrationJson(ParseCalibration(json)) == json);
  // An axis can claim more points than the calibration uses; a spectrum of those is not made here.
  if (calibration.axis.points > 100'000) return;
  const Eigen::VectorXd source = Eigen::VectorXd::LinSpaced(calibration.axis.points, 0, 1);
  Prediction prediction = RoomForPrediction(calibration);
  try {
    Predict(calibration, source, prediction);
  } catch (const PlsError&) {
    return;
  }
  const PredictedSpectrum predicted{calibration, calibration.axis, source, prediction};
  for (const char* item :
       {"concentration", "scores", "residual", "score_limits", "resid_spectrum", "fratio"}) {
    Require(!PredictionItem(predicted, item)->empty());
  }
  for (const char* item : {"bands", "calfac", "constituent_names"}) {
    Require(!CalibrationItem(calibration, item)->empty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = veritane::fuzz::BytesOf(data, size);
  try {
    const CalibrationFile file(bytes);
    RequireUsable(file.Read(1));
  } catch (const PlsError&) {
  }
  try {
    RequireUsable(ParseCalibration(bytes));
  } catch (const PlsError&) {
  }
  return 0;
}
