// Spectra, their data, parameters and markers over automation.
#include "acquisition/automation_spectrum.h"

namespace veritane::acquisition {

namespace {

using platform::AutomationValue;

class AutomationSpectrumData : public SpectrumData {
public:
  explicit AutomationSpectrumData(ServerObject data) : data_(std::move(data)) {}

  double Spacing() const override { return NumberOf(data_.Use(Member::kSpacing)); }
  std::int32_t NumberOfPoints() const override { return Int32Of(data_.Use(Member::kNumberOfPoints)); }
  state::Ordinates Values() const override {
    platform::AutomationArray array = ArrayOf(data_.Use(Member::kValues));
    return {.lower = array.lower, .values = std::move(array.values)};
  }

private:
  ServerObject data_;
};

class AutomationParameter : public Parameter {
public:
  explicit AutomationParameter(ServerObject parameter) : parameter_(std::move(parameter)) {}

  ParameterValue Value() const override {
    const AutomationValue value = parameter_.Use(Member::kGetValue);
    if (std::holds_alternative<std::monostate>(value)) return std::string();
    if (const auto* const text = std::get_if<std::string>(&value)) return *text;
    return NumberOf(value);
  }
  void SetValue(const ParameterValue& value) override {
    std::visit([this](const auto& plain) { parameter_.Use(Member::kSetValue, {plain}); }, value);
  }

private:
  ServerObject parameter_;
};

class AutomationParameterList : public ParameterList {
public:
  explicit AutomationParameterList(ServerObject list) : list_(std::move(list)) {}

  void AddParameter(const std::string& name, std::int32_t kind) override {
    list_.Use(Member::kAddParameter, {name, kind});
  }

private:
  ServerObject list_;
};

class AutomationMarker : public Marker {
public:
  explicit AutomationMarker(ServerObject marker) : marker_(std::move(marker)) {}

  void SetKind(std::int32_t kind) override { marker_.Use(Member::kSetKind, {kind}); }
  void SetStyle(std::int32_t style) override { marker_.Use(Member::kSetStyle, {style}); }
  void SetDefinition(std::int32_t argument, std::int32_t defining_method, double lower_bound) override {
    const ServerObject definition = marker_.UseForObject(Member::kGetDefinition, {argument});
    definition.Use(Member::kSetDefiningMethod, {defining_method});
    definition.Use(Member::kSetLowerBound, {lower_bound});
  }

private:
  ServerObject marker_;
};

class AutomationMarkerList : public MarkerList {
public:
  explicit AutomationMarkerList(ServerObject list) : list_(std::move(list)) {}

  std::shared_ptr<Marker> AddMarker(double x) override {
    return std::make_shared<AutomationMarker>(list_.UseForObject(Member::kAddMarker, {x}));
  }
  void ClearMarkers() override { list_.Use(Member::kClearMarkers); }

private:
  ServerObject list_;
};

class AutomationSpectrum : public Spectrum {
public:
  explicit AutomationSpectrum(ServerObject spectrum) : spectrum_(std::move(spectrum)) {}

  std::shared_ptr<acquisition::SpectrumData> SpectrumData() override {
    return std::make_shared<AutomationSpectrumData>(spectrum_.UseForObject(Member::kSpectrumData));
  }
  std::shared_ptr<Parameter> GetParameter(const std::string& name) override {
    return std::make_shared<AutomationParameter>(spectrum_.UseForObject(Member::kGetParameter, {name}));
  }
  std::shared_ptr<ParameterList> GetParameterList() override {
    return std::make_shared<AutomationParameterList>(spectrum_.UseForObject(Member::kGetParameterList));
  }
  std::shared_ptr<MarkerList> GetMarkerList() override {
    return std::make_shared<AutomationMarkerList>(spectrum_.UseForObject(Member::kGetMarkerList));
  }

private:
  ServerObject spectrum_;
};

}  // namespace

std::shared_ptr<Spectrum> MakeAutomationSpectrum(ServerObject spectrum) {
  return std::make_shared<AutomationSpectrum>(std::move(spectrum));
}

}  // namespace veritane::acquisition
