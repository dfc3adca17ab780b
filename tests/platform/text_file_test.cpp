// Fields and lines of small text files, also damaged ones.
#include "platform/text_file.h"

#include "tests/support/errors.h"

#include <gtest/gtest.h>

namespace veritane::platform {
namespace {

using tests::ErrorOf;

TEST(TextFile, FieldsEndAtCommaOrLineEndAndLoseTheBlanksAroundThem) {
  TextReader reader(" 3 \r\nP1, Tablet A ,Euclidean,\r\n\"a,b\" ,2\nlast");
  EXPECT_EQ(reader.ReadInt16(), 3);
  EXPECT_EQ(reader.ReadField(), "P1");
  EXPECT_EQ(reader.ReadField(), "Tablet A");
  EXPECT_EQ(reader.ReadField(), "Euclidean");
  EXPECT_EQ(reader.ReadField(), "");
  EXPECT_EQ(reader.ReadField(), "a,b");
  EXPECT_EQ(reader.ReadField(), "2");
  EXPECT_EQ(reader.ReadField(), "last");
  EXPECT_EQ(ErrorOf([&] { reader.ReadField(); }), 62);
}

TEST(TextFile, LinesEndInAnyWayAndTheLastNeedsNoEnd) {
  TextReader reader("one\r\ntwo\nthree\rfour, five");
  for (const char* line : {"one", "two", "three", "four, five"}) EXPECT_EQ(reader.ReadLine(), line);
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(ErrorOf([&] { reader.ReadLine(); }), 62);
}

TEST(TextFile, AFieldThatIsNoNumberIsATypeMismatchAndATooLargeOneAnOverflow) {
  for (const char* text : {"", "abc", "1;5", "NaN"}) {
    TextReader reader(std::string(text) + "\r\n");
    EXPECT_EQ(ErrorOf([&] { reader.ReadDouble(); }), 13) << text;
  }
  TextReader large("40000");
  EXPECT_EQ(ErrorOf([&] { large.ReadInt16(); }), 6);
  TextReader half("2.5\r\n3.5");
  EXPECT_EQ(half.ReadInt16(), 2) << "half to even";
  EXPECT_EQ(half.ReadInt16(), 4);
}

TEST(TextFile, LinesInsideAQuotedFieldCountAndAQuoteThatIsNeverClosedIsATypeMismatch) {
  TextReader reader("\"one\r\ntwo\rthree\nfour\",2\r\nx\r\n \"P1,2\r\n3\r\n", "Meth.tbl");
  EXPECT_EQ(reader.ReadField(), "one\r\ntwo\rthree\nfour");
  EXPECT_EQ(reader.ReadInt16(), 2);
  try {
    reader.ReadInt16();
    ADD_FAILURE() << "\"x\" is no number";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.what(), std::string("Type mismatch: Meth.tbl, line 5: \"x\" is not a number"));
  }
  EXPECT_EQ(ErrorOf([&] { reader.ReadField(); }), 13);
}

TEST(TextFile, BytesThatAreNotUtf8AreReadAsWindows1252) {
  EXPECT_EQ(DecodeText("Z\xFCrich \x80"), "Zürich €");
  EXPECT_EQ(DecodeText("Zürich"), "Zürich");
  EXPECT_EQ(DecodeText("\xEF\xBB\xBFtext"), "text") << "a byte-order mark is no text";
  TextReader with_nul(std::string("a\0b\r\nc", 6));
  EXPECT_EQ(with_nul.ReadLine(), std::string("a\0b", 3));
}

}  // namespace
}  // namespace veritane::platform
