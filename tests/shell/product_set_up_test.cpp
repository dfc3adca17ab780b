// Collect methods, null regions, the product table and the Product ID's definition as a supervisor edits
// them.
#include "tests/shell/program_fixture.h"

namespace veritane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class SetUpTest : public ProgramTest {
protected:
  void SetUp() override {
    WriteSettings(true);
    Write(Standard("Disc.clm"), "From = 400\r\nTo = 1600\r\nSpacing = 4\r\n");
    WriteProducts({"A,Disc,Euclidean,", "B,Disc,Fourier,", "C,Disc,PLS,C:\\octane.cal"});
  }

  void EnterSupervisorMode(int tab) {
    Play({"start", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 " + std::to_string(tab)});
  }
  std::vector<std::string> Items(const std::string& control) { return run_.Get(control)["items"]; }
  std::string Text(const std::string& control) { return run_.Get(control)["text"]; }
  // While it shows.
  acquisition::FrmNullRegion& Regions() {
    return dynamic_cast<acquisition::FrmNullRegion&>(*program_->Screen().Find("frmNullRegion"));
  }
};

TEST_F(SetUpTest, AnAddedMethodIsKeptWithItsPromptsAndShowsInTheOtherListsWhenTheyAreLoadedNext) {
  EnterSupervisorMode(2);
  const auto events =
      Play({"click frmVeritane.cmdAddMeth", "file \"C:\\x\\Tablet A.clm\"",
            "type frmPrompts.txtBackgroundPrompt \"Empty it.\"",
            "type frmPrompts.txtSamplePrompt \"Fill it.\"", "key frmPrompts.txtSamplePrompt Enter"});
  EXPECT_EQ(events.Last("file-dialog")["title"], " Select clm file");
  EXPECT_EQ(events.Last("file-dialog")["filter"], "(*.clm)|*.clm");
  EXPECT_EQ(events.Last("file-dialog")["folder"], Data("Standards\\"));
  EXPECT_THAT(Items("frmVeritane.lstMeths"), ElementsAre(Standard("Disc.clm"), "C:\\x\\Tablet A.clm"));
  EXPECT_EQ(Read(Data("Meths.tbl")), " 2 \r\n" + Standard("Disc.clm") + "\r\nC:\\x\\Tablet A.clm\r\n");
  EXPECT_EQ(Read(Standard("Tablet A.pro")), "Empty it.\r\nFill it.\r\n");
  EXPECT_THAT(Items("frmVeritane.cmbCollectMethod"), ElementsAre("Disc"));
  Play({"tab frmVeritane.SSTab1 1", "click frmVeritane.cmdBack",
        "click frmSelectMethod.cmdSelectMethodCancel"});
  EXPECT_THAT(Items("frmVeritane.cmbCollectMethod"), ElementsAre("Disc", "Tablet A"));

  Play({"tab frmVeritane.SSTab1 2", "click frmVeritane.cmdAddMeth", "cancel"});
  EXPECT_EQ(Items("frmVeritane.lstMeths").size(), 2U);
}

TEST_F(SetUpTest, ADeletedMethodLeavesTheListButKeepsItsFiles) {
  Write(Data("Meths.tbl"), " 2 \r\n" + Standard("Disc.clm") + "\r\n" + Standard("Film.clm") + "\r\n");
  Write(Data("Disc.nul"), " 1 \r\n2400 - 2300\r\n");
  EnterSupervisorMode(2);
  const auto events = Play({"click frmVeritane.cmdDeleteMethod", "answer OK"});
  EXPECT_THAT(events.Messages(), ElementsAre(" Please select a Collect Method to delete."));
  EXPECT_EQ(events.Last("message")["icon"], "information");
  Play({"choose frmVeritane.lstMeths #0", "click frmVeritane.cmdDeleteMethod"});
  EXPECT_EQ(Read(Data("Meths.tbl")), " 1 \r\n" + Standard("Film.clm") + "\r\n");
  EXPECT_THAT(Items("frmVeritane.lstMeths"), ElementsAre(Standard("Film.clm")));
  EXPECT_THAT(Items("frmVeritane.lstNullRegions"), IsEmpty());
  EXPECT_THAT(Items("frmVeritane.cmbCollectMethod"), ElementsAre("Film"));
  EXPECT_TRUE(Exists(Standard("Disc.clm")) && Exists(Data("Disc.nul")));
  EXPECT_THAT(Table(), ::testing::HasSubstr("A,Disc,Euclidean,")) << "products that name it stay as they are";
}

TEST_F(SetUpTest, NullRegionsAreDigitsOnlyAndWrittenWhenTheDialogCloses) {
  EnterSupervisorMode(2);
  EXPECT_THAT(Play({"click frmVeritane.cmdNullRegions", "answer OK"}).Messages(),
              ElementsAre(" Please select a Collect Method."));
  Play({"choose frmVeritane.lstMeths #0", "click frmVeritane.cmdNullRegions",
        "type frmNullRegion.txtNullStart \"2x4-00\"", "key frmNullRegion.txtNullStart Backspace",
        [this] { EXPECT_EQ(Regions().txtNullStart.Text(), "2400"); }, "click frmNullRegion.cmdAddNullRegion",
        [this] {
          EXPECT_EQ(Regions().txtNullStart.Text(), "2400") << "a half region is not added";
          EXPECT_THAT(Regions().lstNulls.Items(), IsEmpty());
        },
        "type frmNullRegion.txtNullEnd \"2300\"", "key frmNullRegion.txtNullEnd Enter",
        "type frmNullRegion.txtNullStart \"1000\"", "type frmNullRegion.txtNullEnd \"2000\"",
        "click frmNullRegion.cmdAddNullRegion", "click frmNullRegion.cmdDone"});
  EXPECT_EQ(Read(Data("Disc.nul")), " 2 \r\n2400 - 2300\r\n1000 - 2000\r\n");
  EXPECT_THAT(Items("frmVeritane.lstNullRegions"), ElementsAre("2400 - 2300", "1000 - 2000"));
  const auto events = Play({"click frmVeritane.cmdNullRegions", "click frmNullRegion.cmdDeleteNullRegion",
                            "answer OK", "choose frmNullRegion.lstNulls #1",
                            "click frmNullRegion.cmdDeleteNullRegion", "choose frmNullRegion.lstNulls #0",
                            "click frmNullRegion.cmdDeleteNullRegion", "close frmNullRegion"});
  EXPECT_THAT(events.Messages(), ElementsAre(" Please select a region to delete."));
  EXPECT_EQ(Read(Data("Disc.nul")), " 0 \r\n");
}

TEST_F(SetUpTest, ABandOutsideTheStandardFailsASampleUntilANullRegionExcludesIt) {
  std::vector<double> sample = Bands(301);
  for (int i = 200; i < 216; ++i) sample[static_cast<std::size_t>(i)] += 0.9;  // 1200 to 1260 cm⁻¹
  WriteSpectrum(Standard("A.bsp"), 100, 4, Bands(301));
  WriteSpectrum(Standard("aspirin.bsp"), 100, 4, sample);
  WriteSpectrum(Standard("back.bsp"), 100, 4, Bands(301));
  Play({"start"});
  RunDemonstration("A");
  EXPECT_EQ(Verdict(), "FAIL");
  Play(BackToTab(2));
  Play({"choose frmVeritane.lstMeths #0", "click frmVeritane.cmdNullRegions",
        "type frmNullRegion.txtNullStart \"1280\"", "type frmNullRegion.txtNullEnd \"1180\"",
        "click frmNullRegion.cmdAddNullRegion", "click frmNullRegion.cmdDone",
        "click frmVeritane.cmdMainMenu"});
  RunDemonstration("A");
  EXPECT_EQ(Verdict(), "PASS");
}

TEST_F(SetUpTest, ARowsAlgorithmCarriesItsAdditionalFileWithIt) {
  EnterSupervisorMode(3);
  const auto cell = [this](int row, int column) {
    return run_.Get(
        "frmVeritane.grid")["rows"][static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  };
  EXPECT_THAT(Play({"row frmVeritane.grid 3"}).Named("file-dialog"), IsEmpty())
      << "showing a row asks nothing";
  EXPECT_EQ(Text("frmVeritane.cmbAlgorithm"), "PLS");
  EXPECT_EQ(Caption("frmVeritane.lblCurrentProductID"), "C");
  Play({"choose frmVeritane.cmbAlgorithm \"Fourier\""});
  EXPECT_EQ(cell(3, 3), "");
  auto events = Play({"choose frmVeritane.cmbAlgorithm \"PLS\"", "file \"C:\\new.cal\""});
  EXPECT_EQ(events.Last("file-dialog")["title"], "Select calibration file");
  EXPECT_EQ(events.Last("file-dialog")["filter"], "(*.cal)|*.cal");
  EXPECT_EQ(cell(3, 3), "C:\\new.cal");
  events = Play({"choose frmVeritane.cmbAlgorithm \"Mark Peaks\"", "cancel"});
  EXPECT_EQ(events.Last("file-dialog")["title"], "Select peak file");
  EXPECT_EQ(events.Last("file-dialog")["filter"], "(*.txt)|*.txt");
  EXPECT_EQ(cell(3, 3), "");
  Play({"click frmVeritane.cmdChooseCalFile", "file \"C:\\a, b.txt\"", "row frmVeritane.grid 1"});
  EXPECT_THAT(Play({"click frmVeritane.cmdChooseCalFile"}).Named("file-dialog"), IsEmpty());
  Play({"tab frmVeritane.SSTab1 0"});
  EXPECT_EQ(Table(), " 3 \r\nA,Disc,Euclidean,\r\nB,Disc,Fourier,\r\nC,Disc,Mark Peaks,\"C:\\a, b.txt\"\r\n");
  Play({"click frmVeritane.cmdMainMenu", "click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 3"});
  EXPECT_EQ(cell(3, 3), "C:\\a, b.txt") << "a comma in a path does not break its row";
}

TEST_F(SetUpTest, SavingAsksForAMissingFileUntilItIsThereOrTheSupervisorStays) {
  const std::string before = Table();
  EnterSupervisorMode(3);
  Play({"row frmVeritane.grid 2", "choose frmVeritane.cmbAlgorithm \"PLS\"", "cancel",
        "row frmVeritane.grid 1"});
  auto events = Play({"tab frmVeritane.SSTab1 0", "answer OK", "cancel", "answer Cancel"});
  const std::string text =
      "You have chosen an Algorithm for Product ID: B  that requires an additional file. Please chose the "
      "appropriate file.";
  EXPECT_THAT(events.Messages(), ElementsAre(text, text));
  EXPECT_EQ(events.Last("message")["title"], "Notice");
  EXPECT_EQ(events.Last("message")["icon"], "exclamation");
  EXPECT_EQ(run_.Get("frmVeritane.SSTab1")["tab"], 3);
  EXPECT_EQ(run_.Get("frmVeritane.grid")["row"], 2) << "the product in question is the current one";
  EXPECT_EQ(Table(), before);
  Play({"click frmVeritane.cmdMainMenu", "answer Cancel"});
  EXPECT_TRUE(IsVisible("frmVeritane.fraSupervisorMode"));
  Play({"click frmVeritane.cmdMainMenu", "answer OK", "cancel", "answer OK", "file \"C:\\b.cal\""});
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
  EXPECT_THAT(Table(), ::testing::HasSubstr("B,Disc,PLS,C:\\b.cal\r\n"));
}

TEST_F(SetUpTest, ATableThatCannotBeReadIsNeverWrittenOver) {
  const std::string damaged = " 9 \r\nA,Disc,Euclidean,\r\n";
  Write(Data("Meth.tbl"), damaged);
  const auto events =
      Play({"start", "click frmVeritane.cmdSupervisor", "answer OK", "tab frmVeritane.SSTab1 3",
            "click frmVeritane.cmdDel", "click frmVeritane.cmdChooseCalFile",
            "choose frmVeritane.cmbAlgorithm \"PLS\"", "click frmVeritane.cmdCollectStdNow", "answer OK",
            "tab frmVeritane.SSTab1 0", "click frmVeritane.cmdMainMenu"});
  EXPECT_THAT(events.Messages(),
              ElementsAre(StartsWith("The product table cannot be read."), StartsWith("Run")));
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
  EXPECT_EQ(Table(), damaged);
}

TEST_F(SetUpTest, ADeletedProductTakesItsSamplesAndHistogramWithItButNotTheLastProduct) {
  for (const char* name : {"B.bsp", "B.his", "A.bsp"}) Write(Sample(name), "x");
  Write(Standard("B.bsp"), "x");
  EnterSupervisorMode(3);
  Play({"row frmVeritane.grid 2"});
  auto events = Play({"click frmVeritane.cmdDel", "answer No"});
  EXPECT_THAT(events.Messages(), ElementsAre("Are you sure you want to delete B? Standard spectra, Sample "
                                             "spectra, and Histogram file will be deleted."));
  EXPECT_EQ(events.Last("message")["title"], "Delete Row...");
  EXPECT_TRUE(Exists(Sample("B.bsp")));
  Play({"click frmVeritane.cmdDel", "answer Yes"});
  EXPECT_FALSE(Exists(Sample("B.bsp")) || Exists(Sample("B.his")));
  EXPECT_TRUE(Exists(Sample("A.bsp")));
  EXPECT_TRUE(Exists(Standard("B.bsp"))) << "only a file of the current directory is meant";
  EXPECT_EQ(Table(), " 2 \r\nA,Disc,Euclidean,\r\nC,Disc,PLS,C:\\octane.cal\r\n");
  EXPECT_EQ(Caption("frmVeritane.lblCurrentProductID"), "C") << "the row that moved up is the current one";
  Play({"click frmVeritane.cmdDel", "answer Yes"});
  EXPECT_THAT(Play({"click frmVeritane.cmdDel"}).Messages(), IsEmpty());
  EXPECT_EQ(Table(), " 1 \r\nA,Disc,Euclidean,\r\n");
}

TEST_F(SetUpTest, ThePartOfAProductIdIsDefinedByItsFirstOccurrenceInTheExample) {
  const std::string file = "C:\\Program\\Standards\\ProductID.par";
  EnterSupervisorMode(4);
  auto events = Play({"click frmVeritane.cmdParse", "type frmParse.txtTmpProductID \"LOT123-ASPIRIN-2024\"",
                      "key frmParse.txtTmpProductID Enter", "click frmParse.cmdOK", "answer OK",
                      "highlight frmParse.txtTmpProductID 7 7", "click frmParse.cmdOK"});
  EXPECT_THAT(events.Messages(), ElementsAre(" Please select a region to delete."))
      << "a scanner's Enter behind the example confirms nothing";
  EXPECT_EQ(events.Last("message")["icon"], "exclamation");
  EXPECT_EQ(Read(file), " 8 \r\n 7 \r\n");
  Play({"click frmVeritane.cmdParse", "type frmParse.txtTmpProductID \"ÄAXÄA\"",
        "highlight frmParse.txtTmpProductID 3 2", "key frmParse.txtTmpProductID Enter"});
  EXPECT_EQ(Read(file), " 1 \r\n 2 \r\n");
  EXPECT_FALSE(Exists(Standard("ProductID.par"))) << "the readers' folder is another one";
  Play({"click frmVeritane.cmdParse", "click frmParse.cmdResetParser", "click frmVeritane.cmdParse",
        "click frmParse.cmdResetParser"});
  EXPECT_FALSE(Exists(file));
}

TEST_F(SetUpTest, APrintTemplateIsChosenByItsButton) {
  Write(Data("certificate.bpt"), "x");
  EnterSupervisorMode(4);
  Play({"click frmVeritane.cmdSelTemplate", "cancel"});
  EXPECT_EQ(run_.Get("frmVeritane.optDefaultPrint")["checked"], true);
  const auto events = Play({"click frmVeritane.cmdSelTemplate", "file \"" + Data("certificate.bpt") + "\""});
  EXPECT_EQ(events.Last("file-dialog")["title"], "Select print template");
  EXPECT_EQ(events.Last("file-dialog")["filter"], "(*.bpt)|*.bpt");
  EXPECT_EQ(run_.Get("frmVeritane.optPrintTemplate")["checked"], true);
  EXPECT_EQ(Caption("frmVeritane.lblPrintTemplate"), Data("certificate.bpt"));
  Play({"click frmVeritane.cmdMainMenu"});
  EXPECT_TRUE(IsVisible("frmVeritane.fraMainMenu"));
  EXPECT_THAT(Read(Data("settings.ini")),
              ::testing::HasSubstr("\r\n1\r\n" + Data("certificate.bpt") + "\r\n"));
}

}  // namespace
}  // namespace veritane::tests
