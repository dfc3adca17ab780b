// PLSPred's calibration and its flags: what is asked of the library when, and which codes come back.
#include "tests/pls/pls_pred_fixture.h"

namespace veritane::pls {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using tests::ErrorOf;

TEST_F(PLSPredTest, EveryCodeHasItsText) {
  const std::map<int, std::string> texts{
      {-5, "No spectral file loaded"},
      {-4, "The number of items found is not the same as copied"},
      {-3, "No value available for this function"},
      {-2, "No prediction structure present"},
      {-1, "No Calibration file Loaded"},
      {0, "No Error"},
      {1, "Memory allocation Error"},
      {2, "Calibration file open error"},
      {3, "Calibration file read error"},
      {4, "Source data open error"},
      {5, "Source data read error"},
      {6, "Source data does not match data information stored in the calibration file"},
      {7, "Preprocessing error"},
      {8, "Can not find requested calibration"},
      {9, "Not enough calibration information"},
      {10, "Mathematics calculation error"},
      {11, "Item copy error"}};
  for (const int code : {-32768, -7, -6, 12, 13, 32767}) {
    std::string text;
    EXPECT_EQ(PLSPred::GetErrorString(static_cast<std::int16_t>(code), text), 0);
    EXPECT_EQ(text, "Not a valid error number") << code;
  }
  for (const auto& [code, expected] : texts) {
    std::string text;
    EXPECT_EQ(PLSPred::GetErrorString(static_cast<std::int16_t>(code), text), 0);
    EXPECT_EQ(text, expected) << code;
  }
}

TEST_F(PLSPredTest, WithoutACalibrationTheLibraryIsNotAsked) {
  std::string memo = "as it was";
  std::int16_t total = 7;
  EXPECT_EQ(pls_->GetCalMemo(memo, 1), -1);
  EXPECT_EQ(memo, "as it was");
  EXPECT_EQ(pls_->GetCalTotal(total), -1);
  EXPECT_EQ(total, 7);
  EXPECT_EQ(pls_->LoadSpcDiskFile("C:\\a.spc"), -1);
  EXPECT_EQ(pls_->LoadAsciiDiskFile("C:\\a.txt"), -1);
  EXPECT_EQ(pls_->LoadClipboardText(), -1);
  EXPECT_EQ(pls_->LoadMemDouble("C:\\a.flt"), -1);
  EXPECT_EQ(pls_->PlsIqPredic(1), -1);
  EXPECT_EQ(pls_->ReadCalFile(1), -1);
  EXPECT_EQ(pls_->UnLoadCalFile(), 0);
  EXPECT_THAT(library_.calls, IsEmpty());
}

TEST_F(PLSPredTest, ACalibrationThatDoesNotLoadIsTold) {
  library_.codes["LoadCalFile"] = 0;
  EXPECT_EQ(pls_->LoadCalFile("C:\\gas.cal"), 0);
  ASSERT_EQ(screen_.messages.size(), 1U);
  EXPECT_EQ(screen_.messages[0].text, "Calibration file did not load. It cannot be read only.");
  EXPECT_EQ(screen_.messages[0].title, "Calibration File Error");
  EXPECT_EQ(screen_.messages[0].icon, platform::MessageIcon::kCritical);
  EXPECT_EQ(screen_.messages[0].buttons, platform::MessageButtons::kOk);
  EXPECT_EQ(pls_->LoadSpcDiskFile("C:\\a.spc"), -1) << "no calibration is loaded now";

  library_.codes["LoadCalFile"] = -9;
  EXPECT_EQ(pls_->LoadCalFile("C:\\gas.cal"), -9) << "any handle but 0 is one";
  EXPECT_EQ(screen_.messages.size(), 1U);
}

TEST_F(PLSPredTest, AnotherCalibrationUnloadsTheFirstAndClearsOnlyThatItWasRead) {
  Predict();
  ASSERT_EQ(pls_->ReadCalFile(1), 0);
  library_.Calls();
  library_.codes["UnLoadCalFile"] = 3;
  library_.codes["LoadCalFile"] = 6;
  EXPECT_EQ(pls_->LoadCalFile("C:\\other.cal"), 6);
  EXPECT_THAT(library_.Calls(), ElementsAre("UnLoadCalFile(5)", "LoadCalFile(C:\\other.cal)"));
  EXPECT_EQ(Predicted(), 0) << "the earlier prediction is still there";
  EXPECT_EQ(pls_->PlsIqPredic(1), 0) << "and so is the spectrum";

  PLSPred only_read(library_, desktop_);
  only_read.LoadCalFile("C:\\gas.cal");
  ASSERT_EQ(only_read.ReadCalFile(1), 0);
  only_read.LoadCalFile("C:\\gas.cal");
  std::int16_t components = 0;
  EXPECT_EQ(only_read.GetNcomp(components), -2) << "what was read is forgotten";
}

TEST_F(PLSPredTest, WhenLoadingRaisesTheFirstCalibrationIsGoneAllTheSame) {
  Load();
  library_.broken = "LoadCalFile";
  EXPECT_EQ(ErrorOf([this] { pls_->LoadCalFile("C:\\other.cal"); }), 5);
  library_.Calls();
  std::int16_t total = 0;
  EXPECT_EQ(pls_->GetCalTotal(total), -1);
  EXPECT_EQ(pls_->UnLoadCalFile(), 0);
  EXPECT_THAT(library_.calls, IsEmpty()) << "the old handle is not used again";
}

TEST_F(PLSPredTest, UnloadingClearsEverythingAndPassesTheCodeOn) {
  Predict();
  ASSERT_EQ(pls_->ReadCalFile(1), 0);
  library_.codes["UnLoadCalFile"] = 4;
  EXPECT_EQ(pls_->UnLoadCalFile(), 4);
  EXPECT_EQ(pls_->UnLoadCalFile(), 0) << "nothing is loaded any more, whatever the library said";
  EXPECT_EQ(Predicted(), -2);
  std::int16_t components = 0;
  EXPECT_EQ(pls_->GetNcomp(components), -2);
  Load();
  EXPECT_EQ(pls_->PlsIqPredic(1), -5) << "the spectrum went too";
}

TEST_F(PLSPredTest, TheEndUnloadsTheCalibrationWhateverTheLibraryDoes) {
  Load();
  library_.Calls();
  pls_.reset();
  EXPECT_THAT(library_.Calls(), ElementsAre("UnLoadCalFile(5)"));

  pls_ = std::make_unique<PLSPred>(library_, desktop_);
  Load();
  library_.Calls();
  library_.broken = "UnLoadCalFile";
  pls_.reset();
  EXPECT_THAT(library_.Calls(), ElementsAre("UnLoadCalFile(5)"));

  pls_ = std::make_unique<PLSPred>(library_, desktop_);
  pls_.reset();
  EXPECT_THAT(library_.Calls(), IsEmpty()) << "nothing was loaded";
}

TEST_F(PLSPredTest, AMemoIsFilledOrCutTo256Characters) {
  Load();
  library_.memos = {"Gasoline", std::string(300, 'x'), "S\xE4ure", "S\xC3\xA4ure"};
  std::string memo;
  EXPECT_EQ(pls_->GetCalMemo(memo, 1), 0);
  EXPECT_EQ(memo, "Gasoline" + std::string(248, ' '));
  EXPECT_EQ(pls_->GetCalMemo(memo, 2), 0);
  EXPECT_EQ(memo, std::string(256, 'x'));
  for (const std::int16_t number : {std::int16_t{3}, std::int16_t{4}}) {
    EXPECT_EQ(pls_->GetCalMemo(memo, number), 0);
    EXPECT_EQ(memo, "S\xC3\xA4ure" + std::string(251, ' ')) << "the library's text is Windows-1252 or UTF-8";
  }
  library_.codes["GetCalMemo"] = 8;
  EXPECT_EQ(pls_->GetCalMemo(memo, 1), 8);
  EXPECT_EQ(memo, "Gasoline" + std::string(248, ' ')) << "the buffer is handed on with the code";
}

TEST_F(PLSPredTest, ALoadedSpectrumOfAnyKindCanBePredicted) {
  const std::map<std::string, std::function<std::int32_t(PLSPred&)>> loads{
      {"LoadSpcDiskFile", [](PLSPred& pls) { return pls.LoadSpcDiskFile("C:\\a.spc"); }},
      {"LoadAsciiDiskFile", [](PLSPred& pls) { return pls.LoadAsciiDiskFile("C:\\a.txt"); }},
      {"LoadClipboardText", [](PLSPred& pls) { return pls.LoadClipboardText(); }},
      {"LoadMemDouble", [](PLSPred& pls) { return pls.LoadMemDouble("C:\\a.flt"); }}};
  for (const auto& [function, load] : loads) {
    PLSPred pls(library_, desktop_);
    pls.LoadCalFile("C:\\gas.cal");
    library_.codes[function] = 4;
    EXPECT_EQ(load(pls), 4) << function;
    EXPECT_EQ(pls.PlsIqPredic(1), -5) << function << " failed, so there is no spectrum";
    library_.codes[function] = 0;
    EXPECT_EQ(load(pls), 0) << function;
    EXPECT_EQ(pls.PlsIqPredic(1), 0) << function;
    library_.codes[function] = 5;
    EXPECT_EQ(load(pls), 5) << function;
    EXPECT_EQ(pls.PlsIqPredic(1), 0) << "the spectrum of before is still there after a failing " << function;
  }
  Load();
  library_.Calls();
  pls_->LoadAsciiDiskFile("C:\\a.txt");
  pls_->LoadMemDouble("C:\\a.flt");
  EXPECT_THAT(library_.calls, ElementsAre("LoadAsciiDiskFile(5,C:\\a.txt)", "LoadMemDouble(5,C:\\a.flt)"));
}

TEST_F(PLSPredTest, AnyFailureToPredictEndsTheEarlierPrediction) {
  Predict();
  EXPECT_EQ(pls_->LoadSpcDiskFile("C:\\b.spc"), 0);
  EXPECT_EQ(Predicted(), 0) << "a new spectrum alone leaves the prediction readable";
  library_.codes["PlsIqPredic"] = 6;
  EXPECT_EQ(pls_->PlsIqPredic(70000), 6);
  EXPECT_EQ(library_.calls.back(), "PlsIqPredic(5,70000)");
  EXPECT_EQ(Predicted(), -2);

  library_.codes["PlsIqPredic"] = 0;
  ASSERT_EQ(pls_->PlsIqPredic(1), 0);
  library_.codes["LoadCalFile"] = 0;
  pls_->LoadCalFile("C:\\other.cal");
  library_.Calls();
  ASSERT_EQ(Predicted(), 0);
  EXPECT_THAT(library_.Calls(), ElementsAre("GetItemSize(0,ffp)", "CopyItem(0,ffp,1)"))
      << "after a failed second load the prediction is still asked for, without a handle";
  EXPECT_EQ(pls_->PlsIqPredic(1), -1);
  EXPECT_EQ(Predicted(), -2) << "without a calibration the prediction ends as well";
}

TEST_F(PLSPredTest, ReadingACalibrationMakesItsItemsAvailableUntilAReadFails) {
  Read();
  std::int16_t components = 0;
  EXPECT_EQ(pls_->GetNcomp(components), 0);
  EXPECT_EQ(Predicted(), -2) << "reading is no prediction";
  library_.codes["ReadCalFile"] = 8;
  EXPECT_EQ(pls_->ReadCalFile(100000), 8);
  EXPECT_EQ(library_.calls.back(), "ReadCalFile(5,100000)");
  EXPECT_EQ(pls_->GetNcomp(components), -2);
}

TEST_F(PLSPredTest, TheNumberOfCalibrationsIsACountAndNoCode) {
  Load();
  std::int16_t total = 0;
  library_.codes["GetCalTotal"] = 3;
  EXPECT_EQ(pls_->GetCalTotal(total), 0);
  EXPECT_EQ(total, 3);
  library_.codes["GetCalTotal"] = 32768;
  EXPECT_EQ(ErrorOf([&] { pls_->GetCalTotal(total); }), 6);
}

}  // namespace
}  // namespace veritane::pls
