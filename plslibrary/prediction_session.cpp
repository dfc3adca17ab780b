// The states of one handle.
#include "plslibrary/prediction_session.h"

#include "plslibrary/items.h"
#include "plslibrary/pls_error.h"

namespace veritane::plslibrary {

PredictionSession::SharedCalibration PredictionSession::CalibrationOf(std::int32_t number) {
  const auto found = parsed_.find(number);
  if (found != parsed_.end()) return found->second;
  return parsed_[number] = std::make_shared<const Calibration>(file_.Read(number));
}

std::string PredictionSession::Memo(std::int32_t number) {
  return SingleByteText(CalibrationOf(number)->memo).value_or("");
}

void PredictionSession::PredictBy(std::int32_t number) {
  predicted_.reset();
  latest_ = read_;
  const SharedCalibration calibration = CalibrationOf(number);
  if (!spectrum_) throw PlsError(PlsCode::kSourceRead, "no spectrum is loaded");
  Predicted predicted{calibration, calibration->axis, OnAxis(calibration->axis, *spectrum_),
                      RoomForPrediction(*calibration)};
  if (spectrum_->xType != 0) predicted.axis.xType = spectrum_->xType;
  if (spectrum_->yType != 0) predicted.axis.yType = spectrum_->yType;
  Predict(*calibration, predicted.source, predicted.prediction);
  predicted_ = std::move(predicted);
  latest_ = calibration;
}

void PredictionSession::ReadCalibration(std::int32_t number) {
  read_.reset();
  latest_ = predicted_ ? predicted_->calibration : nullptr;
  read_ = CalibrationOf(number);
  latest_ = read_;
}

std::optional<std::vector<double>> PredictionSession::Item(std::string_view name) const {
  if (latest_) {
    if (auto item = CalibrationItem(*latest_, name)) return item;
  }
  if (!predicted_) return std::nullopt;
  return PredictionItem(
      {*predicted_->calibration, predicted_->axis, predicted_->source, predicted_->prediction}, name);
}

}  // namespace veritane::plslibrary
