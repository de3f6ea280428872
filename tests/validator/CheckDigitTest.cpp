#include "validator/CheckDigit.h"

#include <gtest/gtest.h>

namespace {

TEST(CheckDigitTest, PersonalDigitIsElevenLessTheRest)
{
    EXPECT_EQ(CheckDigit::OfPersonal("12345678901"), 8);  // 212 = 19 * 11 + 3
}

TEST(CheckDigitTest, PersonalDigitOfASmallRestIsZero)
{
    EXPECT_EQ(CheckDigit::OfPersonal("00000000000"), 0);
    EXPECT_EQ(CheckDigit::OfPersonal("20000000000"), 0);  // 12 = 11 + 1
    EXPECT_EQ(CheckDigit::OfPersonal("00000000001"), 9);  // 2
}

TEST(CheckDigitTest, CorporateDigitIsNineLessTheRest)
{
    EXPECT_EQ(CheckDigit::OfCorporate("123456789012"), 7);  // 74 = 8 * 9 + 2
    EXPECT_EQ(CheckDigit::OfCorporate("000000000000"), 9);
}

TEST(CheckDigitTest, ReferenceDigitIsTheLastOfElevenLessTheRest)
{
    EXPECT_EQ(CheckDigit::OfReference("1234567890123"), 1);  // 406 = 36 * 11 + 10
    EXPECT_EQ(CheckDigit::OfReference("0000000000000"), 1);  // 11 less nothing
    EXPECT_EQ(CheckDigit::OfReference("0010000000000"), 0);  // 12 = 11 + 1, 10 is written 0
}

}  // namespace
