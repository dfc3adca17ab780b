// Printing by way of PDF: the file's place and name, and the queue before it.
#include "platform/pdf/pdf_printer.h"

#include "platform/run_time_error.h"
#include "platform/system/system_machine.h"
#include "platform/text_printout.h"
#include "tests/support/errors.h"
#include "tests/support/pdf_text.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace veritane::platform {
namespace {

using ::testing::AllOf;
using ::testing::ContainsRegex;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class PretendedQueue : public PrintQueue {
public:
  bool HasPrinter() const override { return has_printer; }
  void Submit(const std::string& pdf, const std::string& title) override {
    if (is_gone) throw RunTimeError(ErrorNumber::kDeviceError, "gone");
    submitted.push_back(title + "|" + pdf.substr(0, 5));
  }

  bool has_printer = true;
  bool is_gone = false;
  std::vector<std::string> submitted;
};

class PdfPrinterTest : public ::testing::Test {
protected:
  PdfPrinterTest() {
    std::filesystem::create_directories(folder_.Path() / "drive_c");
    machine_.clock.Set({.year = 2026, .month = 11, .day = 21, .hour = 10, .minute = 59, .second = 0});
  }

  std::string Print(const std::string& title, const std::string& text, PrintQueue* queue = nullptr) {
    PdfPrinter printer(
        machine_.files, machine_.clock, [] { return "C:\\Prints"; }, queue);
    TextPrintout printout(title, text);
    return printer.Print(printout).value();
  }
  std::filesystem::path Native(const std::string& path) const { return machine_.paths.ToNative(path); }

  tests::TemporaryFolder folder_;
  SystemMachine machine_{folder_.Path(), "C"};
  PretendedQueue queue_;
};

TEST_F(PdfPrinterTest, WithoutAPrinterAFileHoldsEveryPage) {
  std::string text;
  for (int line = 1; line <= 130; ++line) text += "line " + std::to_string(line) + " of µm\r\n";
  queue_.has_printer = false;
  const std::string path = Print("Results", text, &queue_);
  EXPECT_EQ(path, "C:\\Prints\\Results 2026-11-21 10-59-00.pdf");
  EXPECT_THAT(queue_.submitted, IsEmpty());
  EXPECT_THAT(tests::AboutPdf("pdfinfo", Native(path)),
              AllOf(ContainsRegex("Pages: +3"), ContainsRegex("595.*x 841.*A4"), HasSubstr("Results")));
  const std::string printed = tests::TextOfPdf(Native(path));
  for (int line = 1; line <= 130; ++line) {
    EXPECT_THAT(printed, HasSubstr("line " + std::to_string(line) + " of µm\n"));
  }
  EXPECT_THAT(printed, HasSubstr("Results, page 3 of 3"));
}

TEST_F(PdfPrinterTest, APrintNeverReplacesAnother) {
  const std::string first = Print("Results", "one");
  const std::string second = Print("Results", "two");
  EXPECT_EQ(second, "C:\\Prints\\Results 2026-11-21 10-59-00 (2).pdf");
  EXPECT_THAT(tests::TextOfPdf(Native(first)), StartsWith("one"));
  EXPECT_THAT(tests::TextOfPdf(Native(second)), StartsWith("two"));
}

TEST_F(PdfPrinterTest, ATitleOfAnyCharactersNamesAFile) {
  EXPECT_EQ(Print("a/b\\c:d*e?f\"g<h>i|j\nk", ""),
            "C:\\Prints\\a_b_c_d_e_f_g_h_i_j_k 2026-11-21 10-59-00.pdf");
  const std::string path = Print(std::string(300, 'x'), "");
  EXPECT_TRUE(machine_.files.FileExists(path));
}

TEST_F(PdfPrinterTest, APrinterTakesThePdfAndNoFileIsWritten) {
  EXPECT_EQ(Print("Results", "one", &queue_), "");
  EXPECT_THAT(queue_.submitted, ElementsAre("Results|%PDF-"));
  EXPECT_FALSE(machine_.files.FolderExists("C:\\Prints"));
}

TEST_F(PdfPrinterTest, APrinterThatIsGoneIsAnErrorAndNotAFile) {
  queue_.is_gone = true;
  EXPECT_EQ(tests::ErrorOf([&] { Print("Results", "one", &queue_); }), 57);
  EXPECT_FALSE(machine_.files.FolderExists("C:\\Prints"));
}

}  // namespace
}  // namespace veritane::platform
