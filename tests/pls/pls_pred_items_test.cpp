// The items that PLSPred delivers: names, preconditions, sizes and what a library can get wrong about them.
#include "tests/pls/pls_pred_fixture.h"

#include <cmath>
#include <limits>

namespace veritane::pls {
namespace {

using ::testing::ElementsAre;
using tests::ErrorOf;
using ArrayGetter = std::int32_t (PLSPred::*)(Array&, std::int32_t&);
using NumberGetter = std::int32_t (PLSPred::*)(double&);
using IntegerGetter = std::int32_t (PLSPred::*)(std::int16_t&);

const std::map<std::string, ArrayGetter> kArrays{{"residual", &PLSPred::GetResidual},
                                                 {"concentration", &PLSPred::GetConcentration},
                                                 {"scores", &PLSPred::GetScores},
                                                 {"distance", &PLSPred::GetDistance},
                                                 {"resid_spectrum", &PLSPred::GetResid_Spectrum},
                                                 {"source", &PLSPred::GetSource},
                                                 {"conc_limits", &PLSPred::GetConc_Limits},
                                                 {"score_limits", &PLSPred::GetScore_Limits},
                                                 {"resid_limits", &PLSPred::GetResid_Limits},
                                                 {"dist_limits", &PLSPred::GetDist_Limits},
                                                 {"fratio", &PLSPred::GetFratioRaw},
                                                 {"proc_spectrum", &PLSPred::GetProc_Spectrum}};
const std::map<std::string, ArrayGetter> kCounted{{"calfac", &PLSPred::GetCalfac},
                                                  {"flags", &PLSPred::GetFlags},
                                                  {"prep", &PLSPred::GetPrep},
                                                  {"bsln", &PLSPred::GetBsln},
                                                  {"thick", &PLSPred::GetThick}};
const std::map<std::string, NumberGetter> kNumbersOfPrediction{
    {"ffp", &PLSPred::GetFfp}, {"flp", &PLSPred::GetFlp}, {"npts", &PLSPred::GetNpts}};
const std::map<std::string, IntegerGetter> kIntegersOfPrediction{{"xtype", &PLSPred::GetXtype},
                                                                 {"ytype", &PLSPred::GetYtype}};

TEST_F(PLSPredTest, AnArrayNeedsAPredictionAndCountsAsDeliveredWhenItHasASize) {
  Read();
  for (const auto& [item, get] : kArrays) {
    Array values{9};
    std::int32_t size = 9;
    EXPECT_EQ((pls_.get()->*get)(values, size), -2) << item << " after reading alone";
    EXPECT_EQ(size, 0) << item;
  }
  EXPECT_THAT(library_.calls, ::testing::IsEmpty());
  Predict();
  for (const auto& [item, get] : kArrays) {
    Array values{9};
    std::int32_t size = 9;
    EXPECT_EQ((pls_.get()->*get)(values, size), -3) << item;
    EXPECT_EQ(size, 0) << item;
    EXPECT_THAT(values, ElementsAre(9)) << item;
    library_.items[item] = {1.5, -2, 3};
    library_.Calls();
    EXPECT_EQ((pls_.get()->*get)(values, size), 0) << item;
    EXPECT_EQ(size, 3) << item;
    EXPECT_THAT(values, ElementsAre(1.5, -2, 3)) << item;
    EXPECT_THAT(library_.calls, ElementsAre("GetItemSize(5," + item + ")", "CopyItem(5," + item + ",3)"));
    library_.copied[item] = 11;
    EXPECT_EQ((pls_.get()->*get)(values, size), 0) << item << ": the code of the copy is not passed on";
    EXPECT_EQ(size, 3) << item;
  }
}

TEST_F(PLSPredTest, ACountedArrayHasTheSizeThatTheCopyTells) {
  for (const bool by_reading : {false, true}) {
    pls_ = std::make_unique<PLSPred>(library_, desktop_);
    for (const auto& [item, get] : kCounted) {
      Array values;
      std::int32_t size = 9;
      EXPECT_EQ((pls_.get()->*get)(values, size), -2) << item;
      EXPECT_EQ(size, 0) << item;
    }
    by_reading ? Read() : Predict();
    for (const auto& [item, get] : kCounted) {
      Array values;
      std::int32_t size = 9;
      library_.items[item].clear();
      EXPECT_EQ((pls_.get()->*get)(values, size), -3) << item;
      EXPECT_EQ(size, 0) << item;
      library_.items[item] = {4, 5, 6};
      library_.copied[item] = 2;
      EXPECT_EQ((pls_.get()->*get)(values, size), 0) << item;
      EXPECT_EQ(size, 2) << item;
      EXPECT_THAT(values, ElementsAre(4, 5, 6)) << item;
    }
  }
}

TEST_F(PLSPredTest, ABandHasFiveValues) {
  Array values{9};
  std::int32_t size = 9;
  EXPECT_EQ(pls_->GetBands(values, size), -2);
  Read();
  EXPECT_EQ(pls_->GetBands(values, size), -3);
  EXPECT_EQ(size, 0);
  library_.items["bands"] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  library_.sizes["bands"] = 2;
  library_.copied["bands"] = 1;
  EXPECT_EQ(pls_->GetBands(values, size), 0);
  EXPECT_THAT(values, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
  EXPECT_EQ(size, 5) << "five times what the copy told";
  EXPECT_EQ(library_.calls.back(), "CopyItem(5,bands,10)");
  library_.copied["bands"] = 500000000;
  EXPECT_EQ(ErrorOf([&] { pls_->GetBands(values, size); }), 6);
  library_.sizes["bands"] = 500000000;
  EXPECT_EQ(ErrorOf([&] { pls_->GetBands(values, size); }), 6);
}

TEST_F(PLSPredTest, ANumberIsTheFirstElementOfItsItem) {
  double number = 9;
  std::int16_t integer = 9;
  Read();
  EXPECT_EQ(pls_->GetFsets(number), -3);
  library_.items["fsets"] = {4, 7};
  EXPECT_EQ(pls_->GetFsets(number), 0);
  EXPECT_EQ(number, 4);
  for (const auto& [item, get] : kNumbersOfPrediction) EXPECT_EQ((pls_.get()->*get)(number), -2) << item;
  for (const auto& [item, get] : kIntegersOfPrediction) EXPECT_EQ((pls_.get()->*get)(integer), -2) << item;
  EXPECT_EQ(number, 4);
  EXPECT_EQ(integer, 9);

  Predict();
  for (const auto& [item, get] : kNumbersOfPrediction) {
    EXPECT_EQ((pls_.get()->*get)(number), -3) << item;
    library_.items[item] = {650.5, 1};
    library_.copied[item] = 11;
    EXPECT_EQ((pls_.get()->*get)(number), 0) << item << " whatever the copy told";
    EXPECT_EQ(number, 650.5) << item;
    EXPECT_EQ(library_.calls.back(), "CopyItem(5," + item + ",2)");
  }
  for (const auto& [item, get] : kIntegersOfPrediction) {
    EXPECT_EQ((pls_.get()->*get)(integer), -3) << item;
    for (const auto& [value, rounded] : std::map<double, int>{{2.5, 2}, {3.5, 4}, {-1.5, -2}, {128, 128}}) {
      library_.items[item] = {value};
      EXPECT_EQ((pls_.get()->*get)(integer), 0) << item;
      EXPECT_EQ(integer, rounded) << item;
    }
    for (const double value : {32768.0, -40000.0, std::nan("")}) {
      library_.items[item] = {value};
      EXPECT_EQ(ErrorOf([&] { (pls_.get()->*get)(integer); }), 6) << item << " " << value;
    }
  }
}

TEST_F(PLSPredTest, AMemoKeepsItsZerosAndFailsWhenTheCopyFails) {
  std::string memo = "old";
  EXPECT_EQ(pls_->GetMemo(memo), -2);
  EXPECT_EQ(memo, "");
  Read();
  memo = "old";
  EXPECT_EQ(pls_->GetMemo(memo), -3);
  EXPECT_EQ(memo, "");
  library_.items["memo"] = {'5', ' ', 0xB5, 'g', 0, '!', 0};
  EXPECT_EQ(pls_->GetMemo(memo), 0);
  EXPECT_EQ(memo, std::string("5 \xC2\xB5g\0!\0", 8));
  library_.copied["memo"] = 11;
  EXPECT_EQ(pls_->GetMemo(memo), 11);
  EXPECT_EQ(memo, "");
  library_.copied["memo"] = 0;
  for (const auto& [code, error] : std::map<double, int>{{256, 5}, {-1, 5}, {1e300, 6}}) {
    library_.items["memo"] = {code};
    EXPECT_EQ(ErrorOf([&] { pls_->GetMemo(memo); }), error) << code;
  }
}

TEST_F(PLSPredTest, NamesArePartedByTabsAndLoseTheirZeros) {
  std::string names = "old";
  EXPECT_EQ(pls_->GetConstituent_Names(names), -2);
  EXPECT_EQ(names, "");
  library_.items["ncomp"] = {3};
  Predict();
  EXPECT_EQ(pls_->GetConstituent_Names(names), -3);
  const std::string longest(32, 'w');
  library_.items["constituent_names"] =
      NameBlocks({"S\xE4ure", std::string("a\0b", 3), longest, "not asked for"});
  EXPECT_EQ(pls_->GetConstituent_Names(names), 0);
  EXPECT_EQ(names, "S\xC3\xA4ure\tab\t" + longest);

  library_.copied["constituent_names"] = 3;
  EXPECT_EQ(pls_->GetConstituent_Names(names), 3);
  EXPECT_EQ(names, "");
  library_.copied["constituent_names"] = 0;
  library_.items["constituent_names"].resize(95);
  EXPECT_EQ(ErrorOf([&] { pls_->GetConstituent_Names(names); }), 9) << "the last name is not whole";
}

TEST_F(PLSPredTest, TheNumberOfNamesIsThatOfTheLastPredictionOrReading) {
  library_.items["constituent_names"] = NameBlocks({"a", "b", "c"});
  library_.items["ncomp"] = {3};
  Predict();
  library_.items["ncomp"] = {1};
  std::string names;
  ASSERT_EQ(pls_->GetConstituent_Names(names), 0);
  EXPECT_EQ(names, "a\tb\tc");
  ASSERT_EQ(pls_->ReadCalFile(2), 0);
  ASSERT_EQ(pls_->GetConstituent_Names(names), 0);
  EXPECT_EQ(names, "a");
  library_.items["ncomp"].clear();
  ASSERT_EQ(pls_->PlsIqPredic(1), 0) << "the prediction holds even without a number of components";
  ASSERT_EQ(pls_->GetConstituent_Names(names), 0);
  EXPECT_EQ(names, "");
}

TEST_F(PLSPredTest, SizesThatCannotBeAreErrorsAndNotACrash) {
  library_.items["residual"] = library_.items["calfac"] = library_.items["npts"] = {1};
  library_.items["memo"] = {65};
  Predict();
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  Array values;
  std::int32_t size = 0;
  double number = 0;
  std::string text;
  for (const auto& [told, error] :
       std::map<std::int32_t, int>{{-1, 9}, {kLeast, 9}, {kMost, 7}, {1 << 25, 7}}) {
    for (const char* item : {"residual", "calfac", "npts", "memo"}) library_.sizes[item] = told;
    EXPECT_EQ(ErrorOf([&] { pls_->GetResidual(values, size); }), error) << told;
    EXPECT_EQ(ErrorOf([&] { pls_->GetCalfac(values, size); }), error) << told;
    EXPECT_EQ(ErrorOf([&] { pls_->GetNpts(number); }), error) << told;
    EXPECT_EQ(ErrorOf([&] { pls_->GetMemo(text); }), error) << told;
  }
  library_.sizes["bands"] = -1;
  EXPECT_EQ(ErrorOf([&] { pls_->GetBands(values, size); }), 9);
  library_.sizes["bands"] = 1 << 24;
  EXPECT_EQ(ErrorOf([&] { pls_->GetBands(values, size); }), 7);
}

}  // namespace
}  // namespace veritane::pls
