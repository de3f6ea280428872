#include "validator/KZCEkaValidLvystring.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "text/ShiftJis.h"

namespace {

constexpr ItemText LVYSTRING = {"lvystring"};
constexpr ItemText WITH_LINE_FEED = {"lvystring", "allow_LF"};

class ValidLvystringTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemValueCase CASES[] = {
    {"Null", LVYSTRING, nullptr, MSG_NONE},
    {"Empty", LVYSTRING, "", MSG_NONE},
    {"Text", LVYSTRING, "東京都 Abc-1 あア", MSG_NONE},
    {"TabAndCarriageReturn", LVYSTRING, "a\tb\rc", MSG_NONE},
    {"LineFeed", LVYSTRING, "a\nb", HE70006E},
    {"LineFeedWithAllowLf", WITH_LINE_FEED, "a\nb", MSG_NONE},
    {"LineFeedWithTheParameterInAnotherCase", {"lvystring", "allow_lf"}, "a\nb", HE70006E},
    {"LineFeedWithABlankBehindTheParameter", {"lvystring", "allow_LF "}, "a\nb", HE70006E},
    {"LineFeedWithABlankBeforeTheParameter", {"lvystring", " allow_LF"}, "a\nb", HE70006E},
    {"OtherControlWithAllowLf", WITH_LINE_FEED, "a\vb", HE70006E},
    {"HalfWidthKatakana", LVYSTRING, "ｱ", HE70006E},
    {"HalfWidthPunctuation", LVYSTRING, "｡･", MSG_NONE},
    {"FirstHalfWidthKatakana", LVYSTRING, "ｦ", HE70006E},
    {"SurrogatePair", LVYSTRING, "𠀀", HE70006E},
    {"Emoji", LVYSTRING, "a😀", HE70006E},
    {"CircledDigit", LVYSTRING, "①", MSG_NONE},
    {"ParenthesisedCompany", LVYSTRING, "㈱", MSG_NONE},
    {"Star", LVYSTRING, "★", HE70006E},
    {"NumeroSign", LVYSTRING, "№", HE70006E},
    {"BackslashAndTilde", LVYSTRING, "\\~", MSG_NONE},
    {"FullWidthSymbolsOfCodePage932", LVYSTRING, "～∥－＼￠￡￢", MSG_NONE},
};

TEST_P(ValidLvystringTest, JudgesTheCharacters)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

TEST_P(ValidLvystringTest, JudgesTheSameInTheOtherFamilies)
{
    KZCEkaCommon::setExecMode(KZCEkaCommon::EXEC_MODE_OTHER);
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidLvystringTest, testing::ValuesIn(CASES), CaseName());

class ValidLvystringShiftJisTest : public ResetState
{
protected:
    ValidLvystringShiftJisTest() { KZCEkaCommon::SetCsvCheckFlag(true); }
};

TEST_F(ValidLvystringShiftJisTest, ReadsACellAsShiftJisDuringACheck)
{
    const auto pItem = MakeItem(LVYSTRING);
    EXPECT_EQ(OnValue(*pItem, ToShiftJis("東京都①～").c_str()), PASSES);
    EXPECT_EQ(OnValue(*pItem, "\xb1"), Verdict(HE70006E));
    EXPECT_EQ(OnValue(*pItem, ToShiftJis("東☆").c_str()), Verdict(HE70006E));
}

TEST_F(ValidLvystringShiftJisTest, RefusesPrivateUseCharacters)
{
    const auto pItem = MakeItem(LVYSTRING);
    EXPECT_EQ(OnValue(*pItem, "\xf0\x40"), Verdict(HE70006E));
}

struct UnitRange
{
    char16_t cFirst;
    char16_t cLast;
};

constexpr UnitRange ACCEPTED[] = {
    {0x0009, 0x0009}, {0x000d, 0x000d}, {0x0020, 0x007e}, {0x00a0, 0x00ff}, {0x0370, 0x04ff},
    {0x2000, 0x206f}, {0x2150, 0x22ff}, {0x2460, 0x257f}, {0x25a0, 0x25ff}, {0x3000, 0x30ff},
    {0x3200, 0x33ff}, {0x4e00, 0x9fff}, {0xf900, 0xfaff}, {0xff00, 0xff65}, {0xffa0, 0xffef},
};

bool IsAccepted(char16_t cUnit)
{
    return std::any_of(std::begin(ACCEPTED), std::end(ACCEPTED), [cUnit](const UnitRange& range) {
        return cUnit >= range.cFirst && cUnit <= range.cLast;
    });
}

struct SweepCase
{
    const char* szName;
    KZCEkaCommon::EXEC_MODE eMode;
    const char* szParameter;
    bool bLineFeed;
};

void PrintTo(const SweepCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidLvystringSweepTest : public ResetState, public testing::WithParamInterface<SweepCase>
{};

// The base family maps nine characters before the test; none of them changes sides by it.
TEST_P(ValidLvystringSweepTest, AcceptsExactlyItsRangesOfTheWholePlane)
{
    KZCEkaCommon::setExecMode(GetParam().eMode);
    const auto pItem = MakeItem({"lvystring", GetParam().szParameter});
    pItem->SetErrOutput(false);
    std::set<unsigned> setExpected;
    std::set<unsigned> setAccepted;
    for (unsigned nUnit = 1; nUnit <= 0xffff; ++nUnit) {
        if (nUnit >= 0xd800 && nUnit <= 0xdfff)
            continue;  // not a character alone, and has no UTF-8
        const auto cUnit = static_cast<char16_t>(nUnit);
        if (IsAccepted(cUnit) || (cUnit == u'\n' && GetParam().bLineFeed))
            setExpected.insert(nUnit);
        std::string strValue;
        Utf8::AppendUnit(strValue, cUnit);
        if (OnValue(*pItem, strValue.c_str()) == PASSES)
            setAccepted.insert(nUnit);
    }
    EXPECT_EQ(setAccepted, setExpected);
}

constexpr SweepCase SWEEPS[] = {
    {"BaseFamily", KZCEkaCommon::EXEC_MODE_ZEKA, "", false},
    {"BaseFamilyWithLineFeed", KZCEkaCommon::EXEC_MODE_ZEKA, "allow_LF", true},
    {"OtherFamilies", KZCEkaCommon::EXEC_MODE_OTHER, "", false},
};

INSTANTIATE_TEST_SUITE_P(Families, ValidLvystringSweepTest, testing::ValuesIn(SWEEPS), CaseName());

using ValidLvystringFaultTest = ResetState;

TEST_F(ValidLvystringFaultTest, MalformedUtf8Raises)
{
    const auto pItem = MakeItem(LVYSTRING);
    EXPECT_EQ(OnValue(*pItem, "a\xe3\x81"), RAISES);
}

}  // namespace
