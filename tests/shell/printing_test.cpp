// Default printing, the texts of the two windows, and the screen copy.
#include "platform/run_time_error.h"
#include "tests/shell/reprocessing_fixture.h"
#include "tests/support/pdf_text.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace veritane::tests {
namespace {

using ::testing::AllOf;
using ::testing::ContainsRegex;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// A printer that does not answer.
class GonePrinter : public platform::Printer {
public:
  std::optional<std::string> Print(platform::Printout&) override {
    throw platform::RunTimeError(platform::ErrorNumber::kDeviceError, "the printer did not take the print");
  }
};

// A printer whose box the user closes.
class GivenUpPrinter : public platform::Printer {
public:
  std::optional<std::string> Print(platform::Printout&) override { return std::nullopt; }
};

class PrintingTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true, "40");
    WriteProducts({"ASPIRIN-1,Disc,Euclidean,", "BANDS-1,Disc,Lumivar,"});
    for (const char* standard : {"ASPIRIN-1.bsp", "BANDS-1.bsp", "back.bsp"}) {
      WriteSpectrum(Standard(standard), 100, 4, Bands(400));
    }
    WriteSpectrum(Standard("aspirin.bsp"), 100, 4, Bands(400, 3));
  }

  // The only file that the steps print.
  std::filesystem::path FileOf(const platform::Events& events, const std::string& kind) {
    const auto prints = events.Named("print");
    if (prints.size() != 1) {
      ADD_FAILURE() << prints.size() << " prints";
      return {};
    }
    EXPECT_EQ(prints[0]["kind"], kind);
    return machine_.paths.ToNative(prints[0]["file"].get<std::string>());
  }
  void ExpectResultIsSafe() {
    EXPECT_TRUE(Exists(Sample("ASPIRIN-1.bsp")));
    EXPECT_THAT(Read(Sample("ASPIRIN-1.his")), HasSubstr("Lot 7,"));
    EXPECT_TRUE(IsVisible("frmVeritane.fraSpectrum"));
  }
};

TEST_F(PrintingTest, TheChartIsPrintedWithoutTheApplication) {
  RunDemonstration("ASPIRIN-1");
  Calls();
  const auto events = Play({"click frmVeritane.cmdPrint"});
  EXPECT_THAT(events.Messages(), IsEmpty());
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_TRUE(std::filesystem::exists(FileOf(events, "chart")));
  EXPECT_EQ(events.Last("print")["file"], Data("Prints\\Spectrum ASPIRIN-1 2026-11-21 10-59-00.pdf"));
}

TEST_F(PrintingTest, TheResultsWindowPrintsUnderAnotherName) {
  RunDemonstration("BANDS-1");
  const auto events = Play({"click frmResults.cmdPrint"});
  EXPECT_TRUE(std::filesystem::exists(FileOf(events, "text")));
  EXPECT_EQ(events.Last("print")["file"], Data("Prints\\Results 2026-11-21 10-59-00.pdf"));
}

TEST_F(PrintingTest, APrinterThatIsGoneIsToldAndTheProgramGoesOn) {
  RunDemonstration("ASPIRIN-1");
  GonePrinter gone;
  run_.Screen().UsePrinter(gone);
  const auto events = Play({"click frmVeritane.cmdPrint", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(AllOf(HasSubstr("Run-time error 57"),
                                                   HasSubstr("the printer did not take the print"))));
  EXPECT_THAT(events.Named("print"), IsEmpty());
  ExpectResultIsSafe();
  run_.Screen().UsePrinter(printer_);
  FileOf(Play({"click frmVeritane.cmdPrint"}), "chart");
}

TEST_F(PrintingTest, APrintThatTheUserGivesUpIsNotToldAsPrinted) {
  RunDemonstration("ASPIRIN-1");
  GivenUpPrinter given_up;
  run_.Screen().UsePrinter(given_up);
  const auto events = Play({"click frmVeritane.cmdPrint"});
  EXPECT_THAT(events.Messages(), IsEmpty());
  EXPECT_THAT(events.Named("print"), IsEmpty());
  run_.Screen().UsePrinter(printer_);
}

TEST_F(PrintingTest, AFolderThatTakesNoFileIsToldAndTheProgramGoesOn) {
  Write(Data("Prints"), "in the way");
  RunDemonstration("ASPIRIN-1");
  const auto events = Play({"click frmVeritane.cmdPrint", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(HasSubstr("Run-time error 75")));
  EXPECT_THAT(events.Named("print"), IsEmpty());
  ExpectResultIsSafe();
}

TEST_F(PrintingTest, TheScreenCopyTakesTheSpectrumPanel) {
  RunDemonstration("ASPIRIN-1");
  EXPECT_EQ(Play({"click frmVeritane.cmdScreenCopy"}).All().back().dump(),
            R"({"event":"picture","control":"frmVeritane.fraSpectrum"})");
}

// What another program reads on the pages.
class PrintingPdfTest : public PrintingTest {};

TEST_F(PrintingPdfTest, OneLandscapePageHasEverythingThatTheChartShows) {
  RunDemonstration("ASPIRIN-1");
  const auto file = FileOf(Play({"click frmVeritane.cmdPrint"}), "chart");
  EXPECT_THAT(AboutPdf("pdfinfo", file),
              AllOf(ContainsRegex("Pages: +1\n"), ContainsRegex("841.*x 595.*A4")));
  EXPECT_THAT(
      TextOfPdf(file),
      AllOf(HasSubstr(Verdict()), HasSubstr("Standard"), HasSubstr("Sample"), HasSubstr("Wavenumber (cm"),
            ContainsRegex("Lot 7 +[0-9.]+%\\. +Saturday November 21 2026"), HasSubstr("Operator= Ann")));
  // Lines stay lines: a page without a single picture.
  EXPECT_THAT(AboutPdf("pdfimages -list", file), Not(HasSubstr(" image ")));
}

TEST_F(PrintingPdfTest, TheVerdictIsPrintedOnlyWhereTheOptionSaysSo) {
  Play({"click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 4", "click frmVeritane.chkPrintPassFail",
        "click frmVeritane.cmdMainMenu"});
  RunDemonstration("ASPIRIN-1");
  EXPECT_THAT(TextOfPdf(FileOf(Play({"click frmVeritane.cmdPrint"}), "chart")),
              AllOf(Not(HasSubstr("PASS")), Not(HasSubstr("FAIL")), HasSubstr("Lot 7")));
}

TEST_F(PrintingPdfTest, ALongCaptionIsPrintedWhole) {
  const std::string name = "Lot " + std::string(120, 'x') + " " + std::string(120, 'y');
  RunDemonstration("ASPIRIN-1", name);
  const std::string text = TextOfPdf(FileOf(Play({"click frmVeritane.cmdPrint"}), "chart"));
  EXPECT_THAT(text, AllOf(HasSubstr(std::string(120, 'x')), HasSubstr(std::string(120, 'y')),
                          HasSubstr("Operator= Ann")));
}

TEST_F(PrintingPdfTest, TheResultsWindowPrintsItsTextAsItStands) {
  RunDemonstration("BANDS-1");
  const std::string report = run_.Get("frmResults.txtResults")["text"];
  ASSERT_THAT(report, HasSubstr(" - "));
  const std::string printed = TextOfPdf(FileOf(Play({"click frmResults.cmdPrint"}), "text"));
  for (std::size_t begin = 0; begin < report.size();) {
    const std::size_t end = std::min(report.find("\r\n", begin), report.size());
    EXPECT_THAT(printed, HasSubstr(report.substr(begin, report.find(' ', begin) - begin)));
    begin = end + 2;
  }
}

TEST_F(PrintingPdfTest, ThePredictionWindowPrintsItsListLineByLine) {
  Play({"start", [this] {
          auto& form = dynamic_cast<pls::MainForm&>(*run_.Screen().Find("MainForm"));
          form.iqoutput.AddAll({"Sample Name = Lot 7", "Polystyrene = 30.5"});
          form.cmdPrint.Click();
        }});
  EXPECT_THAT(TextOfPdf(FileOf(run_.AllEvents(), "text")),
              HasSubstr("Sample Name = Lot 7\nPolystyrene = 30.5\n"));
}

class ReprocessedPrintTest : public ReprocessingTest {
protected:
  // The file of the print that names the peaks of the third sample.
  std::string Print() {
    ChooseBoth("#2");
    Reprocess("Mark Peaks", {"file \"" + Data("peaks.txt") + "\""});
    const auto print = Play({"click frmVeritane.cmdPrint"}).Last("print");
    return print.is_null() ? "" : print["file"].get<std::string>();
  }
};

TEST_F(ReprocessedPrintTest, TheFileIsNamedAfterTheSampleFile) {
  EXPECT_EQ(Print(), Data("Prints\\Spectrum lots 2026-11-21 10-59-00.pdf"));
}

class ReprocessedPrintPdfTest : public ReprocessedPrintTest {};

TEST_F(ReprocessedPrintPdfTest, HeaderAndPeaksOfAReprocessedResultArePrinted) {
  EXPECT_THAT(
      TextOfPdf(machine_.paths.ToNative(Print())),
      AllOf(HasSubstr("Reprocess Standard ---------TABLET-1"), HasSubstr("Reprocess Sample ---------Lot 3"),
            HasSubstr("Algorithm=Mark Peaks"), ContainsRegex("1440 +.*1000 +.*640")));
}

}  // namespace
}  // namespace veritane::tests
