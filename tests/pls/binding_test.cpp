// The binding to a library on disk: found, incomplete, missing, and failing inside.
#include "platform/system/system_machine.h"
#include "pls/loaded_prediction_library.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace veritane::pls {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using tests::ErrorOf;
using tests::ErrorTextOf;

class Binding : public ::testing::Test {
protected:
  Binding() {
    fs::create_directories(folder_.Path() / "drive_c" / "Data");
    fs::create_directories(Programs());
    files_.files.WriteBytes("C:\\Data\\Gas.cal", "a calibration");
  }

  fs::path Programs() const { return folder_.Path() / "program"; }
  void Install(const char* built) {
    fs::copy_file(built, Programs() / VERITANE_LIBRARY_FILE_NAME, fs::copy_options::overwrite_existing);
  }

  tests::TemporaryFolder folder_;
  platform::SystemMachine files_{folder_.Path(), "C"};
  platform::DynamicLibraryLoader libraries_{files_.paths, Programs()};
  LoadedPredictionLibrary library_{libraries_, [] { return std::nullopt; }};
};

TEST_F(Binding, EachFunctionReachesTheLibraryWithItsArguments) {
  Install(VERITANE_FOREIGN_LIBRARY);
  EXPECT_EQ(library_.LoadCalFile("c:\\data\\GAS.CAL"), 31) << "the path is a native one, whatever its case";
  EXPECT_EQ(library_.LoadCalFile("C:\\Data\\other.cal"), 0);
  EXPECT_EQ(library_.LoadCalFile("Q:\\gas.cal"), 0) << "a drive that is not there is the library's to refuse";
  EXPECT_EQ(library_.LoadCalFile(""), 0);
  EXPECT_EQ(library_.UnLoadCalFile(31), 31);
  EXPECT_EQ(library_.GetCalTotal(31), 32);
  std::string memo = "old";
  EXPECT_EQ(library_.GetCalMemo(31, 2, memo), 0);
  EXPECT_EQ(memo, "31/2");
  EXPECT_EQ(library_.LoadSpcDiskFile(31, "C:\\Data\\Gas.cal"), 0);
  EXPECT_EQ(library_.LoadAsciiDiskFile(31, "C:\\Data\\Gas.cal"), 1);
  EXPECT_EQ(library_.LoadClipboardText(31), 33);
  EXPECT_EQ(library_.LoadMemDouble(31, "C:\\Data\\Gas.cal"), 2);
  EXPECT_EQ(library_.PlsIqPredic(31, 1), 32);
  EXPECT_EQ(library_.GetItemSize(31, "ncomp"), 5);
  std::array<double, 3> values{};
  EXPECT_EQ(library_.CopyItem(31, values, "ffp"), 34);
  EXPECT_THAT(values, ElementsAre('f', 'f', 'p'));
  EXPECT_EQ(library_.ReadCalFile(31, 4), 27);
}

TEST_F(Binding, AMissingLibraryIsNamedAtEachAttemptUntilItIsThere) {
  const auto load = [this] { library_.LoadCalFile("C:\\Data\\Gas.cal"); };
  for (int attempt = 0; attempt < 2; ++attempt) {
    EXPECT_EQ(ErrorOf(load), 53);
    EXPECT_THAT(ErrorTextOf(load), HasSubstr("File not found: " VERITANE_LIBRARY_FILE_NAME));
  }
  Install(VERITANE_FOREIGN_LIBRARY);
  EXPECT_EQ(ErrorOf(load), 0);
}

TEST_F(Binding, ALibraryThatIsNoneOrLacksAFunctionSaysSo) {
  const auto ask = [this] { library_.GetCalTotal(31); };
  files_.files.WriteBytes(files_.paths.ToWindows(Programs() / VERITANE_LIBRARY_FILE_NAME), "no library");
  EXPECT_EQ(ErrorOf(ask), 53);
  EXPECT_THAT(ErrorTextOf(ask), HasSubstr((Programs() / VERITANE_LIBRARY_FILE_NAME).string()));
  fs::remove(Programs() / VERITANE_LIBRARY_FILE_NAME);
  Install(VERITANE_INCOMPLETE_LIBRARY);
  EXPECT_EQ(ErrorOf(ask), 53);
  EXPECT_EQ(ErrorTextOf(ask), "File not found: ReadCalFile in " VERITANE_LIBRARY_FILE_NAME);
}

TEST_F(Binding, WhatTheLibraryThrowsBecomesARunTimeError) {
#if defined(_WIN32) && !defined(_WIN64)
  GTEST_SKIP()
      << "A 32-bit DLL with a runtime of its own ends the program itself when an exception leaves it.";
#endif
  Install(VERITANE_FOREIGN_LIBRARY);
  EXPECT_EQ(ErrorOf([&] { library_.PlsIqPredic(31, 2); }), 5);
  EXPECT_THAT(ErrorTextOf([&] { library_.PlsIqPredic(31, 2); }), HasSubstr("PlsIqPredic"));
  EXPECT_THAT(ErrorTextOf([&] { library_.PlsIqPredic(31, 2); }), HasSubstr("no such detector"));
  EXPECT_EQ(ErrorOf([&] { library_.PlsIqPredic(31, 3); }), 7);
  EXPECT_EQ(ErrorOf([&] { library_.PlsIqPredic(31, 4); }), 5);
  EXPECT_EQ(library_.PlsIqPredic(31, 1), 32) << "the library is still of use";
}

}  // namespace
}  // namespace veritane::pls
