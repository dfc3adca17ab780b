// What stands behind one handle of the library's interface: a calibration file, the spectrum that was loaded
// last, and the prediction that was made last.
#pragma once

#include "plslibrary/calibration_file.h"
#include "plslibrary/measured_spectrum.h"
#include "plslibrary/prediction.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::plslibrary {

class PredictionSession {
public:
  // The bytes of a ".cal" file; PlsError of CalibrationFile.
  explicit PredictionSession(std::string_view bytes) : file_(bytes) {}

  int Total() const { return file_.Total(); }
  // Of calibration `number`, in single bytes. PlsError of CalibrationFile::Read, as in the functions below.
  std::string Memo(std::int32_t number);

  // The spectrum to predict next; nothing when loading one failed, so that no earlier one is taken for it.
  void SetSpectrum(std::optional<MeasuredSpectrum> spectrum) { spectrum_ = std::move(spectrum); }

  // Predicts the loaded spectrum. PlsError kSourceRead without one, and those of OnAxis and Predict; there is
  // no prediction then.
  void PredictBy(std::int32_t number);
  // Makes the calibration's own items available; PlsError takes them away.
  void ReadCalibration(std::int32_t number);

  // A calibration item of whichever of PredictBy and ReadCalibration succeeded last, or an item of the
  // prediction.
  std::optional<std::vector<double>> Item(std::string_view name) const;

private:
  using SharedCalibration = std::shared_ptr<const Calibration>;

  struct Predicted {
    SharedCalibration calibration;
    Axis axis;
    Eigen::VectorXd source;
    Prediction prediction;
  };

  SharedCalibration CalibrationOf(std::int32_t number);

  CalibrationFile file_;
  std::map<std::int32_t, SharedCalibration> parsed_;
  std::optional<MeasuredSpectrum> spectrum_;
  std::optional<Predicted> predicted_;
  SharedCalibration read_;
  SharedCalibration latest_;
};

}  // namespace veritane::plslibrary
