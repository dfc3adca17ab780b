// Measured spectra through the whole run, against a calculation of the tests' own in higher precision.
#include "platform/number_text.h"
#include "tests/identification/reference.h"
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::HasSubstr;
namespace reference = identification::reference;

class RealSpectraTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true);
    WriteProducts({"PS,Disc,Euclidean,", "PS-FT,Disc,Fourier,"});
    CopyTestData("ftir/polystyrene.jdx", Standard("PS.bsp"));
    CopyTestData("ftir/polystyrene.jdx", Standard("PS-FT.bsp"));
    CopyTestData("ftir/polystyrene.jdx", Standard("back.bsp"));
  }

  // The recorded match quality of a demonstration run with this file as the sample.
  std::string Recorded(const std::string& product, const std::string& material) {
    CopyTestData("ftir/" + material + ".jdx", Standard("aspirin.bsp"));
    if (program_ != nullptr) Play({"click frmVeritane.cmdBacktoMainMenu"});
    RunDemonstration(product, material);
    const std::string record = Read(Sample(product + ".his"));
    const std::string line = record.substr(record.rfind("\r\n", record.size() - 3) + 2);
    const std::size_t end = line.rfind(',');
    const std::size_t begin = line.rfind(',', end - 1) + 1;
    return line.substr(begin, end - begin);
  }
  static state::Ordinates Transform(const state::SpectrumBuffer& spectrum) {
    const auto transform = reference::FourierTransform(spectrum.Data.values);
    return {.lower = 0, .values = {transform.begin(), transform.end()}};
  }
};

TEST_F(RealSpectraTest, IdenticalSpectraGiveExactlyOneHundredAndOthersWhatTheirDefinitionSays) {
  const state::SpectrumBuffer standard = reference::MeasuredSpectrum("polystyrene");
  for (const std::string& material : reference::MaterialsByFirstWavenumber().front()) {
    const state::SpectrumBuffer sample = reference::MeasuredSpectrum(material);
    const std::string euclidean = Recorded("PS", material);
    const std::string fourier = Recorded("PS-FT", material);
    if (material == "polystyrene") {
      EXPECT_EQ(euclidean, " 100");
      EXPECT_EQ(fourier, " 100");
      continue;
    }
    EXPECT_NEAR(platform::LeadingNumber(euclidean), reference::EuclideanQuality(standard, sample, {}),
                0.00501)
        << material;
    EXPECT_NEAR(platform::LeadingNumber(fourier),
                reference::FourierQuality(Transform(standard), Transform(sample)), 0.00501)
        << material;
    EXPECT_EQ(Verdict(), "FAIL") << material;
  }
}

TEST_F(RealSpectraTest, ADamagedStandardIsNamedAndEndsTheRun) {
  const std::string whole = Read(Standard("PS.bsp"));
  Write(Standard("PS.bsp"), whole.substr(0, 4000));
  const auto events = Play(WithOkays(EnterSample("PS")));
  ASSERT_FALSE(events.Last("error").is_null());
  EXPECT_THAT(std::string(events.Last("message")["text"]), HasSubstr("PS.bsp"));
  EXPECT_TRUE(IsVisible("frmVeritane.cmdSample"));
}

}  // namespace
}  // namespace veritane::tests
