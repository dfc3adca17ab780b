// What the panel shows: its captions, the settings in force, and a picture of the spectrum that was filed
// last.
#include "acquisition/spectrometer_app.h"
#include "apps/simulator_panel/frm_simulator.h"
#include "platform/number_text.h"
#include "platform/windows_path.h"
#include "simulator/materials.h"

#include <algorithm>
#include <cmath>

namespace veritane::simulator_panel {

using platform::UpperCase;
using simulator::CompartmentState;

namespace {

// The values' range with a little room above and below.
platform::AxisLimits LimitsOf(const std::vector<double>& values) {
  platform::AxisLimits limits{0, 0};
  bool is_first = true;
  for (const double value : values) {
    if (!std::isfinite(value)) continue;
    limits.minimum = is_first ? value : std::min(limits.minimum, value);
    limits.maximum = is_first ? value : std::max(limits.maximum, value);
    is_first = false;
  }
  const double range = limits.maximum - limits.minimum;
  const double room = range > 0 ? range * 0.05 : 0.5;
  return {limits.minimum - room, limits.maximum + room};
}

bool HasFault(const CompartmentState& state) {
  return state.fault != 0 && state.faultCount != 0;
}

std::string FaultText(const CompartmentState& state) {
  return HasFault(state) ? std::to_string(state.fault) : "none";
}

std::string SeedText(const CompartmentState& state) {
  return state.seed ? std::to_string(*state.seed) : "random";
}

}  // namespace

void FrmSimulator::SetUpCaptions() {
  SetCaption("Simulated spectrometer");
  fraSample.SetCaption("Sample");
  lblMaterials.SetCaption("&Materials");
  lblSample.SetCaption("In the compartment: material, mixture (polystyrene 0.6 + pmma 0.4) or file");
  cmdChooseFile.SetCaption("&Choose File...");
  fraAccessory.SetCaption("Accessory");
  optTransmission.SetCaption("&Transmission");
  optAtr.SetCaption("&ATR");
  optOtherAccessory.SetCaption("&Other:");
  fraFault.SetCaption("Fault");
  optNoFault.SetCaption("Non&e");
  optWrongAccessory.SetCaption("&Wrong accessory (11079)");
  optOtherFault.SetCaption("Error n&umber:");
  lblFaultCount.SetCaption("How man&y times");
  fraMeasurement.SetCaption("Measurement");
  lblNoise.SetCaption("&Noise (1 as delivered, 0 none)");
  lblDuration.SetCaption("&Duration in milliseconds");
  lblSeed.SetCaption("Seed of the noise");
  optRandomSeed.SetCaption("&Random");
  optFixedSeed.SetCaption("&Fixed:");
  fraSpectrum.SetCaption("Last spectrum");
}

void FrmSimulator::Follow(bool differs, std::initializer_list<TypedEntry*> entries,
                          const std::string& in_force, const std::function<void()>& show) {
  bool is_in_hand = false;
  for (const TypedEntry* entry : entries) is_in_hand = is_in_hand || entry->IsInHand();
  if (differs && !is_in_hand) {
    const Showing showing(showing_);
    show();
    for (TypedEntry* entry : entries) entry->Release();
  }
  for (TypedEntry* entry : entries) entry->ShowNote(in_force, differs && is_in_hand);
}

void FrmSimulator::ShowState() {
  Follow(shown_.sample != state_.sample, {&sample_}, state_.sample, [this] { ShowSample(); });
  Follow(shown_.accessory != state_.accessory, {&accessory_}, state_.accessory, [this] { ShowAccessory(); });
  const bool fault_differs = shown_.fault != state_.fault || shown_.faultCount != state_.faultCount;
  const std::string fault =
      FaultText(state_) + (HasFault(state_) ? ", " + std::to_string(state_.faultCount) + " to come" : "");
  Follow(fault_differs, {&fault_, &fault_count_}, fault, [this] { ShowFault(); });
  const std::string noise = platform::PlainNumberText(state_.noise);
  Follow(shown_.noise != state_.noise, {&noise_}, noise, [&] {
    txtNoise.SetText(noise);
    shown_.noise = state_.noise;
  });
  const std::string duration = std::to_string(state_.duration);
  Follow(shown_.duration != state_.duration, {&duration_}, duration, [&] {
    txtDuration.SetText(duration);
    shown_.duration = state_.duration;
  });
  Follow(shown_.seed != state_.seed, {&seed_}, SeedText(state_), [this] { ShowSeed(); });
  ShowFaultsLeft();
  EnableBoxes();
}

void FrmSimulator::ShowSample() {
  shown_.sample = state_.sample;
  txtSample.SetText(state_.sample);
  MarkMaterial();
}

void FrmSimulator::MarkMaterial() {
  const Showing showing(showing_);
  const std::string& text = txtSample.Text();
  const simulator::Material* material = text.empty() ? nullptr : simulator::FindMaterial(text);
  const int index = material == nullptr ? -1 : static_cast<int>(material - simulator::Materials().data());
  if (index != lstMaterials.Selected()) lstMaterials.Select(index);
}

void FrmSimulator::ShowAccessory() {
  shown_.accessory = state_.accessory;
  const std::string name = UpperCase(state_.accessory);
  if (name == UpperCase(simulator::kTransmissionAccessory)) {
    optTransmission.Check();
  } else if (name == UpperCase(simulator::kAtrAccessory)) {
    optAtr.Check();
  } else {
    optOtherAccessory.Check();
    txtAccessory.SetText(state_.accessory);
  }
}

void FrmSimulator::ShowFault() {
  shown_.fault = state_.fault;
  shown_.faultCount = state_.faultCount;
  // The number of times for the next fault begins at 1.
  txtFaultCount.SetText(std::to_string(HasFault(state_) ? state_.faultCount : 1));
  if (!HasFault(state_)) {
    optNoFault.Check();
  } else if (state_.fault == acquisition::kWrongAccessory) {
    optWrongAccessory.Check();
  } else {
    optOtherFault.Check();
    txtFault.SetText(std::to_string(state_.fault));
  }
}

void FrmSimulator::ShowSeed() {
  shown_.seed = state_.seed;
  if (!state_.seed) {
    optRandomSeed.Check();
    return;
  }
  optFixedSeed.Check();
  txtSeed.SetText(SeedText(state_));
}

void FrmSimulator::ShowFaultsLeft() {
  if (!HasFault(state_)) {
    lblFaultsLeft.SetCaption("No fault is waiting.");
    return;
  }
  const std::string fault = std::to_string(state_.fault);
  lblFaultsLeft.SetCaption(state_.faultCount == 1 ? "The next collection or alignment reports " + fault + "."
                                                  : "The next " + std::to_string(state_.faultCount) +
                                                        " collections or alignments report " + fault + ".");
}

void FrmSimulator::EnableBoxes() {
  txtAccessory.SetEnabled(optOtherAccessory.Checked());
  txtFault.SetEnabled(optOtherFault.Checked());
  txtFaultCount.SetEnabled(!optNoFault.Checked());
  txtSeed.SetEnabled(optFixedSeed.Checked());
}

void FrmSimulator::ShowSpectrum() {
  const platform::ChartBatch batch(chtSpectrum);
  chtSpectrum.RemoveSeriesFrom(0);
  const std::string passed_over =
      newest_.PassedOver().empty()
          ? ""
          : " (" + platform::LeafName(newest_.PassedOver()) + " is newer, but cannot be read.)";
  const auto& found = newest_.Found();
  if (!found) {
    lblSpectrum.SetCaption("No spectrum has been filed yet." + passed_over);
    lblSpectrumFile.SetCaption("");
    return;
  }
  const simulator::StoredSpectrum& spectrum = found->spectrum;
  lblSpectrum.SetCaption(spectrum.name + (spectrum.time.empty() ? "" : ",  " + spectrum.time) + passed_over);
  lblSpectrumFile.SetCaption(
      found->path + ", filed " + machine_.regional.GeneralDate(found->modified) +
      (found->spectraInFile > 1 ? ", the last of " + std::to_string(found->spectraInFile) : ""));

  platform::ChartSeries series{.title = "", .x = {}, .y = spectrum.ordinates.values};
  for (std::size_t i = 0; i < series.y.size(); ++i) {
    series.x.push_back((spectrum.ordinates.lower + static_cast<double>(i)) * spectrum.spacing);
  }
  chtSpectrum.SetTitles(spectrum.xUnits == "1/CM" ? "Wavenumber (cm\u207B\u00B9)" : spectrum.xUnits,
                        spectrum.yUnits);
  chtSpectrum.SetX({series.x.front(), series.x.size() > 1 ? series.x.back() : series.x.front() + 1});
  chtSpectrum.SetY(LimitsOf(series.y));
  chtSpectrum.SetSeries(0, std::move(series));
}

}  // namespace veritane::simulator_panel
