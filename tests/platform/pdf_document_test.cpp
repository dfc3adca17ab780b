// PDF documents as other programs read them.
#include "platform/pdf/pdf_document.h"

#include "platform/part_of_surface.h"
#include "tests/support/errors.h"
#include "tests/support/pdf_text.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>

namespace veritane::platform {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using tests::AboutPdf;
using tests::ErrorOf;

class PdfDocuments : public ::testing::Test {
protected:
  std::filesystem::path Write(const std::string& bytes) const {
    const std::filesystem::path path = folder.Path() / "page.pdf";
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

  tests::TemporaryFolder folder;
  PdfDescription description{.title = "Lot 7 – ätzend", .created = {2026, 11, 21, 10, 59, 7}};
};

TEST_F(PdfDocuments, PagesKeepTheirSizeTextAndOrder) {
  PdfDocument document(Landscape({}), description);
  document.Page().Text("first page", {50, 50}, 10, TextWeight::kBold, {});
  document.NextPage();
  document.Page().TextUpwards("second page", {50, 400}, 10, {});
  const auto path = Write(document.Finish());
  EXPECT_THAT(AboutPdf("pdfinfo", path), AllOf(HasSubstr("Pages:           2"), HasSubstr("841.89 x 595.276"),
                                               HasSubstr("Lot 7 – ätzend"), HasSubstr("2026")));
  const std::string text = tests::TextOfPdf(path);
  EXPECT_LT(text.find("first page"), text.find("second page"));
  EXPECT_NE(text.find("second page"), std::string::npos);
  EXPECT_EQ(ErrorOf([&] { document.Finish(); }), 5);
  EXPECT_EQ(ErrorOf([&] { document.NextPage(); }), 5);
}

// 72 points are one inch: pdftotext finds the word where it was put.
TEST_F(PdfDocuments, TextStandsWhereItWasPutAndIsAsWideAsMeasured) {
  PdfDocument document({}, description);
  PartOfSurface part(document.Page(), {100, 200}, 300, 300, 10);
  part.Text("Standard", {11, 22}, 20, TextWeight::kNormal, {});
  const TextSize size = part.Measure("Standard", 20, TextWeight::kNormal);
  const std::string box = AboutPdf("pdftotext -bbox", Write(document.Finish()), "-");
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  const char* const word = std::strstr(box.c_str(), "<word");
  ASSERT_NE(word, nullptr);
  ASSERT_EQ(std::sscanf(word, "<word xMin=\"%lf\" yMin=\"%lf\" xMax=\"%lf\" yMax=\"%lf\"", &left, &top,
                        &right, &bottom),
            4);
  EXPECT_NEAR(left, 111, 0.5);
  EXPECT_NEAR(right - left, size.width, 0.5);
  EXPECT_NEAR(top, 222, 2);
}

TEST_F(PdfDocuments, WhatCannotBeDrawnIsLeftOutAndThePageStands) {
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  constexpr double kEndless = std::numeric_limits<double>::infinity();
  PdfDocument document({}, description);
  DrawingContext& page = document.Page();
  page.Text("nowhere", {kNoNumber, 10}, 10, TextWeight::kNormal, {});
  page.Line({0, 0}, {kEndless, 10}, 1, {});
  page.Line({-1e300, 0}, {1e300, 10}, 1, {});
  page.FillRectangle({0, 0}, kEndless, 1, {});
  page.BeginClip({0, 0}, kNoNumber, 10);
  page.EndClip();
  page.Text("bytes \xff, control \x01, none \xef\xbf\xbf", {50, 50}, 10, TextWeight::kNormal, {});
  const std::string text = tests::TextOfPdf(Write(document.Finish()));
  EXPECT_THAT(text, AllOf(HasSubstr("control"), HasSubstr("none")));
  EXPECT_EQ(text.find("nowhere"), std::string::npos);
}

TEST_F(PdfDocuments, APageThatIsNoneIsRefused) {
  for (const PdfPageSize size :
       {PdfPageSize{0, 100}, PdfPageSize{100, -1}, PdfPageSize{std::nan(""), 100}, PdfPageSize{100, 1e6}}) {
    EXPECT_EQ(ErrorOf([&] { PdfDocument(size, description); }), 5);
  }
}

}  // namespace
}  // namespace veritane::platform
