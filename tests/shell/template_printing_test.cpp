// Printing through the Spectrometer application and a print template: call by call for each algorithm, and
// what is left when it fails. On the data that ship.
#include "tests/shell/program_fixture.h"
#include "tests/support/pdf_text.h"

#include <algorithm>

namespace veritane::tests {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class TemplatePrintingTest : public ProgramTest {
protected:
  void SetUp() override {
    LayOutShippedData();
    // Template printing, by the template that ships.
    Write(Data("settings.ini"), "0\r\n0\r\n\r\n1\r\n0\r\n90\r\n1\r\n" + kTemplate + "\r\n1\r\n1\r\n");
    SetInstrument("empty");
    Play({"start"});
  }

  platform::Events MeasureNext(const std::string& product, const std::string& name) {
    Play({"click frmVeritane.cmdBacktoMainMenu"});
    return Play(WithOkays(EnterSample(product, name)));
  }

  // The calls from the opening of the print's first document on.
  std::vector<std::string> CallsOfPrint() {
    const std::vector<std::string> calls = Calls();
    const auto view = std::find(calls.rbegin(), calls.rend(), "PrepareSampleView");
    if (calls.rend() - view < 4) return calls;
    return {view.base() - 4, calls.end()};
  }
  // What stands between the opening of the sample and the end, with the Standard and what is done to it.
  static std::vector<std::string> Printing(const std::string& sample, int spectrum,
                                           const std::string& standard,
                                           const std::vector<std::string>& marking = {},
                                           const std::vector<std::string>& unmarking = {}) {
    std::vector<std::string> calls{"Interactive(false)",
                                   "OpenDocument(" + sample + ")",
                                   "SelectSpectrum(" + std::to_string(spectrum) + ")",
                                   "PrepareSampleView",
                                   "Interactive(false)",
                                   "OpenDocument(" + standard + ")"};
    calls.insert(calls.end(), marking.begin(), marking.end());
    for (const std::string& call :
         {std::string("PrepareStandardView"), std::string("SetDocumentShown(-1)"), std::string("BeginPrint"),
          "OpenPrintTemplate(" + kTemplate + ")", std::string("Interactive(false)"), std::string("PrintDoc"),
          std::string("Interactive(false)"), std::string("CloseDoc")}) {
      calls.push_back(call);
    }
    calls.insert(calls.end(), unmarking.begin(), unmarking.end());
    // What the print opened is closed before the application is the user's again.
    for (const std::string& call :
         {std::string("Interactive(false)"), std::string("CloseDocument(false)"),
          "OpenDocument(" + standard + ")", std::string("Interactive(false)"),
          std::string("CloseDocument(false)"), std::string("CloseDocument(false)")}) {
      calls.push_back(call);
    }
    return calls;
  }
  void ExpectOnlyRecords(const std::string& product) {
    EXPECT_EQ(Spectra(Sample(product + ".bsp")).size(), 1U);
    EXPECT_THAT(Read(Sample(product + ".his")), HasSubstr("Lot 7,"));
    EXPECT_THAT(Read(Data("log.txt")), HasSubstr("Ann,"));
    EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
    EXPECT_EQ(run_.Screen().MousePointer(), platform::Pointer::kDefault);
    EXPECT_FALSE(Exists(Data("Prints")));
  }
  platform::Events MeasurePeaks() {
    Write(Standard("polystyrene peaks.txt"), "3026;2849\r\n1601.5\r\n1493 1452\r\n");
    accessory_ = simulator::kAtrAccessory;
    return MeasureFirst("POLYSTYRENE-PEAKS", "polystyrene");
  }
  platform::Events MeasureBlend() {
    accessory_ = simulator::kAtrAccessory;
    return MeasureFirst("PS-PE-BLEND", "polystyrene 0.3 + polyethylene 0.7");
  }
  // The third of three samples of ASA-100, reprocessed and on display.
  platform::Events ReprocessTheThird() {
    MeasureFirst("ASA-100", "acetylsalicylic acid");
    MeasureNext("ASA-100", "Lot 8");
    MeasureNext("ASA-100", "Lot 9");
    Play(BackToTab(5));
    return Play({"click frmVeritane.cmdStandard", "file \"" + Standard("PET.bsp") + "\"",
                 "click frmVeritane.cmdSamp", "file \"" + Sample("ASA-100.bsp") + "\"",
                 "choose frmSelectSpectrum.lstSpectrum #2", "click frmVeritane.cmdStandard",
                 "file \"" + Standard("ASA-100.bsp") + "\"", "choose frmVeritane.cmbAlg \"Fourier\"",
                 "click frmVeritane.cmdNow"});
  }

  static const std::string kTemplate;
};

const std::string TemplatePrintingTest::kTemplate =
    "C:\\ProgramData\\Kestrova\\Veritane\\Certificate of identity.bpt";

TEST_F(TemplatePrintingTest, ASampleRunPrintsOnceItsRecordsAreSafe) {
  const auto events = MeasureFirst("ASA-100", "acetylsalicylic acid");
  EXPECT_THAT(events.Messages(), SizeIs(3)) << "no word beyond the run's own";
  const auto calls = Calls();
  ExpectHandedBack(calls);
  auto expected = Printing(Sample("ASA-100.bsp"), 1, Standard("ASA-100.bsp"));
  // The result was named in the sample file, and that was saved.
  expected.insert(expected.begin(), "CloseDocument(true)");
  expected.push_back("Interactive(true)");
  ASSERT_GE(calls.size(), expected.size());
  EXPECT_THAT(std::vector(calls.end() - static_cast<std::ptrdiff_t>(expected.size()), calls.end()),
              ElementsAreArray(expected));
  EXPECT_EQ(events.Last("print")["kind"], "template");

  // The same by the button, of what is on display.
  const auto again = Play({"click frmVeritane.cmdPrint"});
  expected.erase(expected.begin());
  EXPECT_THAT(Calls(), ElementsAreArray(expected));
  EXPECT_THAT(again.Named("print"), SizeIs(1));
  EXPECT_NE(again.Last("print")["file"], events.Last("print")["file"]);
}

TEST_F(TemplatePrintingTest, ASampleRunPrintsTheFirstSpectrumOfItsFile) {
  MeasureFirst("ASA-100", "acetylsalicylic acid");
  Calls();
  MeasureNext("ASA-100", "Lot 8");
  EXPECT_THAT(CallsOfPrint(), AllOf(Contains("SelectSpectrum(1)"), Not(Contains("SelectSpectrum(2)"))));
}

TEST_F(TemplatePrintingTest, FourierAndLumivarPrintAlike) {
  for (const auto& [product, material] : {std::pair{"ASA-100-FT", "acetylsalicylic acid"},
                                          std::pair{"ASA-100-BANDS", "acetylsalicylic acid"}}) {
    MeasureFirst(product, material);
    auto expected =
        Printing(Sample(std::string(product) + ".bsp"), 1, Standard(std::string(product) + ".bsp"));
    expected.push_back("Interactive(true)");
    EXPECT_THAT(CallsOfPrint(), ElementsAreArray(expected)) << product;
    Play({"click frmVeritane.cmdBacktoMainMenu"});
  }
}

TEST_F(TemplatePrintingTest, MarkPeaksMarksEveryPeakOnTheStandardBeforePrinting) {
  MeasurePeaks();
  std::vector<std::string> marking{"ActiveDocument", "GetSpectrumAt(1)", "GetMarkerList"};
  for (const char* peak : {"3026", "2849", "1601.5", "1493", "1452"}) {
    marking.insert(marking.end(), {"AddMarker(" + std::string(peak) + ")", "SetKind(2)", "SetStyle(0)",
                                   "SetDefinition(2, 2, " + std::string(peak) + ")"});
  }
  auto expected = Printing(Sample("POLYSTYRENE-PEAKS.bsp"), 1, Standard("POLYSTYRENE-PEAKS.bsp"), marking,
                           {"ClearMarkers"});
  const auto calls = CallsOfPrint();
  ASSERT_GE(calls.size(), expected.size());
  EXPECT_THAT(std::vector(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(expected.size())),
              ElementsAreArray(expected));
}

TEST_F(TemplatePrintingTest, PlsOpensNoStandardAndShowsNoDocument) {
  EXPECT_THAT(MeasureBlend().Named("print"), SizeIs(1));
  Calls();
  Play({"click frmVeritane.cmdPrint"});
  EXPECT_THAT(Calls(), ElementsAre("Interactive(false)", "OpenDocument(" + Sample("PS-PE-BLEND.bsp") + ")",
                                   "SelectSpectrum(1)", "PrepareSampleView", "PrepareStandardView",
                                   "BeginPrint", "OpenPrintTemplate(" + kTemplate + ")", "Interactive(false)",
                                   "PrintDoc", "Interactive(false)", "CloseDoc", "Interactive(false)",
                                   "CloseDocument(false)", "Interactive(false)", "Interactive(true)"));
}

TEST_F(TemplatePrintingTest, ReprocessingPrintsTheChosenSpectrumAndNothingByItself) {
  const auto events = ReprocessTheThird();
  ASSERT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
  EXPECT_THAT(events.Named("print"), IsEmpty());
  Calls();
  Play({"click frmVeritane.cmdPrint"});
  auto expected = Printing(Sample("ASA-100.bsp"), 3, Standard("ASA-100.bsp"));
  expected.push_back("Interactive(true)");
  EXPECT_THAT(Calls(), ElementsAreArray(expected));
}

TEST_F(TemplatePrintingTest, AMissingOrDamagedTemplateIsToldOverASafeResult) {
  const std::string not_completed = "\r\nPrinting through the template " + kTemplate + " was not completed.";
  machine_.files.DeleteFile(kTemplate);
  const auto missing = MeasureFirst("ASA-100", "acetylsalicylic acid", {"answer OK"});
  EXPECT_THAT(std::string(missing.Last("message")["text"]),
              AllOf(HasSubstr("Run-time error 53: File not found"), HasSubstr(not_completed)));
  ExpectOnlyRecords("ASA-100");
  ExpectHandedBack(Calls());

  Write(kTemplate, "a letter to the editor\r\n");
  const auto damaged = Play({"click frmVeritane.cmdPrint", "answer OK"});
  EXPECT_THAT(damaged.Messages(), ElementsAre(AllOf(HasSubstr("line 1"), HasSubstr(not_completed))));
  ExpectOnlyRecords("ASA-100");
  ExpectHandedBack(Calls());
}

TEST_F(TemplatePrintingTest, AFolderThatTakesNoPrintIsToldOverASafeResult) {
  // A file lies where the folder should be.
  Write(Data("Prints"), "in the way");
  const auto events = MeasureFirst("ASA-100", "acetylsalicylic acid", {"answer OK"});
  EXPECT_THAT(std::string(events.Last("message")["text"]),
              AllOf(HasSubstr("Run-time error 75"), HasSubstr("was not completed")));
  EXPECT_THAT(events.Named("print"), IsEmpty());
  machine_.files.DeleteFile(Data("Prints"));
  ExpectOnlyRecords("ASA-100");
  ExpectHandedBack(Calls());
  EXPECT_THAT(Play({"click frmVeritane.cmdPrint"}).Named("print"), SizeIs(1)) << "the next print works again";
}

TEST_F(TemplatePrintingTest, ASampleFileThatIsGoneIsToldAndOpensNothingElse) {
  MeasureFirst("ASA-100", "acetylsalicylic acid");
  Calls();
  machine_.files.DeleteFile(Sample("ASA-100.bsp"));
  const auto events = Play({"click frmVeritane.cmdPrint", "answer OK"});
  EXPECT_THAT(events.Messages(),
              ElementsAre(AllOf(HasSubstr("Run-time error 53"), HasSubstr("ASA-100.bsp"))));
  EXPECT_THAT(Calls(), ElementsAre("Interactive(false)", "OpenDocument(" + Sample("ASA-100.bsp") + ")",
                                   "Interactive(true)"));
}

TEST_F(TemplatePrintingTest, TheSupervisorChoosesTheTemplateAndDefaultPrintingEndsIt) {
  Play({"click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 4", "click frmVeritane.cmdSelTemplate",
        "file \"" + Data("Overlay.bpt") + "\"", "click frmVeritane.cmdMainMenu"});
  Calls();
  MeasureFirst("ASA-100", "acetylsalicylic acid");
  EXPECT_THAT(Calls(), Contains("OpenPrintTemplate(" + Data("Overlay.bpt") + ")"));
  Play(BackToTab(4));
  Play({"click frmVeritane.optDefaultPrint", "click frmVeritane.cmdMainMenu"});
  EXPECT_THAT(Play(WithOkays(EnterSample("ASA-100", "Lot 8"))).Named("print"), IsEmpty());
  EXPECT_THAT(Calls(), Not(Contains("BeginPrint")));
}

// What another program reads on the pages.
class TemplatePrintingPdfTest : public TemplatePrintingTest {
protected:
  std::string TextOfLastPrint(const platform::Events& events) {
    const auto print = events.Last("print");
    if (print.is_null()) return "nothing printed";
    return TextOfPdf(machine_.paths.ToNative(print["file"].get<std::string>()));
  }
};

TEST_F(TemplatePrintingPdfTest, ASampleRunPrintsTheFirstSpectrumOfItsFile) {
  const auto first = MeasureFirst("ASA-100", "acetylsalicylic acid");
  EXPECT_THAT(TextOfLastPrint(first), AllOf(HasSubstr("Lot 7"), HasSubstr("ASA-100.bsp")));
  const auto second = MeasureNext("ASA-100", "Lot 8");
  EXPECT_THAT(TextOfLastPrint(second), AllOf(HasSubstr("Lot 7"), Not(HasSubstr("Lot 8"))));
}

TEST_F(TemplatePrintingPdfTest, MarkedPeaksAreNamed) {
  EXPECT_THAT(TextOfLastPrint(MeasurePeaks()), AllOf(HasSubstr("3026"), HasSubstr("1601.5")));
}

TEST_F(TemplatePrintingPdfTest, PlsPrintsItsSampleAlone) {
  EXPECT_THAT(TextOfLastPrint(MeasureBlend()), AllOf(HasSubstr("PS-PE-BLEND.bsp"), HasSubstr("Lot 7")));
}

TEST_F(TemplatePrintingPdfTest, ReprocessingPrintsTheChosenSpectrum) {
  ReprocessTheThird();
  EXPECT_THAT(TextOfLastPrint(Play({"click frmVeritane.cmdPrint"})),
              AllOf(HasSubstr("Lot 9"), Not(HasSubstr("Lot 7"))));
}

}  // namespace
}  // namespace veritane::tests
