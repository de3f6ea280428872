#include "validator/RangeVerdict.h"

#include <ostream>
#include <string>

#include "support/CheckItem.h"
#include "support/LogText.h"
#include "support/ResetState.h"

namespace {

// A low part of 2, 0, 1, 15 is before, at, after, without minimum; a high part of 0x20, 0, 0x10,
// 0xF0 is before, at, after, without maximum.
struct VerdictCase
{
    const char* szName;
    long lCode;
    const char* szFacts;  ///< P placed, N no bound, < before min, [ at min, > after max, ] at max
    const char* szLogged;
};

void PrintTo(const VerdictCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class RangeVerdictTest : public ResetState, public testing::WithParamInterface<VerdictCase>
{};

TEST_P(RangeVerdictTest, TakesTheCodeApart)
{
    const RangeVerdict verdict(GetParam().lCode);
    std::string strFacts;
    for (const auto& [bHolds, cFact] :
         {std::pair(verdict.IsPlaced(), 'P'), std::pair(verdict.HasNoBound(), 'N'),
          std::pair(verdict.IsBeforeMin(), '<'), std::pair(verdict.IsAtMin(), '['),
          std::pair(verdict.IsAfterMax(), '>'), std::pair(verdict.IsAtMax(), ']')}) {
        if (bHolds)
            strFacts += cFact;
    }
    EXPECT_EQ(strFacts, GetParam().szFacts);
    EXPECT_EQ(verdict.Code(), GetParam().lCode);
}

TEST_P(RangeVerdictTest, LogsWhatKeepsTheValueOut)
{
    const std::string strLog =
        MessagesOf([] { RangeVerdict(GetParam().lCode).LogFailure("RangeVerdictTest"); });
    const std::string strLogged = GetParam().szLogged;
    EXPECT_EQ(strLog, strLogged.empty() ? "" : strLogged + "\n");
}

constexpr const char* OUT_OF_RANGE = "szValueの値が範囲外です。";

constexpr VerdictCase VERDICTS[] = {
    {"AtBoth", 0x00, "P[]", ""},
    {"AfterMinAtMax", 0x01, "P]", ""},
    {"BeforeMinAtMax", 0x02, "P<]", OUT_OF_RANGE},
    {"NoMinAtMax", 0x0F, "P]", ""},
    {"AtMinAfterMax", 0x10, "P[>", OUT_OF_RANGE},
    {"AfterMinAfterMax", 0x11, "P>", OUT_OF_RANGE},
    {"BeforeMinAfterMax", 0x12, "P<>", OUT_OF_RANGE},
    {"NoMinAfterMax", 0x1F, "P>", OUT_OF_RANGE},
    {"AtMinBeforeMax", 0x20, "P[", ""},
    {"AfterMinBeforeMax", 0x21, "P", ""},
    {"BeforeMinBeforeMax", 0x22, "P<", OUT_OF_RANGE},
    {"NoMinBeforeMax", 0x2F, "P", ""},
    {"AtMinNoMax", 0xF0, "P[", ""},
    {"AfterMinNoMax", 0xF1, "P", ""},
    {"BeforeMinNoMax", 0xF2, "P<", OUT_OF_RANGE},
    {"OutOfRange", -1, "", OUT_OF_RANGE},
    {"ValueNotReal", -2, "", "szValueが実在しない日です。"},
    {"MinNotReal", -3, "", "szMinが実在しない日です。"},
    {"MaxNotReal", -4, "", "szMaxが実在しない日です。"},
    {"NoBoundAtAll", -5, "N", "チェック範囲が指定されていません。"},
};

INSTANTIATE_TEST_SUITE_P(Codes, RangeVerdictTest, testing::ValuesIn(VERDICTS), CaseName());

}  // namespace
