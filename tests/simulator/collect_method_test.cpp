// Collect method files: what is read, what is refused and how it is said.
#include "simulator/collect_method.h"

#include "platform/run_time_error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veritane::simulator {
namespace {

using ::testing::HasSubstr;

TEST(CollectMethod, IsReadAsWritten) {
  CollectMethodSettings settings;
  settings.from = 450.5;
  settings.to = 3999.25;
  settings.spacing = 0.25;
  settings.resolution = 0.5;
  settings.scans = 128;
  settings.apodization = Apodization::kNortonBeer;
  settings.ordinate = Ordinate::kTransmittance;
  settings.accessory = "Diffuse reflection";
  const std::string text = CollectMethodText(settings);
  EXPECT_EQ(ParseCollectMethod(text), settings);
  EXPECT_EQ(ParseCollectMethod(CollectMethodText({})), CollectMethodSettings{});
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') {
      EXPECT_EQ(text[i - 1], '\r');
    }
  }
}

TEST(CollectMethod, AnEmptyFileMeasuresWithTheDefaults) {
  const CollectMethodSettings settings = ParseCollectMethod("");
  const WavenumberGrid grid = GridOf(settings);
  EXPECT_EQ(grid.lower, 400);
  EXPECT_EQ(grid.points, 3601);
  EXPECT_EQ(settings.scans, 16);
  EXPECT_EQ(settings.accessory, kTransmissionAccessory);
}

TEST(CollectMethod, CaseBlanksCommentsAndLineEndsDoNotCount) {
  const CollectMethodSettings settings = ParseCollectMethod(
      "# a comment = with an equals sign\n\n  FROM=600\r\n to = 1800 \rSpacing\t= 4\nResolution=8\n"
      "apodization = happ-GENZEL\nordinate = TRANSMITTANCE\nAccessory = atr");
  EXPECT_EQ(settings.from, 600);
  EXPECT_EQ(settings.to, 1800);
  EXPECT_EQ(GridOf(settings).lower, 150);
  EXPECT_EQ(settings.resolution, 8);
  EXPECT_EQ(settings.ordinate, Ordinate::kTransmittance);
  EXPECT_EQ(settings.accessory, "atr");
}

struct Refusal {
  const char* text;
  int number;
  const char* says;
};

class RefusedMethods : public ::testing::TestWithParam<Refusal> {};

TEST_P(RefusedMethods, SayWhichLineAndWhy) {
  try {
    ParseCollectMethod(GetParam().text);
    FAIL() << "was read: " << GetParam().text;
  } catch (const platform::RunTimeError& error) {
    EXPECT_EQ(error.Number(), GetParam().number) << error.what();
    EXPECT_THAT(error.what(), HasSubstr(GetParam().says));
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedMethods,
    ::testing::Values(Refusal{"From = 400\r\nSpeed = 3", 5, "line 2: a collect method has no key \"SPEED\""},
                      Refusal{"# c\nfour thousand", 5, "line 2: \"four thousand\""},
                      Refusal{"= 5", 5, "line 1: the key is missing"},
                      Refusal{"From = low", 13, "line 1: FROM is no number: \"low\""},
                      Refusal{"From = 4,5", 13, "line 1"}, Refusal{"From =", 13, "line 1"},
                      Refusal{"From = nan", 13, "line 1"},
                      Refusal{"From = 100", 5, "line 1: FROM lies from 350"},
                      Refusal{"To = 90000", 5, "line 1"}, Refusal{"Spacing = 0", 5, "line 1"},
                      Refusal{"Spacing = -1", 5, "line 1"}, Refusal{"Resolution = 0.01", 5, "line 1"},
                      Refusal{"Resolution = 1e300", 5, "line 1"},
                      Refusal{"Scans = 0", 5, "line 1: SCANS lies from 1"},
                      Refusal{"Scans = 2.5", 13, "line 1: SCANS is a whole number"},
                      Refusal{"Scans = 99999999999", 5, "line 1"}, Refusal{"Apodization = Hann", 5, "line 1"},
                      Refusal{"Ordinate = Reflectance", 5, "line 1"}, Refusal{"Accessory =", 5, "line 1"},
                      Refusal{"Scans = 4\nScans = 8", 5, "line 2: SCANS stands there twice"},
                      Refusal{"From = 4000\nTo = 400", 5, "From lies below To"},
                      Refusal{"From = 400\nTo = 400", 5, "From lies below To"},
                      Refusal{"From = 401\nTo = 405\nSpacing = 4", 5, "holds 1 points"},
                      Refusal{"To = 7800\nSpacing = 0.05", 5, "points"}));

}  // namespace
}  // namespace veritane::simulator
