// Spectra as members.
#include "simulator/automation_spectrum.h"

#include <optional>
#include <utility>

namespace veritane::simulator {

namespace {

using acquisition::Member;
using platform::AutomationValue;

std::shared_ptr<SimulatorObject> ServeData(const MemberNames& names,
                                           const std::shared_ptr<acquisition::SpectrumData>& data) {
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kSpacing, 0, [data](Arguments) { return data->Spacing(); });
  object->Serve(Member::kNumberOfPoints, 0, [data](Arguments) { return data->NumberOfPoints(); });
  object->Serve(Member::kValues, 0, [data](Arguments) {
    state::Ordinates ordinates = data->Values();
    return platform::AutomationArray{ordinates.lower, std::move(ordinates.values)};
  });
  return object;
}

std::shared_ptr<SimulatorObject> ServeParameter(const MemberNames& names,
                                                const std::shared_ptr<acquisition::Parameter>& parameter) {
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kGetValue, 0, [parameter](Arguments) {
    return std::visit([](auto value) { return AutomationValue(std::move(value)); }, parameter->Value());
  });
  object->Serve(Member::kSetValue, 1, [parameter](Arguments given) {
    if (std::holds_alternative<std::string>(given[0])) {
      parameter->SetValue(TextOf(given[0]));
    } else {
      parameter->SetValue(NumberOf(given[0]));
    }
  });
  return object;
}

std::shared_ptr<SimulatorObject> ServeParameterList(const MemberNames& names,
                                                    const std::shared_ptr<acquisition::ParameterList>& list) {
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kAddParameter, 2,
                [list](Arguments given) { list->AddParameter(TextOf(given[0]), Int32Of(given[1])); });
  return object;
}

// A marker's place comes in two steps; it is handed on once both are known.
struct MarkerPlace {
  std::optional<std::int32_t> definingMethod;
  std::optional<double> lowerBound;
};

std::shared_ptr<SimulatorObject> ServeDefinition(const MemberNames& names,
                                                 const std::shared_ptr<acquisition::Marker>& marker,
                                                 std::int32_t argument) {
  const auto place = std::make_shared<MarkerPlace>();
  const auto hand_on = [marker, argument, place] {
    if (place->definingMethod && place->lowerBound) {
      marker->SetDefinition(argument, *place->definingMethod, *place->lowerBound);
    }
  };
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kSetDefiningMethod, 1, [place, hand_on](Arguments given) {
    place->definingMethod = Int32Of(given[0]);
    hand_on();
  });
  object->Serve(Member::kSetLowerBound, 1, [place, hand_on](Arguments given) {
    place->lowerBound = NumberOf(given[0]);
    hand_on();
  });
  return object;
}

std::shared_ptr<SimulatorObject> ServeMarker(const MemberNames& names,
                                             const std::shared_ptr<acquisition::Marker>& marker) {
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kSetKind, 1, [marker](Arguments given) { marker->SetKind(Int32Of(given[0])); });
  object->Serve(Member::kSetStyle, 1, [marker](Arguments given) { marker->SetStyle(Int32Of(given[0])); });
  object->Serve(Member::kGetDefinition, 1, [names, marker](Arguments given) {
    return ServeDefinition(names, marker, Int32Of(given[0]));
  });
  return object;
}

std::shared_ptr<SimulatorObject> ServeMarkerList(const MemberNames& names,
                                                 const std::shared_ptr<acquisition::MarkerList>& list) {
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kAddMarker, 1, [names, list](Arguments given) {
    return ServeMarker(names, list->AddMarker(NumberOf(given[0])));
  });
  object->Serve(Member::kClearMarkers, 0, [list](Arguments) { list->ClearMarkers(); });
  return object;
}

}  // namespace

std::shared_ptr<SimulatorObject> ServeSpectrum(const MemberNames& names,
                                               const std::shared_ptr<acquisition::Spectrum>& spectrum) {
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kSpectrumData, 0,
                [names, spectrum](Arguments) { return ServeData(names, spectrum->SpectrumData()); });
  object->Serve(Member::kGetParameter, 1, [names, spectrum](Arguments given) {
    return ServeParameter(names, spectrum->GetParameter(TextOf(given[0])));
  });
  object->Serve(Member::kGetParameterList, 0, [names, spectrum](Arguments) {
    return ServeParameterList(names, spectrum->GetParameterList());
  });
  object->Serve(Member::kGetMarkerList, 0,
                [names, spectrum](Arguments) { return ServeMarkerList(names, spectrum->GetMarkerList()); });
  return object;
}

}  // namespace veritane::simulator
