// Pages on a device of Windows: drawn on a metafile, as a printer would be.
#include "platform/windows/printing/device_pages.h"

#include "platform/pdf_page.h"
#include "platform/run_time_error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veritane::platform {
namespace {

class TwoPages : public Printout {
public:
  PrintKind Kind() const override { return PrintKind::kChart; }
  std::string Title() const override { return "Two pages"; }
  bool IsLandscape() const override { return false; }
  int LayOut(const DrawingContext& page) override {
    width = page.Width();
    text_width = page.Measure("PASS", 20, TextWeight::kNormal).width;
    return 2;
  }
  void DrawPage(DrawingContext& page, int number) override {
    if (number == failing_page) throw RunTimeError(ErrorNumber::kOverflow, "the page");
    page.Text("PASS", {0, 0}, 20, TextWeight::kNormal, {});
    page.Line({0, 0}, {page.Width(), 0}, 1, {255, 0, 0});
  }

  int failing_page = 0;
  double width = 0;
  double text_width = 0;
};

class DevicePagesTest : public ::testing::Test {
protected:
  DevicePagesTest() : device_(::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr)) {}
  ~DevicePagesTest() override { ::DeleteEnhMetaFile(::CloseEnhMetaFile(device_)); }

  std::vector<std::string> Draw(Printout& printout) {
    std::vector<std::string> calls;
    try {
      DrawPages(
          device_, printout, [&] { calls.emplace_back("begin"); }, [&] { calls.emplace_back("end"); });
    } catch (const RunTimeError& error) {
      calls.push_back("error " + std::to_string(error.Number()));
    }
    return calls;
  }

  HDC device_;
};

TEST_F(DevicePagesTest, EachPageIsBegunDrawnAndEnded) {
  TwoPages printout;
  EXPECT_THAT(Draw(printout), ::testing::ElementsAre("begin", "end", "begin", "end"));
  const double across = ::GetDeviceCaps(device_, HORZRES) * 72.0 / ::GetDeviceCaps(device_, LOGPIXELSX);
  EXPECT_NEAR(printout.width, across - 2 * kPageMargin, 1) << "in points, without the margins";
  // Four capitals of 20 points.
  EXPECT_GT(printout.text_width, 30);
  EXPECT_LT(printout.text_width, 80);
}

TEST_F(DevicePagesTest, APageThatFailsIsNotEnded) {
  TwoPages printout;
  printout.failing_page = 2;
  EXPECT_THAT(Draw(printout), ::testing::ElementsAre("begin", "end", "begin", "error 6"));
}

}  // namespace
}  // namespace veritane::platform
