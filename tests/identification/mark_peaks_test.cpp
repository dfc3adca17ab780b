// Peak files as laboratories write them, and damaged ones.
#include "identification/mark_peaks.h"

#include "tests/support/errors.h"

#include <gmock/gmock.h>

namespace veritane::identification {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(PeakFile, IsOneNumberAfterAnotherWhateverSeparatesThem) {
  for (const std::string text :
       {"3026 2849.5\r\n1601.2\r\n", "3026,2849.5,1601.2", "3026;2849.5;1601.2;", "3026\t2849.5\t1601.2\n",
        "3026\r2849.5\r1601.2\r", "\r\n\r\n 3026 , 2849.5 ;\t1601.2 \r\n\r\n",
        "\xEF\xBB\xBF"
        "3026\n2849.5\n1601.2",
        "3.026E3 +2849.50 01601.2"}) {
    EXPECT_THAT(ReadPeakFile(text, "peaks.txt"), ElementsAre(3026, 2849.5, 1601.2)) << text;
  }
  EXPECT_THAT(ReadPeakFile("700 3000 700 .5", "peaks.txt"), ElementsAre(700, 3000, 700, .5))
      << "in its order";
}

// The text of the error that this file ends with.
std::string Complaint(const std::string& bytes, int number) {
  const std::string text = tests::ErrorTextOf([&] { ReadPeakFile(bytes, "C:\\peaks.txt"); }, number);
  EXPECT_NE(text, "") << "accepted: " << bytes;
  return text;
}

TEST(PeakFile, WhatIsNoNumberIsNamedWithItsFileAndLine) {
  EXPECT_THAT(Complaint("Peaks\r\n3026\r\n", 13),
              AllOf(HasSubstr("C:\\peaks.txt, line 1:"), HasSubstr("\"Peaks\"")));
  EXPECT_THAT(Complaint("3026\r\n2849 cm-1\r\n", 13), AllOf(HasSubstr("line 2:"), HasSubstr("\"cm-1\"")));
  EXPECT_THAT(Complaint("3026\n\n2849-2800\n", 13), AllOf(HasSubstr("line 3:"), HasSubstr("\"2849-2800\"")));
  EXPECT_THAT(Complaint("3026\r2849\r16O1\r", 13), HasSubstr("line 3:"));
  for (const char* field : {"nan", "inf", "1e999", "0x10", "\"3026\"", "1.2.3", "-"}) {
    EXPECT_THAT(Complaint("3026 " + std::string(field), 13), HasSubstr(field));
  }
  EXPECT_THAT(Complaint(std::string("3026\0", 5), 13), HasSubstr("line 1:")) << "a NUL is no blank";
}

TEST(PeakFile, WithoutAnyNumberIsAnErrorAndSoIsAFileOfAnotherKind) {
  EXPECT_THAT(Complaint("", 62), HasSubstr("C:\\peaks.txt"));
  EXPECT_THAT(Complaint(" ,;\r\n\t", 62), HasSubstr("no peak position"));
  const std::string picture = std::string("\x89PNG\x01\x02") + std::string(5000, '\xFF');
  EXPECT_LT(Complaint(picture, 13).size(), 300U) << "quoted, but not whole";
}

}  // namespace
}  // namespace veritane::identification
