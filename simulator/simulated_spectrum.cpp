// Spectra of open documents.
#include "simulator/simulated_spectrum.h"

#include "platform/run_time_error.h"

#include <algorithm>
#include <utility>

namespace veritane::simulator {

namespace {

using platform::ErrorNumber;
using platform::RunTimeError;

constexpr std::string_view kNameParameter = "SpectName";
constexpr std::string_view kTimeParameter = "Time";

void RequireAttached(const OpenSpectrum& spectrum) {
  if (!spectrum.attached) {
    throw RunTimeError(ErrorNumber::kInvalidCall,
                       "the spectrum \"" + spectrum.stored.name + "\" stands in no open document any more");
  }
}

// The member that a built-in text parameter stands for, or null.
std::string* BuiltIn(StoredSpectrum& spectrum, std::string_view name) {
  if (name == kNameParameter) return &spectrum.name;
  return name == kTimeParameter ? &spectrum.time : nullptr;
}

NamedValue* FindParameter(StoredSpectrum& spectrum, std::string_view name) {
  const auto found = std::ranges::find(spectrum.parameters, name, &NamedValue::name);
  return found == spectrum.parameters.end() ? nullptr : &*found;
}

// The points as they were when the program asked for them.
class PointsOfSpectrum : public acquisition::SpectrumData {
public:
  PointsOfSpectrum(double spacing, state::Ordinates values) : spacing_(spacing), values_(std::move(values)) {}

  double Spacing() const override { return spacing_; }
  std::int32_t NumberOfPoints() const override { return static_cast<std::int32_t>(values_.Size()); }
  state::Ordinates Values() const override { return values_; }

private:
  double spacing_;
  state::Ordinates values_;
};

class ParameterOfSpectrum : public acquisition::Parameter {
public:
  ParameterOfSpectrum(std::shared_ptr<OpenSpectrum> spectrum, std::string name,
                      std::shared_ptr<CallLog> calls)
      : spectrum_(std::move(spectrum)), name_(std::move(name)), calls_(std::move(calls)) {}

  acquisition::ParameterValue Value() const override {
    if (const std::string* const text = BuiltIn(spectrum_->stored, name_)) return *text;
    return FindParameter(spectrum_->stored, name_)->value;
  }

  void SetValue(const acquisition::ParameterValue& value) override {
    std::visit([&](const auto& plain) { calls_->Note("SetValue", plain); }, value);
    RequireAttached(*spectrum_);
    if (std::string* const text = BuiltIn(spectrum_->stored, name_)) {
      const std::string* const given = std::get_if<std::string>(&value);
      if (given == nullptr) throw RunTimeError(ErrorNumber::kTypeMismatch, "\"" + name_ + "\" is a text");
      *text = *given;
    } else {
      FindParameter(spectrum_->stored, name_)->value = value;
    }
    spectrum_->modified = true;
  }

private:
  std::shared_ptr<OpenSpectrum> spectrum_;
  std::string name_;
  std::shared_ptr<CallLog> calls_;
};

class ParametersOfSpectrum : public acquisition::ParameterList {
public:
  ParametersOfSpectrum(std::shared_ptr<OpenSpectrum> spectrum, std::shared_ptr<CallLog> calls)
      : spectrum_(std::move(spectrum)), calls_(std::move(calls)) {}

  void AddParameter(const std::string& name, std::int32_t kind) override {
    calls_->Note("AddParameter", name, kind);
    RequireAttached(*spectrum_);
    if (name.empty()) throw RunTimeError(ErrorNumber::kInvalidCall, "a parameter needs a name");
    if (BuiltIn(spectrum_->stored, name) || FindParameter(spectrum_->stored, name)) return;
    spectrum_->stored.parameters.push_back({name, std::string()});
    spectrum_->modified = true;
  }

private:
  std::shared_ptr<OpenSpectrum> spectrum_;
  std::shared_ptr<CallLog> calls_;
};

// A marker by its list and number, so that it may outlive a clearing of the list.
class MarkerOfSpectrum : public acquisition::Marker {
public:
  MarkerOfSpectrum(std::shared_ptr<OpenSpectrum> spectrum, std::size_t number, std::shared_ptr<CallLog> calls)
      : spectrum_(std::move(spectrum)), number_(number), calls_(std::move(calls)) {}

  void SetKind(std::int32_t kind) override {
    calls_->Note("SetKind", kind);
    Stored().kind = kind;
  }
  void SetStyle(std::int32_t style) override {
    calls_->Note("SetStyle", style);
    Stored().style = style;
  }
  void SetDefinition(std::int32_t argument, std::int32_t defining_method, double lower_bound) override {
    calls_->Note("SetDefinition", argument, defining_method, lower_bound);
    StoredMarker& marker = Stored();
    marker.definitionArgument = argument;
    marker.definingMethod = defining_method;
    marker.lowerBound = lower_bound;
  }

private:
  StoredMarker& Stored() {
    if (number_ >= spectrum_->markers.size()) {
      throw RunTimeError(ErrorNumber::kInvalidCall, "the marker was cleared");
    }
    return spectrum_->markers[number_];
  }

  std::shared_ptr<OpenSpectrum> spectrum_;
  std::size_t number_;
  std::shared_ptr<CallLog> calls_;
};

class MarkersOfSpectrum : public acquisition::MarkerList {
public:
  MarkersOfSpectrum(std::shared_ptr<OpenSpectrum> spectrum, std::shared_ptr<CallLog> calls)
      : spectrum_(std::move(spectrum)), calls_(std::move(calls)) {}

  std::shared_ptr<acquisition::Marker> AddMarker(double x) override {
    calls_->Note("AddMarker", x);
    spectrum_->markers.push_back({.x = x});
    return std::make_shared<MarkerOfSpectrum>(spectrum_, spectrum_->markers.size() - 1, calls_);
  }
  void ClearMarkers() override {
    calls_->Note("ClearMarkers");
    spectrum_->markers.clear();
  }

private:
  std::shared_ptr<OpenSpectrum> spectrum_;
  std::shared_ptr<CallLog> calls_;
};

}  // namespace

std::shared_ptr<acquisition::SpectrumData> SimulatedSpectrum::SpectrumData() {
  calls_->Note("SpectrumData");
  return std::make_shared<PointsOfSpectrum>(spectrum_->stored.spacing, spectrum_->stored.ordinates);
}

std::shared_ptr<acquisition::Parameter> SimulatedSpectrum::GetParameter(const std::string& name) {
  calls_->Note("GetParameter", name);
  if (!BuiltIn(spectrum_->stored, name) && !FindParameter(spectrum_->stored, name)) {
    throw RunTimeError(ErrorNumber::kInvalidCall,
                       "the spectrum \"" + spectrum_->stored.name + "\" has no parameter \"" + name + "\"");
  }
  return std::make_shared<ParameterOfSpectrum>(spectrum_, name, calls_);
}

std::shared_ptr<acquisition::ParameterList> SimulatedSpectrum::GetParameterList() {
  calls_->Note("GetParameterList");
  return std::make_shared<ParametersOfSpectrum>(spectrum_, calls_);
}

std::shared_ptr<acquisition::MarkerList> SimulatedSpectrum::GetMarkerList() {
  calls_->Note("GetMarkerList");
  return std::make_shared<MarkersOfSpectrum>(spectrum_, calls_);
}

}  // namespace veritane::simulator
