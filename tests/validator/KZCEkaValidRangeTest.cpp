#include "validator/KZCEkaValidRange.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

constexpr ItemText Range(const char* szMin, const char* szMax)
{
    return {"range", "", szMin, szMax};
}

class ValidRangeTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr const char* LARGEST = "9223372036854775807";
constexpr const char* SMALLEST = "-9223372036854775808";
constexpr const char* BEYOND_LARGEST = "99999999999999999999";
constexpr const char* BELOW_SMALLEST = "-99999999999999999999";

constexpr ItemValueCase CASES[] = {
    {"AtTheLowerLimit", Range("1", "5"), "1", MSG_NONE},
    {"AtTheUpperLimit", Range("1", "5"), "5", MSG_NONE},
    {"Below", Range("1", "5"), "0", HE70009E},
    {"Above", Range("1", "5"), "6", HE70009E},
    {"Empty", Range("1", "5"), "", HE70009E},
    {"EmptyThoughZeroIsInRange", Range("0", "5"), "", HE70009E},
    {"Null", Range("0", "5"), nullptr, HE70009E},
    {"Letter", Range("0", "5"), "a", HE70009E},
    {"DigitsAndLetter", Range("0", "5"), "3a", HE70009E},
    {"LeadingBlank", Range("0", "5"), " 3", HE70009E},
    {"TrailingBlank", Range("0", "5"), "3 ", HE70009E},
    {"SignAlone", Range("0", "5"), "-", HE70009E},
    {"FullWidthDigitInUtf8", Range("0", "5"), "３", HE70009E},
    {"LeadingZeros", Range("1", "5"), "003", MSG_NONE},
    {"PlusSign", Range("1", "5"), "+3", MSG_NONE},
    {"MinusSign", Range("-5", "5"), "-3", MSG_NONE},
    {"MinusSignBelow", Range("-5", "5"), "-6", HE70009E},
    {"FractionIsCutOff", Range("1", "5"), "5.9", MSG_NONE},
    {"FractionBelowOneIsZero", Range("1", "5"), "0.9", HE70009E},
    {"PointAtTheEnd", Range("1", "5"), "5.", MSG_NONE},
    {"PointAtTheFront", Range("0", "5"), ".5", HE70009E},
    {"TwoPoints", Range("0", "5"), "1.2.3", HE70009E},
    {"LowerLimitLeftOutIsZero", Range("", "5"), "0", MSG_NONE},
    {"LowerLimitLeftOutIsNotInfinite", Range("", "5"), "-1", HE70009E},
    {"UpperLimitLeftOutIsZero", Range("-3", ""), "0", MSG_NONE},
    {"UpperLimitLeftOutIsNotInfinite", Range("-3", ""), "1", HE70009E},
    {"BothLeftOutTakeZeroAlone", Range("", ""), "0", MSG_NONE},
    {"BothLeftOutRefuseOne", Range("", ""), "1", HE70009E},
    {"LimitsWithFractions", Range("1.9", "5.9"), "1", MSG_NONE},
    {"LimitsWithSigns", Range("+1", "+5"), "5", MSG_NONE},
    {"ValueBeyond64BitsIsClamped", Range("0", LARGEST), BEYOND_LARGEST, MSG_NONE},
    {"ValueBeyond64BitsAgainstLess", Range("0", "9223372036854775806"), BEYOND_LARGEST, HE70009E},
    {"ValueBelow64BitsIsClamped", Range(SMALLEST, "0"), BELOW_SMALLEST, MSG_NONE},
    {"LimitsBeyond64BitsAreClamped", Range(BELOW_SMALLEST, BEYOND_LARGEST), LARGEST, MSG_NONE},
    {"ValueBeyond32BitsIsWhole", Range("1", "5"), "4294967299", HE70009E},
    // The value is looked at before the limits, so a bad limit stays unseen.
    {"EmptyValueBeforeABadLimit", Range("x", "5"), "", HE70009E},
    {"BadValueBeforeLimitsInTheWrongOrder", Range("5", "1"), "a", HE70009E},
};

TEST_P(ValidRangeTest, JudgesTheValue)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

TEST_P(ValidRangeTest, JudgesTheSameDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidRangeTest, testing::ValuesIn(CASES), CaseName());

struct FaultCase
{
    const char* szName;
    const char* szMin;
    const char* szMax;
};

void PrintTo(const FaultCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidRangeFaultTest : public ResetState, public testing::WithParamInterface<FaultCase>
{};

constexpr FaultCase FAULTS[] = {
    {"LowerAboveUpper", "5", "1"},           {"OnlyALowerLimitAboveZero", "1", ""},
    {"OnlyAnUpperLimitBelowZero", "", "-1"}, {"LowerIsNoNumber", "x", "5"},
    {"UpperIsNoNumber", "1", "x"},           {"LowerWithLeadingBlank", " 1", "5"},
    {"UpperWithTrailingText", "1", "5x"},    {"BlankLower", " ", "5"},
};

TEST_P(ValidRangeFaultTest, RaisesAndDoesNotRefuse)
{
    const auto pItem = MakeItem(Range(GetParam().szMin, GetParam().szMax));
    EXPECT_EQ(OnValue(*pItem, "3"), RAISES);
}

INSTANTIATE_TEST_SUITE_P(Limits, ValidRangeFaultTest, testing::ValuesIn(FAULTS), CaseName());

}  // namespace
