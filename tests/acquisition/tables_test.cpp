// Product table, methods list, null regions, prompts and the Product ID parser, whole and damaged.
#include "acquisition/background.h"
#include "acquisition/method_list.h"
#include "acquisition/null_regions.h"
#include "acquisition/product_key.h"
#include "acquisition/product_table.h"
#include "acquisition/prompts.h"
#include "platform/system/system_machine.h"
#include "platform/text_file.h"
#include "tests/support/errors.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veritane::acquisition {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using tests::ErrorOf;

const std::vector<Product> kProducts{{"P1", "Tablet A", "Euclidean", ""},
                                     {"Säure 5", "Tablet A", "PLS", "C:\\x\\octane.cal"}};

TEST(ProductTable, WhatIsWrittenReadsBack) {
  const std::string text = ProductTableText(kProducts);
  EXPECT_EQ(text, " 2 \r\nP1,Tablet A,Euclidean,\r\nSäure 5,Tablet A,PLS,C:\\x\\octane.cal\r\n");
  EXPECT_EQ(ReadProductTable(text), kProducts);
  EXPECT_THAT(ReadProductTable(" 0 \r\n"), IsEmpty());
  EXPECT_EQ(ReadProductTable(" 1 \nP1,Tablet A,Euclidean,"), std::vector<Product>{kProducts[0]})
      << "a missing last line end costs nothing";
}

TEST(ProductTable, AFieldThatWouldNotReadBackBareStandsInQuotes) {
  const std::vector<Product> products{{" P1 ", "two\r\nlines", "PLS", "C:\\Lab, 2\\octane.cal"},
                                      {"P2\t", "Tablet A", "PLS", ""}};
  EXPECT_EQ(ReadProductTable(ProductTableText(products)), products);
}

TEST(ProductTable, ATableThatEndsTooSoonOrHasNoCountIsAnError) {
  EXPECT_EQ(ErrorOf([] { ReadProductTable(" 3 \r\nP1,A,Euclidean,\r\n"); }), 62);
  EXPECT_EQ(ErrorOf([] { ReadProductTable(""); }), 62);
  EXPECT_EQ(ErrorOf([] { ReadProductTable("P1,A,Euclidean,\r\n"); }), 13);
  EXPECT_EQ(ErrorOf([] { ReadProductTable(" 70000 \r\n"); }), 6);
  EXPECT_EQ(ErrorOf([] { ReadProductTable(" 1 \r\n\"P1\"x,Tablet A,Euclidean,\r\n"); }), 13)
      << "the fields behind it would all shift";
}

TEST(ProductTable, TheFirstRowOfTheKeyIsFoundWithoutRegardToCase) {
  const std::string text =
      ProductTableText({{"a", "1", "Euclidean", ""}, {"SÄURE", "2", "", ""}, {"A", "3", "", ""}});
  EXPECT_EQ(FindProduct(text, "A")->collectMethod, "1");
  EXPECT_EQ(FindProduct(text, "säure")->collectMethod, "2");
  EXPECT_FALSE(FindProduct(text, "b"));
  EXPECT_EQ(FindProduct(" 9 \r\nP1,A,Euclidean,\r\n", "p1")->collectMethod, "A")
      << "rows behind it do not matter";
}

TEST(MethodList, ShortNamesAreTheLeafWithoutItsExtension) {
  EXPECT_EQ(MethodShortName("C:\\x\\Tablet A.clm", "old"), "Tablet A");
  EXPECT_EQ(MethodShortName("Tablet A.clm", "old"), "old") << "without a folder the name before stays";
  EXPECT_EQ(MethodShortName("C:\\a", "old"), "");
}

TEST(CountedLines, AreTheirNumberAndThenALineAnEntryAsItStands) {
  EXPECT_EQ(platform::CountedLines({"C:\\x\\A,B.clm"}), " 1 \r\nC:\\x\\A,B.clm\r\n");
  EXPECT_THAT(platform::ReadCountedLines(" 2 \r\nC:\\x\\A,B.clm\r\nD:\\c.clm", ""),
              ElementsAre("C:\\x\\A,B.clm", "D:\\c.clm"));
  EXPECT_EQ(ErrorOf([] { platform::ReadCountedLines(" 2 \r\nC:\\x\\A.clm\r\n", ""); }), 62);
}

class SmallFilesTest : public ::testing::Test {
protected:
  SmallFilesTest() {
    std::filesystem::create_directories(folder_.Path() / "drive_c" / "Data" / "Standards");
    state_.folders = {
        .appDir = "C:\\Data\\", .stdsDir = "C:\\Data\\Standards", .sampDir = "C:\\Data\\Samples"};
    state_.clmName = "Disc";
  }
  std::vector<double> Regions(const std::string& text) {
    machine_.files.WriteBytes("C:\\Data\\Disc.nul", text);
    LoadNullRegions(machine_.files, state_);
    std::vector<double> bounds;
    for (const state::NullRegion& region : state_.nullRegions) {
      bounds.push_back(region.start);
      bounds.push_back(region.end);
    }
    return bounds;
  }

  tests::TemporaryFolder folder_;
  platform::SystemMachine machine_{folder_.Path(), "C"};
  state::ProgramState state_;
};

TEST_F(SmallFilesTest, NullRegionsLoadAsTyped) {
  LoadNullRegions(machine_.files, state_);
  EXPECT_THAT(state_.nullRegions, IsEmpty()) << "no file, no regions";
  EXPECT_THAT(Regions(" 2 \r\n4000 - 3500\r\n1000 - 2000\r\n"), ElementsAre(4000, 3500, 1000, 2000));
  EXPECT_THAT(Regions(" 0 \r\n"), IsEmpty());
  EXPECT_EQ(ErrorOf([this] { Regions(" 2 \r\n4000 - 3500\r\n"); }), 62);
  EXPECT_EQ(ErrorOf([this] { Regions(" 1 \r\n4000\r\n"); }), 13)
      << "no half region that would blank a spectrum";
}

TEST_F(SmallFilesTest, TheParserCutsByCharactersAndWithoutItsFileTheWholeIdIsTheKey) {
  const auto key = [this](const std::string& id) { return ProductKey(machine_.files, state_.folders, id); };
  EXPECT_EQ(key("LOT999-ASPIRIN-2025"), "LOT999-ASPIRIN-2025");
  machine_.files.WriteBytes("C:\\Data\\Standards\\ProductID.par", " 8 \r\n 7 \r\n");
  EXPECT_EQ(key("LOT999-ASPIRIN-2025"), "ASPIRIN");
  EXPECT_EQ(key("LÖT999-ASPIRIN-2025"), "ASPIRIN");
  EXPECT_EQ(key("LOT999-ASP"), "ASP");
  EXPECT_EQ(key("LOT"), "");
  machine_.files.WriteBytes("C:\\Data\\Standards\\ProductID.par", " 0 \r\n 7 \r\n");
  EXPECT_EQ(ErrorOf([&] { key("LOT999"); }), 5);
}

TEST_F(SmallFilesTest, PromptsComeFromTheMethodsFileOrAreTheGeneralOnes) {
  EXPECT_EQ(LoadPrompts(machine_.files, state_.folders, "Disc").sample,
            " Please prepare sample compartment/ accessory for Sample spectrum.");
  machine_.files.WriteBytes("C:\\Data\\Standards\\Disc.pro", "Empty it, \"now\"\r\n");
  EXPECT_EQ(LoadPrompts(machine_.files, state_.folders, "Disc").background, "Empty it, \"now\"");
  EXPECT_EQ(LoadPrompts(machine_.files, state_.folders, "Disc").sample, "");
}

TEST(BackgroundSchedule, ABackgroundIsDueBeforeEverySampleOrWhenMoreHoursThanTheIntervalHaveBegun) {
  const auto at = [](const char* text) { return *platform::ParseIsoDateTime(text); };
  const auto due = [&](double interval, const char* written, const char* now) {
    return IsBackgroundDue({.byInterval = true, .intervalHours = interval}, at(written), at(now));
  };
  EXPECT_FALSE(due(4, "2026-11-21T10:59", "2026-11-21T11:00"));
  EXPECT_FALSE(due(4, "2026-11-21T10:59", "2026-11-21T14:59"));
  EXPECT_TRUE(due(4, "2026-11-21T10:59", "2026-11-21T15:00")) << "the fifth hour has begun";
  EXPECT_TRUE(due(0, "2026-12-31T23:59", "2027-01-01T00:00"));
  EXPECT_FALSE(due(0, "2026-12-31T23:00", "2026-12-31T23:59"));
  EXPECT_FALSE(due(1, "2026-03-01T00:30", "2026-02-28T23:30")) << "a clock that was put back";
  EXPECT_TRUE(IsBackgroundDue({}, std::nullopt, at("2026-11-21T10:59"))) << "no background yet";
  EXPECT_FALSE(IsBackgroundDue({}, at("2020-01-01T00:00"), at("2026-11-21T10:59"))) << "by hand only";
  EXPECT_TRUE(IsBackgroundDue({.beforeEverySample = true}, at("2026-11-21T10:59"), at("2026-11-21T10:59")));
}

}  // namespace
}  // namespace veritane::acquisition
