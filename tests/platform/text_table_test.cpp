// Filling in places, and the platform's own texts.
#include "platform/text_table.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "tests/platform/named_values.h"

#include <gmock/gmock.h>

namespace veritane::platform {
namespace {

TEST(TextPlaces, TakeTheirValuesInWhateverOrderTheTextWants) {
  EXPECT_EQ(FillPlaces("{1} Collected on {2}", {"Lot 7", "Monday"}), "Lot 7 Collected on Monday");
  EXPECT_EQ(FillPlaces("Am {2} aufgenommen: {1}", {"Lot 7", "Monday"}), "Am Monday aufgenommen: Lot 7");
  EXPECT_EQ(FillPlaces("{1}{1}, {3}{2}", {"a", "b", "c"}), "aa, cb");
  EXPECT_EQ(FillPlaces("{9}{1}", {"1", "2", "3", "4", "5", "6", "7", "8", "9"}), "91");
  EXPECT_EQ(FillPlaces("", {"a"}), "");
}

TEST(TextPlaces, TakeValuesAsTheyAreWhateverBracesTheyHold) {
  EXPECT_EQ(FillPlaces("{1}: {2}", {"{2}", "{1}"}), "{2}: {1}");
  EXPECT_EQ(FillPlaces("{1}1}", {"{"}), "{1}") << "what a value completes is no place";
  EXPECT_EQ(FillPlaces("[{1}]", {""}), "[]");
}

TEST(TextPlaces, WithoutAValueStayAsTheyAre) {
  EXPECT_EQ(FillPlaces("{1} {2} {0} {10} {x} {} {1", {"a"}), "a {2} {0} {10} {x} {} {1");
}

TEST(TextTable, HasNoTextForOtherNumbers) {
  const TextTable table{{3, "three"}, {5, "five"}};
  EXPECT_EQ(table.At(5), "five");
  for (const int id : {2, 4, 6}) {
    EXPECT_EQ(table.Find(id), nullptr) << id;
    EXPECT_THROW(table.At(id), RunTimeError) << id;
  }
}

TEST(ErrorTexts, OfOtherNumbersAreTheGeneralOne) {
  EXPECT_EQ(ErrorText(ErrorNumber::kFileNotFound), "File not found");
  for (const int number : {-2000, 1, 54, 500, 501, 600, 1 << 20}) {
    EXPECT_EQ(ErrorText(static_cast<ErrorNumber>(number)), Text(TextId::kOtherError)) << number;
  }
}

TEST(PlatformTexts, HaveEachNumberOnceAndATextForEveryName) {
  std::set<int> wanted = NamedValues<TextId, 3000>();
  for (const int number : NamedValues<ErrorNumber, 500>()) {
    wanted.insert(static_cast<int>(TextId::kOtherError) + number);
  }
  EXPECT_TRUE(wanted.contains(2000) && wanted.contains(2053) && wanted.contains(2903));
  ExpectEachNumberOnce(Texts(), wanted);
}

}  // namespace
}  // namespace veritane::platform
