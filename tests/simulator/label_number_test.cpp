// Numbers in the labels of JCAMP-DX files.
#include "simulator/jcamp_text.h"

#include <gmock/gmock.h>

namespace veritane::simulator {
namespace {

double UnitOfLabel(std::string_view written) {
  const auto number = ReadLabelNumber(written, false);
  return number ? number->unit : -1;
}

TEST(LabelNumbers, TheUnitIsTheWeightOfTheLastDigitWritten) {
  EXPECT_DOUBLE_EQ(UnitOfLabel("4400."), 1);
  EXPECT_DOUBLE_EQ(UnitOfLabel("0.19 CM"), 0.01);
  EXPECT_DOUBLE_EQ(UnitOfLabel("+1.25E+04"), 100);
  EXPECT_DOUBLE_EQ(UnitOfLabel("12e-0003"), 0.001);
  EXPECT_DOUBLE_EQ(UnitOfLabel("0.0E-2147483648"), 0) << "finer than any number";
}

TEST(LabelNumbers, AnExponentBeyondAllNumbersIsRefused) {
  for (const char* written :
       {"0E+400", "0.0E2147483647", "0.0E-2147483649", "0E99999999999999999999", "1E400"}) {
    EXPECT_FALSE(ReadLabelNumber(written, false)) << written;
  }
}

}  // namespace
}  // namespace veritane::simulator
