// A text on pages, seen by a surface that remembers what was drawn on it.
#include "platform/text_printout.h"

#include "tests/support/recording_surface.h"

#include <gmock/gmock.h>

namespace veritane::platform {
namespace {

using ::testing::ElementsAre;

// A page takes 20 characters and 8 lines with the footer.
constexpr double kWidth = 100;
constexpr double kHeight = 10 * 1.35 * 8;

std::vector<std::vector<std::string>> Pages(const std::string& text) {
  TextPrintout printout("T", text);
  const int count = printout.LayOut(tests::RecordingSurface(kWidth, kHeight, 10));
  std::vector<std::vector<std::string>> pages;
  for (int number = 1; number <= count; ++number) {
    tests::RecordingSurface page(kWidth, kHeight, 10);
    printout.DrawPage(page, number);
    std::vector<std::string>& texts = pages.emplace_back();
    for (const auto& drawn : page.texts) {
      EXPECT_LE(drawn.at.y + drawn.height, kHeight);
      EXPECT_LE(page.Measure(drawn.text, drawn.height, drawn.weight).width, kWidth);
      texts.push_back(drawn.text);
    }
  }
  return pages;
}

TEST(TextPrintout, LinesEndInAnyStyleAndEmptyOnesStay) {
  EXPECT_THAT(Pages("a\r\nb\n\nc\rd\te\r\n"),
              ElementsAre(ElementsAre("a", "b", "", "c", "d    e", "T, page 1 of 1")));
}

TEST(TextPrintout, AnEmptyTextIsOnePage) {
  EXPECT_THAT(Pages(""), ElementsAre(ElementsAre("T, page 1 of 1")));
  EXPECT_THAT(Pages("\r\n"), ElementsAre(ElementsAre("", "T, page 1 of 1")));
}

TEST(TextPrintout, NoLineIsLostOrDrawnTwiceAtAPageEnd) {
  const std::vector<std::string> first{"1", "2", "3", "4", "5", "6", "T, page 1 of 1"};
  EXPECT_THAT(Pages("1\n2\n3\n4\n5\n6\n"), ElementsAre(first));
  EXPECT_THAT(Pages("1\n2\n3\n4\n5\n6\n7"),
              ElementsAre(ElementsAre("1", "2", "3", "4", "5", "6", "T, page 1 of 2"),
                          ElementsAre("7", "T, page 2 of 2")));
}

TEST(TextPrintout, AWideLineIsWrappedBehindABlankAndKeepsEveryCharacter) {
  EXPECT_THAT(Pages("Moisture = 4.21 % and more"),
              ElementsAre(ElementsAre("Moisture = 4.21 % ", "and more", "T, page 1 of 1")));
  EXPECT_THAT(Pages("ÄÖÜäöüßÄÖÜäöüßÄÖÜäöüß"),
              ElementsAre(ElementsAre("ÄÖÜäöüßÄÖÜäöüßÄÖÜäöü", "ß", "T, page 1 of 1")))
      << "a word without blanks is cut between characters";
  EXPECT_THAT(Pages(std::string(20, 'x')), ElementsAre(ElementsAre(std::string(20, 'x'), "T, page 1 of 1")))
      << "what just fits stays whole";
}

}  // namespace
}  // namespace veritane::platform
