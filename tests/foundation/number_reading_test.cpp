#include "foundation/number_reading.h"

#include <gtest/gtest.h>

#include <string>

namespace vellumark {
namespace {

TEST(ReadWholeNumberTest, TakesSignDigitsDecimalsAndBlanksAround) {
  EXPECT_EQ(ReadWholeNumber(" 12 "), 12);
  EXPECT_EQ(ReadWholeNumber("+7."), 7);
  EXPECT_EQ(ReadWholeNumber("-0012"), -12);
  for (const char* text :
       {"", "  ", "a12", "12a", "1 2", "- 1", "+", ".5", "1.2.3", "1,5", "1e3", "12\t"}) {
    EXPECT_EQ(ReadWholeNumber(text), std::nullopt) << text;
  }
}

TEST(ReadWholeNumberTest, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(ReadWholeNumber("12.5"), 12);
  EXPECT_EQ(ReadWholeNumber("13.5"), 14);
  EXPECT_EQ(ReadWholeNumber("-12.50"), -12);
  EXPECT_EQ(ReadWholeNumber("12.500000000000000000000000001"), 13);
  EXPECT_EQ(ReadWholeNumber("-13.499999999999999999999999999"), -13);
}

TEST(ReadNumberTest, HugeNumbersStayOutOfRangeWithTheirSign) {
  const std::string digits(5000, '9');
  EXPECT_EQ(ReadWholeNumber('-' + digits + ".9"), -kFarthestNumber);
  EXPECT_EQ(ReadLeadingNumber(digits + " slots"), kFarthestNumber);
  EXPECT_FALSE(FitsInt16(*ReadWholeNumber("32767.5")));
  EXPECT_TRUE(FitsInt16(*ReadWholeNumber("-32768.5")));
  EXPECT_FALSE(FitsInt16(*ReadWholeNumber("-32769")));
}

TEST(ReadLeadingNumberTest, EndsWhereTheNumberEndsAndIgnoresBlanks) {
  EXPECT_EQ(ReadLeadingNumber("15 slots"), 15);
  EXPECT_EQ(ReadLeadingNumber("  1 0"), 10);
  EXPECT_EQ(ReadLeadingNumber("3.5.7"), 4);
  for (const char* text : {"", "many", "- x", ".9"}) EXPECT_EQ(ReadLeadingNumber(text), 0) << text;
}

}  // namespace
}  // namespace vellumark
