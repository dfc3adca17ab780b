// The program where the whole process follows another language's customs: files, fields and names stay what
// they are. Only dates and times follow, and those are the machine's to write.
#include "tests/shell/program_fixture.h"

#include <clocale>
#include <locale>
#include <regex>

namespace veritane::tests {
namespace {

using ::testing::HasSubstr;

// The test library's own patterns know no sets of characters on Windows.
MATCHER_P(FitsPattern, pattern, "fits the pattern " + ::testing::PrintToString(pattern)) {
  return std::regex_match(std::string(arg), std::regex(pattern));
}

// Makes the process follow the locale, by its name on a POSIX system or by that on Windows, where the C
// library alone has locales.
bool BecomeCustom(const std::string& name) {
  if (std::setlocale(LC_ALL, name.c_str()) != nullptr) {
    std::locale::global(std::locale(name));
    return true;
  }
  const char* const on_windows = name.starts_with("de") ? "German_Germany" : "Turkish_Turkey";
  return std::setlocale(LC_ALL, on_windows) != nullptr;
}

// A decimal comma and points between thousands; letters whose case differs from everybody else's.
class LocaleTest : public ProgramTest, public ::testing::WithParamInterface<const char*> {
protected:
  void SetUp() override {
    ASSERT_TRUE(BecomeCustom(GetParam())) << GetParam() << " is not installed";
    LayOutShippedData();
  }
  void TearDown() override {
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
  }
};

TEST_P(LocaleTest, NumbersKeepTheirPointOnScreenAndInFiles) {
  WriteSettings(false, "85.5");
  Play({"start", "click frmVeritane.cmdSupervisor"});
  EXPECT_EQ(run_.Get("frmVeritane.txtThreshold")["text"], "85.5");
  Play({"click frmVeritane.cmdMainMenu"});
  MeasureFirst("asa-100", "paracetamol");
  EXPECT_EQ(Verdict(), "FAIL");
  EXPECT_THAT(Caption("frmVeritane.lblResult"), FitsPattern("Sample Name: Lot 7  [0-9.]+%\\. .*"));
  EXPECT_THAT(Read(Sample("asa-100.his")),
              FitsPattern("[^\r]*\r\nLot 7,11/21/26 10:59:00,asa-100,Euclidean,Fail, [0-9.]+,Ann\r\n"));
  const auto filed = Spectra(Sample("asa-100.bsp")).at(0);
  EXPECT_EQ(filed.ordinates.values.size(), 3601U);
  Play({"click frmVeritane.cmdExit"});
  EXPECT_THAT(Read(Data("settings.ini")), HasSubstr("\r\n85.5\r\n"));
}

TEST_P(LocaleTest, APredictionGoesThroughExportLibraryAndCalibrationUnchanged) {
  WriteSettings(false);
  Play({"start"});
  accessory_ = simulator::kAtrAccessory;
  MeasureFirst("ps-pe-blend", "polystyrene 0.3 + polyethylene 0.7");
  const std::vector<std::string> header = run_.Get("frmVeritane.chart")["header"];
  EXPECT_THAT(header, ::testing::ElementsAre(FitsPattern("Polystyrene = (29|30)\\.[0-9]+ %"),
                                             FitsPattern("Polyethylene = (69|70)\\.[0-9]+ %")));
}

TEST_P(LocaleTest, NamesAreTheSameInUpperAndLowerCase) {
  WriteSettings(true);
  WriteProducts({"INDIGO-i1,Pressed disc,Euclidean,"});
  for (const char* name : {"Indigo-I1.bsp", "aspirin.bsp", "back.bsp"}) {
    WriteSpectrum(Standard(name), 100, 4, Bands(301));
  }
  Play({"start"});
  RunDemonstration("indigo-I1");
  EXPECT_EQ(Verdict(), "PASS");
  EXPECT_THAT(Read(Sample("INDIGO-I1.his")),
              HasSubstr("\r\nLot 7,11/21/26 10:59:00,indigo-I1,Euclidean,Pass, 100,"));
}

INSTANTIATE_TEST_SUITE_P(Customs, LocaleTest, ::testing::Values("de_DE.UTF-8", "tr_TR.UTF-8"));

}  // namespace
}  // namespace veritane::tests
