// The panel's captions, and its picture of the spectrum that was filed last.
#include <algorithm>
#include <cmath>

#include "apps/simulator_panel/frm_simulator.h"
#include "platform/windows_path.h"

namespace veritane::simulator_panel {

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
