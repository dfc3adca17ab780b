// The forms that ordinates and labels take in JCAMP-DX files.
#include "simulator/jcamp_text.h"
#include "tests/simulator/jcamp_text_samples.h"

#include <gmock/gmock.h>

namespace veritane::simulator {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(JcampForms, PackedNumbersNeedNoBlanks) {
  EXPECT_THAT(Ordinates("1 +10-20+30-40\n", 4), ElementsAre(10, -20, 30, -40));
  EXPECT_THAT(Ordinates("1+10-20\n3+30-40\n", 4), ElementsAre(10, -20, 30, -40));
}

TEST(JcampForms, SqueezedDigitsStandForSignAndFirstDigit) {
  EXPECT_THAT(Ordinates("1@A1b23I\n", 4), ElementsAre(0, 11, -223, 9));
  EXPECT_THAT(Ordinates("1i9 a\n3 @ C\n", 4), ElementsAre(-99, -1, 0, 3));
}

TEST(JcampForms, ALineAfterADifferenceBeginsWithACheckValue) {
  // 10, 11, 11, 9; the second line repeats 9 and goes on 19, 14.
  EXPECT_THAT(Ordinates("1A0J%k\n4IJ0n\n", 6), ElementsAre(10, 11, 11, 9, 19, 14));
  // A last line that holds nothing but the check value adds no point; without it nothing is amiss.
  EXPECT_THAT(Ordinates("1A0J%k\n4I\n", 4), ElementsAre(10, 11, 11, 9));
  EXPECT_THAT(Ordinates("1A0J%k\n", 4), ElementsAre(10, 11, 11, 9));
  // A line that ended in a value is followed by the next value, even an equal one.
  EXPECT_THAT(Ordinates("1A0JA1\n4A1\n", 4), ElementsAre(10, 11, 11, 11));
}

TEST(JcampForms, ADuplicateRepeatsTheWholeValueOrDifference) {
  EXPECT_THAT(Ordinates("1A2V\n", 4), ElementsAre(12, 12, 12, 12));
  EXPECT_THAT(Ordinates("1A0J2U\n", 4), ElementsAre(10, 22, 34, 46));
  EXPECT_THAT(Ordinates("1A0%U\n4A0J\n", 5), ElementsAre(10, 10, 10, 10, 11))
      << "DIF behind DUP is still DIF";
  EXPECT_THAT(Ordinates("1 7.5 S 8\n", 2), ElementsAre(7.5, 8)) << "once in all is no repetition";
}

TEST(JcampForms, DuplicateCountsMayHaveSeveralDigits) {
  const std::vector<double> twenty = Ordinates("1CT0\n", 20);
  EXPECT_THAT(twenty, SizeIs(20));
  EXPECT_THAT(twenty, ::testing::Each(3));
}

TEST(JcampForms, FormsMixWithinOneLine) {
  EXPECT_THAT(Ordinates("1 100+50A5J1T-3 % \n7-3D\n", 8), ElementsAre(100, 50, 15, 26, 37, -3, -3, 4));
}

TEST(JcampForms, AnEIsAnExponentOnlyWithinAPlainNumber) {
  EXPECT_THAT(Ordinates("1 1.2E-05 1e+2 3E2 -.5e1\n", 4),
              ElementsAre(DoubleEq(1.2e-5), DoubleEq(100), DoubleEq(300), DoubleEq(-5)));
  EXPECT_THAT(Ordinates("1E37%J\n", 3), ElementsAre(537, 537, 538));
  EXPECT_THAT(Ordinates("1E2E3E4e5\n", 4), ElementsAre(52, 53, 54, -55));
  EXPECT_THAT(Ordinates("1 E2 7\n3 E2 7\n", 4), ElementsAre(52, 7, 52, 7));
}

TEST(JcampForms, DecimalCommasAndSemicolons) {
  SampleBlock block{.firstX = "400,5", .lastX = "402,0", .yFactor = "0,5"};
  block.table = "(X++(Y..Y))\n400,5;0,25;1,5\n401,5;-2,5E-1;3\n";
  const JcampSpectrum spectrum = OnlySpectrum(block.Text());
  EXPECT_THAT(spectrum.ordinates, ElementsAre(0.125, 0.75, -0.125, 1.5));
  EXPECT_EQ(spectrum.firstX, 400.5);
  EXPECT_EQ(spectrum.lastX, 402);
}

TEST(JcampForms, WithoutDecimalMarksInTheLabelsTheTableTellsWhatACommaIs) {
  EXPECT_THAT(Ordinates("1, 10, 20\n3, 30, 40\n", 4), ElementsAre(10, 20, 30, 40));
  EXPECT_THAT(Ordinates("1,10,20\n3,30,40\n", 4), ElementsAre(10, 20, 30, 40));
  EXPECT_THAT(Ordinates("1 0,5 1,5\n3 2,5 3,5\n", 4), ElementsAre(0.5, 1.5, 2.5, 3.5));
}

TEST(JcampForms, PairsThatAreEvenlySpacedAreASpectrum) {
  SampleBlock block{.label = "XYPOINTS"};
  block.table = "(XY..XY)\n1,10 2,20\n3,30; 4,40\n";
  EXPECT_THAT(OnlySpectrum(block.Text()).ordinates, ElementsAre(10, 20, 30, 40));
  block.label = "XYDATA";
  EXPECT_THAT(OnlySpectrum(block.Text()).ordinates, ElementsAre(10, 20, 30, 40));
  block.table = "(XY..XY)\n1,10 2,20\n3.4,30; 4,40\n";
  EXPECT_THAT(FaultOf(block.Text()), HasSubstr("not evenly spaced"));
  block.table = "(XY..XY)\n1,10 2,20\n3,30\n";
  EXPECT_THAT(FaultOf(block.Text()), HasSubstr("LASTX")) << "a lost pair at the end is no spectrum";
}

TEST(JcampForms, TheTableFormMayLackBracketsOrHoldOnePairALine) {
  EXPECT_THAT(Ordinates("1 10\n2 20\n3 30\n4 40\n", 4), ElementsAre(10, 20, 30, 40));
  SampleBlock block;
  block.table = "X++Y..Y\n1 10 20 30 40\n";
  EXPECT_THAT(OnlySpectrum(block.Text()).ordinates, ElementsAre(10, 20, 30, 40));
}

TEST(JcampForms, LabelsIgnoreCaseBlanksAndMarks) {
  const std::string text =
      "##Title=x\n##jcamp_dx=4.24\n##DATATYPE= INFRARED SPECTRUM\n##first x = 400 $$ first\n##LAST-X= 402\n"
      "##NPOINTS =3\n##Y_FACTOR=2\n##xy/data=(X++(Y..Y)) $$ table\n400 1 2 3 $$ note\n$$ whole "
      "line\n##End=\n";
  EXPECT_THAT(OnlySpectrum(text).ordinates, ElementsAre(2, 4, 6));
  EXPECT_EQ(OnlySpectrum(text).firstX, 400);
}

TEST(JcampForms, LinesMayEndInAnyWay) {
  const std::string unix_text = SampleBlock().Text();
  for (const std::string end : {"\r\n", "\r"}) {
    std::string text;
    for (const char c : unix_text) {
      text += c == '\n' ? end : std::string(1, c);
    }
    EXPECT_THAT(OnlySpectrum(text).ordinates, ElementsAre(10, 20, 30, 40));
  }
}

TEST(JcampForms, ValuesMayRunOverSeveralLinesAndMayBeLatin1) {
  SampleBlock block;
  block.more = "##OWNER= Universit\xE4t $$ where\nDept of Chemistry\n##$URL= http://x\n";
  const JcampSpectrum spectrum = OnlySpectrum(block.Text());
  EXPECT_EQ(spectrum.labels, (std::vector<FileLabel>{{"OWNER", "Universit\xC3\xA4t\nDept of Chemistry"}}));
  EXPECT_EQ(spectrum.parameters, (std::vector<NamedValue>{{"URL", "http://x"}}));
}

TEST(JcampForms, AByteOrderMarkIsNoPartOfTheFirstLabel) {
  EXPECT_EQ(OnlySpectrum("\xEF\xBB\xBF" + SampleBlock().Text()).title, "sample");
}

TEST(JcampForms, DatesBecomeOneTime) {
  const auto time_of = [](const std::string& labels) {
    SampleBlock block;
    block.more = labels;
    return OnlySpectrum(block.Text()).time;
  };
  EXPECT_EQ(time_of("##LONGDATE= 2001/02/03 04:05:06\n"), "2001/02/03 04:05:06");
  EXPECT_EQ(time_of("##LONGDATE= 2001/02/03 04:05:06.1234 -0500\n"), "2001/02/03 04:05:06");
  EXPECT_EQ(time_of("##DATE= 97/01/28\n##TIME= 10:00:00\n"), "1997/01/28 10:00:00");
  EXPECT_EQ(time_of("##DATE= 28 Jan 1997\n##TIME= 10.00\n"), "28 Jan 1997 10.00");
  EXPECT_EQ(time_of("##DATE= 98/02/28\n##TIME= 10:00:0\x87\n"), "1998/02/28 10:00:0\xE2\x80\xA1")
      << "a damaged second is no second";
  EXPECT_EQ(time_of(""), "");
}

TEST(JcampForms, ACompoundFileGivesItsBlocksInOrder) {
  SampleBlock first{.title = "first"};
  SampleBlock second{.title = "second", .firstX = "10", .lastX = "7"};
  second.table = "(X++(Y..Y))\n10+1+2\n8+3+4\n";
  const std::string link = "##TITLE= link\n##DATA TYPE= LINK\n##BLOCKS= 2\n##OWNER= us\n";
  const JcampFile file = ReadJcamp(link + first.Text() + second.Text() + "##END= $$ all\nnothing more\n");
  ASSERT_THAT(file.spectra, SizeIs(2));
  EXPECT_EQ(file.spectra[0].title, "first");
  EXPECT_EQ(file.spectra[1].title, "second");
  EXPECT_THAT(file.spectra[1].ordinates, ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(file.spectra[0].warnings, IsEmpty());
  // A compound block within a compound block.
  EXPECT_THAT(ReadJcamp(link + link + first.Text() + second.Text() + "##END=\n##END=\n").spectra, SizeIs(2));
}

TEST(JcampForms, ACompoundFileOfPackedBlocksMayRunDownwardsAndScaleX) {
  const auto block = [](const std::string& number, const std::string& rows) {
    return "##TITLE= t" + number + "\n##DATA TYPE= UV/VIS SPECTRUM\n##BLOCK-ID =" + number +
           "\n##XUNITS= nm\n##XFACTOR= 2.0\n##YFACTOR= .25\n##FIRSTX= 700.00\n##LASTX= 690.00\n" +
           "##DELTAX= -2.0\n##NPOINTS= 6\n##XYDATA= (X++(Y..Y))\n" + rows + "##END= \n";
  };
  const JcampFile file = ReadJcamp("##TITLE= t\n##DATA TYPE= LINK\n##BLOCKS= 2\n" +
                                   block("1", "  350.000  -51 -43  -34\n  347.000+1175+12499-8\n") +
                                   block("2", "350+1+2+3+4\n346-5-6\n") + "##END=   $$end of all blocks\n");
  ASSERT_THAT(file.spectra, SizeIs(2));
  EXPECT_THAT(file.spectra[0].ordinates, ElementsAre(-12.75, -10.75, -8.5, 293.75, 3124.75, -2));
  EXPECT_THAT(file.spectra[1].ordinates, ElementsAre(0.25, 0.5, 0.75, 1, -1.25, -1.5));
  EXPECT_EQ(file.spectra[1].firstX, 700);
  EXPECT_EQ(file.spectra[1].xUnits, "nm");
}

TEST(JcampForms, ACompoundFileOpensWhatCanBeShownAndSaysWhatCannot) {
  const std::string peaks = "##TITLE= peaks\n##PEAK TABLE= (XY..XY)\n1,2 3,4\n##END=\n";
  SampleBlock holes{.title = "holes"};
  holes.table = "(X++(Y..Y))\n1 10 ? 30 40\n";
  const JcampFile file = ReadJcamp("##TITLE= link\n##DATA TYPE= LINK\n##BLOCKS= 3\n" + peaks +
                                   SampleBlock().Text() + holes.Text() + "##END=\n");
  ASSERT_THAT(file.spectra, SizeIs(1));
  ASSERT_THAT(file.leftOut, SizeIs(2));
  EXPECT_THAT(file.leftOut[0], HasSubstr("\"peaks\": line 5: ##PEAK TABLE="));
  EXPECT_THAT(file.leftOut[1], HasSubstr("missing points"));
  EXPECT_THAT(AllWarnings(file.spectra[0]), HasSubstr("\"holes\""));
  EXPECT_THAT(FaultOf(peaks), HasSubstr("PEAK TABLE"));
  EXPECT_THAT(FaultOf(peaks.substr(peaks.find("##PEAK"))), HasSubstr("PEAK TABLE"))
      << "also without its TITLE";
  EXPECT_THAT(FaultOf(holes.Text()), HasSubstr("missing points"));
}

double UnitOfLabel(std::string_view written) {
  const auto number = ReadLabelNumber(written, false);
  return number ? number->unit : -1;
}

TEST(LabelNumbers, TheUnitIsTheWeightOfTheLastDigitWritten) {
  EXPECT_DOUBLE_EQ(UnitOfLabel("4400."), 1);
  EXPECT_DOUBLE_EQ(UnitOfLabel("0.19 CM"), 0.01);
  EXPECT_DOUBLE_EQ(UnitOfLabel("+1.25E+04"), 100);
  EXPECT_DOUBLE_EQ(UnitOfLabel("12e-0003"), 0.001);
  EXPECT_DOUBLE_EQ(UnitOfLabel("0.0E-2147483648"), 0) << "finer than any number";
}

TEST(LabelNumbers, AnExponentBeyondAllNumbersIsRefused) {
  for (const char* written :
       {"0E+400", "0.0E2147483647", "0.0E-2147483649", "0E99999999999999999999", "1E400"}) {
    EXPECT_FALSE(ReadLabelNumber(written, false)) << written;
  }
}

}  // namespace
}  // namespace veritane::simulator
