// Collections and alignments: what is measured, which error number comes when.
#include "acquisition/spectrometer_app.h"
#include "tests/simulator/instrument_rig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace veritane::simulator::instrument_tests {
namespace {

using ::testing::HasSubstr;

double RootMeanSquare(const std::vector<double>& values, std::size_t from, std::size_t to) {
  double sum = 0;
  for (std::size_t i = from; i < to; ++i) sum += values[i] * values[i];
  return std::sqrt(sum / static_cast<double>(to - from));
}

TEST(Collecting, WithoutABackgroundGivesTheSingleBeamOnWholeMultiplesOfTheSpacing) {
  InstrumentRig rig;
  rig.method.from = 650.5;
  rig.method.to = 4000;
  rig.method.spacing = 2;
  const Measurement measurement = rig.instrument.Collect(rig.Request());
  ASSERT_EQ(measurement.error, 0);
  EXPECT_EQ(measurement.spacing, 2);
  EXPECT_EQ(measurement.values.lower, 326);
  EXPECT_EQ(measurement.values.Upper(), 2000);
  EXPECT_EQ(measurement.yUnits, "ARBITRARY UNITS");
  EXPECT_NEAR(*std::max_element(measurement.values.values.begin(), measurement.values.values.end()), 100, 2);
}

TEST(Collecting, EmptyAgainstEmptyIsZeroWithinTheNoise) {
  InstrumentRig rig;
  const std::vector<double> line = rig.Absorbance("empty");
  ASSERT_EQ(line.size(), 3601u);
  // Around 2000 cm⁻¹ the energy is near its maximum of 100 and the air is clear: two beams of 16 scans each.
  const double expected = std::sqrt(2.0) * kNoiseOfOneScan / 4 / 100 / std::log(10.0);
  const double measured = RootMeanSquare(line, 1600, 1850);
  EXPECT_GT(measured, expected / 2);
  EXPECT_LT(measured, 2 * expected);
  for (double absorbance : line) ASSERT_LT(std::abs(absorbance), 0.005);
}

TEST(Collecting, TheOrdinateIsTheMethods) {
  InstrumentRig rig(InstrumentRig::Quiet());
  const Measurement background = rig.instrument.Collect(rig.Request());
  rig.PutSample("caffeine");
  const Measurement absorbance = rig.instrument.Collect(rig.RequestAgainst(background));
  rig.method.ordinate = Ordinate::kTransmittance;
  const Measurement transmittance = rig.instrument.Collect(rig.RequestAgainst(background));
  EXPECT_EQ(absorbance.yUnits, "ABSORBANCE");
  EXPECT_EQ(transmittance.yUnits, "PERCENT TRANSMITTANCE");
  for (std::size_t i = 0; i < absorbance.values.Size(); ++i) {
    ASSERT_NEAR(transmittance.values.values[i], 100 * std::pow(10, -absorbance.values.values[i]), 1e-9);
  }
  EXPECT_NEAR(*std::max_element(absorbance.values.values.begin(), absorbance.values.values.end()), 1, 0.1);
}

TEST(Collecting, ASeedRepeatsARunAndNotASingleCollection) {
  InstrumentRig first;
  InstrumentRig second;
  const std::vector<double> run = first.Absorbance("paracetamol");
  EXPECT_EQ(run, second.Absorbance("paracetamol"));
  EXPECT_NE(run, first.Absorbance("paracetamol"));
  InstrumentRig other(InstrumentRig::Seeded(8));
  EXPECT_NE(run, other.Absorbance("paracetamol"));
  CompartmentState random = InstrumentRig::Seeded(0);
  random.seed.reset();
  InstrumentRig unforeseen(random);
  EXPECT_NE(unforeseen.Absorbance("paracetamol"), unforeseen.Absorbance("paracetamol"));
}

TEST(Collecting, AgainstAWiderBackgroundUsesThePartUnderTheMethod) {
  InstrumentRig rig(InstrumentRig::Quiet());
  const Measurement background = rig.instrument.Collect(rig.Request());
  rig.method.from = 1000;
  rig.method.to = 2000;
  const Measurement line = rig.instrument.Collect(rig.RequestAgainst(background));
  ASSERT_EQ(line.error, 0);
  EXPECT_EQ(line.values.lower, 1000);
  ASSERT_EQ(line.values.Size(), 1001u);
  for (double absorbance : line.values.values) ASSERT_NEAR(absorbance, 0, 1e-9);
}

TEST(Collecting, ABackgroundThatDoesNotServeIsAnErrorNumber) {
  InstrumentRig rig;
  const Measurement background = rig.instrument.Collect(rig.Request());
  CollectRequest missing = rig.RequestAgainst(background);
  missing.background.reset();
  missing.backgroundFault = "File not found: backInitial.bsp";
  EXPECT_EQ(rig.instrument.Collect(missing).error, kBackgroundMissing);
  EXPECT_EQ(rig.reason, "File not found: backInitial.bsp");

  Measurement spoilt = background;
  const auto error_against = [&rig](const Measurement& with) {
    return rig.instrument.Collect(rig.RequestAgainst(with)).error;
  };
  EXPECT_EQ(error_against(spoilt), 0);
  spoilt.spacing = 2;
  EXPECT_EQ(error_against(spoilt), kBackgroundUnfit);
  spoilt = background;
  spoilt.values.lower += 1;
  EXPECT_EQ(error_against(spoilt), kBackgroundUnfit);
  spoilt = background;
  spoilt.values.values.pop_back();
  EXPECT_EQ(error_against(spoilt), kBackgroundUnfit);
  spoilt.values.values.clear();
  EXPECT_EQ(error_against(spoilt), kBackgroundUnfit);
  spoilt = background;
  spoilt.values.values[17] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(error_against(spoilt), kBackgroundUnfit);
  EXPECT_THAT(rig.reason, HasSubstr("no number"));
  spoilt.values.values.assign(background.values.Size(), 0.0);
  EXPECT_EQ(error_against(spoilt), kBackgroundUnfit);
  EXPECT_THAT(rig.reason, HasSubstr("no energy at the points of C:\\Methods\\Initial.clm"));
}

TEST(Collecting, AnotherAccessoryThanTheMethodsIs11079UntilItIsChanged) {
  InstrumentRig rig;
  rig.method.accessory = "ATR";
  const Measurement refused = rig.instrument.Collect(rig.Request());
  EXPECT_EQ(refused.error, acquisition::kWrongAccessory);
  EXPECT_TRUE(refused.values.Empty());
  EXPECT_EQ(rig.instrument.Align(rig.Request()), 11079);
  EXPECT_EQ(rig.reason, "") << "the number tells all";
  CompartmentState state = InstrumentRig::Seeded(7);
  state.accessory = "atr";
  rig.Put(state);
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, 0);
  EXPECT_EQ(rig.instrument.Align(rig.Request()), 0);
}

TEST(Collecting, AFaultSetInTheCompartmentComesBackAsOftenAsItsCount) {
  CompartmentState state = InstrumentRig::Seeded(7);
  state.fault = 5;
  state.faultCount = 3;
  InstrumentRig rig(state);
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, 5);
  EXPECT_EQ(rig.instrument.Align(rig.Request()), 5);
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, 5);
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, 0);
  EXPECT_EQ(rig.reason, "") << "it was set in the compartment";
}

TEST(Collecting, UnreadableMethodsSamplesAndCompartmentsAreErrorNumbers) {
  InstrumentRig rig;
  CollectRequest request = rig.Request();
  request.methodText = "Speed = 3";
  EXPECT_EQ(rig.instrument.Collect(request).error, kMethodUnreadable);
  EXPECT_THAT(rig.reason, ::testing::AllOf(HasSubstr(request.methodPath), HasSubstr("line 1")));
  EXPECT_EQ(rig.instrument.Align(request), kMethodUnreadable);

  rig.PutSample("unobtainium");
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, kSampleUnreadable);
  EXPECT_THAT(rig.reason, HasSubstr("unobtainium"));
  rig.PutSample("C:\\nothing.jdx");
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, kSampleUnreadable);
  // The alignment does not look at the sample.
  EXPECT_EQ(rig.instrument.Align(rig.Request()), 0);

  rig.files.WriteBytes(InstrumentRig::kPath, "Sample = empty\nNoise = loud");
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, kCompartmentUnreadable);
  EXPECT_THAT(rig.reason, ::testing::AllOf(HasSubstr(InstrumentRig::kPath), HasSubstr("line 2")));
  rig.files.readFault = 70;
  EXPECT_EQ(rig.instrument.Align(rig.Request()), kCompartmentUnreadable);
  CompartmentState faulty = InstrumentRig::Seeded(7);
  faulty.fault = 5;
  faulty.faultCount = 1;
  rig.files.readFault = 0;
  rig.Put(faulty);
  rig.files.writeFault = 61;
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, kCompartmentUnreadable);
}

TEST(Collecting, TakesTheTimeThatIsSet) {
  CompartmentState state = InstrumentRig::Seeded(7);
  InstrumentRig rig(state);
  for (int duration : {0, 7, 1510}) {
    state.duration = duration;
    rig.Put(state);
    rig.waited = std::chrono::milliseconds(0);
    EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, 0);
    EXPECT_EQ(rig.waited.count(), duration);
  }
}

TEST(Collecting, ASpectrumFileInTheCompartmentIsMeasuredLikeAMaterialAndRefusedWithAGap) {
  InstrumentRig rig(InstrumentRig::Quiet());
  StoredSpectrum film;
  film.spacing = 2;
  film.yUnits = "TRANSMITTANCE";
  film.ordinates = {200, std::vector<double>(1801, 0.25)};
  rig.spectra["C:\\film.jdx"] = film;
  film.yUnits = "%TRANSMITTANCE";
  film.ordinates.values.assign(1801, 25);
  rig.spectra["C:\\percent.jdx"] = film;
  film.yUnits = "ABSORBANCE";
  film.ordinates.values.assign(1801, -std::log10(0.25));
  rig.spectra["C:\\absorbance.jdx"] = film;
  for (const auto& [path, spectrum] : rig.spectra) {
    for (double absorbance : rig.Absorbance(path)) ASSERT_NEAR(absorbance, -std::log10(0.25), 1e-9) << path;
  }
  rig.spectra["C:\\film.jdx"].ordinates.values[44] = std::numeric_limits<double>::quiet_NaN();
  rig.PutSample("C:\\film.jdx");
  EXPECT_EQ(rig.instrument.Collect(rig.Request()).error, kSampleUnreadable);
}

}  // namespace
}  // namespace veritane::simulator::instrument_tests
