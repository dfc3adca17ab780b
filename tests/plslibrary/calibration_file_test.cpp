// ".cal" files: what is written reads back exactly, what is damaged is refused by its code.
#include "plslibrary/calibration_file.h"

#include "plslibrary/crc32.h"
#include "plslibrary/pls_error.h"
#include "tests/plslibrary/gasoline.h"

#include <gtest/gtest.h>

namespace veritane::plslibrary {
namespace {

static_assert(Crc32("123456789") == 0xCBF43926U);

const std::vector<Calibration>& Calibrations() {
  static const std::vector<Calibration> calibrations{Gasoline().Calibrate(2).calibration,
                                                     Gasoline().TwoConstituents()};
  return calibrations;
}

// A small calibration, so that every byte of its file can be tried.
Calibration Small() {
  const Gasoline gasoline;
  CalibrationPlan plan{.memo = "Small", .axis = {0, 7, 8, 1, 2}, .mostFactors = 1};
  plan.constituents.push_back({"octane", gasoline.octane.head(8), 1});
  return BuildCalibration(plan, gasoline.spectra.topLeftCorner(8, 8)).calibration;
}

PlsCode CodeOf(const std::string& bytes, std::int32_t number = 1) {
  try {
    CalibrationFile(bytes).Read(number);
  } catch (const PlsError& error) {
    return error.Code();
  }
  return PlsCode::kNoError;
}

PlsCode CodeOfJson(std::string json, const std::string& from, const std::string& to) {
  const std::size_t place = json.find(from);
  EXPECT_NE(place, std::string::npos) << from;
  json.replace(place, from.size(), to);
  try {
    ParseCalibration(json);
  } catch (const PlsError& error) {
    return error.Code();
  }
  return PlsCode::kNoError;
}

TEST(CalibrationFile, WhatIsWrittenReadsBackToTheLastBit) {
  const CalibrationFile file(CalibrationFileText(Calibrations()));
  ASSERT_EQ(file.Total(), 2);
  for (std::int32_t number = 1; number <= 2; ++number) {
    const Calibration& written = Calibrations()[static_cast<std::size_t>(number - 1)];
    const Calibration read = file.Read(number);
    EXPECT_EQ(CalibrationJson(read), CalibrationJson(written));
    EXPECT_EQ(read.memo, written.memo);
    EXPECT_EQ(read.axis, written.axis);
    EXPECT_EQ(read.bands, written.bands);
    EXPECT_EQ(read.scaled, written.scaled);
    ASSERT_EQ(read.sets.size(), written.sets.size());
    for (std::size_t set = 0; set < read.sets.size(); ++set) {
      EXPECT_EQ(read.sets[set].constituent, written.sets[set].constituent);
      EXPECT_EQ(read.sets[set].coefficients, written.sets[set].coefficients);
      EXPECT_EQ(read.sets[set].rotations, written.sets[set].rotations);
      EXPECT_EQ(read.sets[set].loadings, written.sets[set].loadings);
      EXPECT_EQ(read.sets[set].scoreLimits, written.sets[set].scoreLimits);
    }
  }
}

TEST(CalibrationFile, ADamagedCalibrationSpoilsNoOther) {
  std::string bytes = CalibrationFileText(Calibrations());
  const std::size_t second = bytes.find('\n', bytes.find('\n') + 1) + 1;
  bytes[second + 500] ^= 1;
  EXPECT_EQ(CodeOf(bytes, 1), PlsCode::kNoError);
  EXPECT_EQ(CodeOf(bytes, 2), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOf(bytes.substr(0, second), 2), PlsCode::kCalibrationRead) << "a file that is cut off";
  EXPECT_EQ(CodeOf(bytes, 3), PlsCode::kNoSuchCalibration);
  EXPECT_EQ(CodeOf(bytes, 0), PlsCode::kNoSuchCalibration);
}

TEST(CalibrationFile, NoCutAndNoFlippedBitGoesUnnoticed) {
  const std::vector<Calibration> small{Small()};
  const std::string bytes = CalibrationFileText(small);
  ASSERT_EQ(CodeOf(bytes), PlsCode::kNoError);
  for (std::size_t length = 0; length + 1 < bytes.size(); ++length) {
    ASSERT_EQ(CodeOf(bytes.substr(0, length)), PlsCode::kCalibrationRead) << length;
  }
  const std::size_t total =
      bytes.find(" 1\n") + 1;  // a larger number of calibrations promises, but harms nothing
  for (std::size_t place = 0; place + 1 < bytes.size(); ++place) {
    std::string damaged = bytes;
    damaged[place] ^= 4;
    const bool promises = place == total;
    ASSERT_EQ(CodeOf(damaged), promises ? PlsCode::kNoError : PlsCode::kCalibrationRead) << place;
  }
}

TEST(CalibrationFile, LineEndsOfWindowsDoNotMatter) {
  const std::vector<Calibration> small{Small()};
  std::string bytes;
  for (const char byte : CalibrationFileText(small))
    bytes.append(byte == '\n' ? "\r\n" : std::string(1, byte));
  EXPECT_EQ(CodeOf(bytes), PlsCode::kNoError);
}

TEST(CalibrationFile, WhatHasARightSumAndAWrongContentIsRefused) {
  const std::string json = CalibrationJson(Small());
  EXPECT_EQ(CodeOfJson(json, R"("samples":8)", R"("samples":3)"), PlsCode::kCalibrationRead) << "more groups";
  EXPECT_EQ(CodeOfJson(json, R"("groups":8,)", ""), PlsCode::kNotEnoughInformation);
  EXPECT_EQ(CodeOfJson(json, R"("memo":"Small")", R"("memo":"Small\n")"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("memo":"Small")", R"("memo":"€")"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("name":"octane")", R"("name":"")"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("points":8)", R"("points":8e300)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("points":8)", R"("points":-8)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("points":8)", R"("points":7)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("firstPoint":0)", R"("firstPoint":1)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("lastX":7.0)", R"("lastX":0.0)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("lastX":7.0)", R"("lastX":1e999)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("scaled":false)", R"("scaled":0)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("residualSum":)", R"("residualSum":-)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("coefficients":[)", R"("coefficients":[1,)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson(json, R"("rotations":[)", R"("rotations":[[],)"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson("{}", "{}", "[1]"), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson("{}", "{}", std::string(1'000'000, '[')), PlsCode::kCalibrationRead);
  EXPECT_EQ(CodeOfJson("{}", "{}", "{}"), PlsCode::kNotEnoughInformation);
}

TEST(CalibrationFile, OnlyASoundCalibrationIsWritten) {
  std::vector<Calibration> calibrations{Small()};
  calibrations[0].sets[0].coefficients(3) = std::numeric_limits<double>::infinity();
  EXPECT_THROW(CalibrationFileText(calibrations), PlsError);
}

}  // namespace
}  // namespace veritane::plslibrary
