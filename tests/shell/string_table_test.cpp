// The program's texts by number.
#include "shell/state/string_table.h"

#include "platform/run_time_error.h"
#include "tests/platform/named_values.h"

#include <gmock/gmock.h>

namespace veritane::state {
namespace {

// Windows take their captions by number.
constexpr int kFirstCaption = 16;
constexpr int kLastCaption = 96;

TEST(StringTable, HasEachNumberOnceAndATextForEveryName) {
  std::set<int> wanted = NamedValues<TextId, 2000>();
  EXPECT_TRUE(wanted.contains(200) && wanted.contains(1000) && wanted.contains(1545));
  for (int caption = kFirstCaption; caption <= kLastCaption; ++caption) wanted.insert(caption);
  ExpectEachNumberOnce(Texts(), wanted);
}

TEST(StringTable, RefusesNumbersWithoutAText) {
  for (const int id : {0, 15, 97, 201, 1007, 2000}) EXPECT_THROW(Text(id), platform::RunTimeError) << id;
}

TEST(StringTable, FillsTheProgramsOwnSentences) {
  EXPECT_EQ(Text(TextId::kSpectrumEntry, {"{2}", "Monday"}), "{2} Collected on Monday");
}

}  // namespace
}  // namespace veritane::state
