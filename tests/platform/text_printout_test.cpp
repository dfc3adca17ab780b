// A text on pages, seen by a surface that remembers what was drawn on it.
#include "platform/text_printout.h"

#include <gmock/gmock.h>

#include "platform/utf8.h"

namespace veritane::platform {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Le;

// Every character is half as wide as it is high; a page takes 20 characters and 8 lines with the footer.
class Page : public DrawingContext {
public:
  double Width() const override { return 100; }
  double Height() const override { return 10 * 1.35 * 8; }
  double FontHeight() const override { return 10; }
  TextSize Measure(const std::string& text, double height, TextWeight) const override {
    return {static_cast<double>(CharacterCount(text)) * height / 2, height};
  }
  void Text(const std::string& text, Point at, double height, TextWeight, Colour) override {
    texts.push_back(text);
    bottoms.push_back(at.y + height);
    widths.push_back(Measure(text, height, TextWeight::kNormal).width);
  }
  void TextUpwards(const std::string&, Point, double, Colour) override {}
  void Line(Point, Point, double, Colour) override {}
  void Polyline(std::span<const Point>, double, Colour) override {}
  void FillRectangle(Point, double, double, Colour) override {}
  void BeginClip(Point, double, double) override {}
  void EndClip() override {}

  std::vector<std::string> texts;
  std::vector<double> bottoms;
  std::vector<double> widths;
};

std::vector<std::vector<std::string>> Pages(const std::string& text) {
  TextPrintout printout("T", text);
  const int count = printout.LayOut(Page());
  std::vector<std::vector<std::string>> pages;
  for (int number = 1; number <= count; ++number) {
    Page page;
    printout.DrawPage(page, number);
    EXPECT_THAT(page.bottoms, Each(Le(page.Height())));
    EXPECT_THAT(page.widths, Each(Le(page.Width())));
    pages.push_back(page.texts);
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
