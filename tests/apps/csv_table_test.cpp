// Tables in comma-separated text, as other programs write them.
#include "apps/veritane_calibrate/csv_table.h"

#include "apps/command_line.h"

#include <gtest/gtest.h>

namespace veritane::calibrate {
namespace {

std::string NameIn(const std::string& cell) {
  const CsvTable table("names.csv", "sample,octane\n" + cell + ",88\n");
  EXPECT_EQ(table.RowCount(), 1U) << cell;
  EXPECT_EQ(table.Reference("octane", {0})(0), 88) << cell;
  return table.SampleName(0);
}

TEST(CsvTable, ACellInQuotesIsWholeWhateverStandsAroundIt) {
  EXPECT_EQ(NameIn("\"b,c\""), "b,c");
  EXPECT_EQ(NameIn(" \t\"b,c\""), "b,c");
  EXPECT_EQ(NameIn("\"b,c\" \t"), "b,c");
  EXPECT_EQ(NameIn("\" b \""), " b ");
  EXPECT_EQ(NameIn("\"say \"\"b\"\"\" "), "say \"b\"");
  EXPECT_EQ(NameIn("\"two\r\nlines\""), "two\r\nlines");
  EXPECT_EQ(NameIn(" b c "), "b c");
  EXPECT_EQ(NameIn("5\" pipe"), "5\" pipe");
  EXPECT_EQ(NameIn(" "), "");
}

TEST(CsvTable, TextBehindAQuoteAndAnOpenQuoteAreRefusedWithTheirLine) {
  for (const char* cell : {"\"b\"c", "\"b\" c", "\"b", " \"b"}) {
    try {
      NameIn(cell);
      ADD_FAILURE() << "was read: " << cell;
    } catch (const SampleError& error) {
      EXPECT_TRUE(std::string(error.what()).starts_with("names.csv, line 2: ")) << error.what();
    }
  }
}

TEST(CsvTable, EveryCellThatIsWrittenReadsBack) {
  for (const char* name : {"b", "b,c", " b", "b\t", "say \"b\"", "two\nlines", "\"", ""}) {
    EXPECT_EQ(NameIn(CsvCell(name)), name);
  }
}

TEST(CsvTable, TheColumnOfNamesIsFoundInAnyCase) {
  EXPECT_EQ(CsvTable("a.csv", "octane,Sample\n88,b\n").SampleName(0), "b");
  EXPECT_EQ(CsvTable("a.csv", "octane,SAMPLES\n88,b\n").SampleName(0), "1");
}

TEST(CsvTable, RowsAreCountedFromOneAndGivenOnce) {
  EXPECT_EQ(ParseRows("3,1-2", 3), (std::vector<std::size_t>{2, 0, 1}));
  EXPECT_EQ(ParseRows(std::nullopt, 2), (std::vector<std::size_t>{0, 1}));
  for (const char* rows : {"", "0", "4", "2-1", "1,1", "1-2,2", "-1", "+1", "1.5", "1-", "1,", " 1", "x"}) {
    EXPECT_THROW(ParseRows(rows, 3), apps::UsageError) << rows;
  }
}

}  // namespace
}  // namespace veritane::calibrate
