#include "validator/KZCEkaValidCheckDigit.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

struct RuleCase
{
    const char* szName;
    const char* szNumber;
    KZCEkaMessage_t eResult;
};

void PrintTo(const RuleCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

// --- personal number: twelve digits, the last one checks ---

class CheckDijitKojinTest : public ResetState, public testing::WithParamInterface<RuleCase>
{};

constexpr RuleCase KOJIN[] = {
    {"Sum212LeavesThree", "123456789018", MSG_NONE},
    {"Sum212WrongDigit", "123456789019", HE70010E},
    {"SumZero", "000000000000", MSG_NONE},
    {"SumElevenExpectsZero", "110000000000", MSG_NONE},
    {"SumTwelveExpectsZero", "200000000000", MSG_NONE},
    {"SumTwelveIsNotOne", "200000000001", HE70010E},
    {"SumThirteenExpectsNine", "100001000009", MSG_NONE},
    {"SumThirteenIsNotZero", "100001000000", HE70010E},
    {"SumTenExpectsOne", "020000000001", MSG_NONE},
    {"WeightOfPosition1Is6", "100000000005", MSG_NONE},
    {"WeightOfPosition2Is5", "010000000006", MSG_NONE},
    {"WeightOfPosition3Is4", "001000000007", MSG_NONE},
    {"WeightOfPosition4Is3", "000100000008", MSG_NONE},
    {"WeightOfPosition5Is2", "000010000009", MSG_NONE},
    {"WeightOfPosition6Is7", "000001000004", MSG_NONE},
    {"WeightOfPosition7Is6", "000000100005", MSG_NONE},
    {"WeightOfPosition8Is5", "000000010006", MSG_NONE},
    {"WeightOfPosition9Is4", "000000001007", MSG_NONE},
    {"WeightOfPosition10Is3", "000000000108", MSG_NONE},
    {"WeightOfPosition11Is2", "000000000019", MSG_NONE},
    {"Empty", "", HE70008E},
    {"ElevenDigits", "12345678901", HE70008E},
    {"ThirteenDigits", "1234567890180", HE70008E},
};

TEST_P(CheckDijitKojinTest, JudgesTheNumber)
{
    EXPECT_EQ(KZCEkaValidCheckDigit::CheckDijit_Kojin(GetParam().szNumber), GetParam().eResult);
}

INSTANTIATE_TEST_SUITE_P(Numbers, CheckDijitKojinTest, testing::ValuesIn(KOJIN), CaseName());

// --- corporate number: thirteen digits, the first one checks ---

class CheckDijitHojinTest : public ResetState, public testing::WithParamInterface<RuleCase>
{};

constexpr RuleCase HOJIN[] = {
    {"SumZeroExpectsNine", "9000000000000", MSG_NONE},
    {"SumZeroIsNotZero", "0000000000000", HE70010E},
    {"SumEighteenExpectsNine", "9900000000000", MSG_NONE},
    {"SumEighteenIsNotZero", "0900000000000", HE70010E},
    {"SumSeventeenExpectsOne", "1810000000000", MSG_NONE},
    {"SumOneExpectsEight", "8010000000000", MSG_NONE},
    {"WrongDigit", "7010000000000", HE70010E},
    {"WeightOfPosition2Is2", "7100000000000", MSG_NONE},
    {"WeightOfPosition3Is1", "8010000000000", MSG_NONE},
    {"WeightOfPosition4Is2", "7001000000000", MSG_NONE},
    {"WeightOfPosition5Is1", "8000100000000", MSG_NONE},
    {"WeightOfPosition6Is2", "7000010000000", MSG_NONE},
    {"WeightOfPosition7Is1", "8000001000000", MSG_NONE},
    {"WeightOfPosition8Is2", "7000000100000", MSG_NONE},
    {"WeightOfPosition9Is1", "8000000010000", MSG_NONE},
    {"WeightOfPosition10Is2", "7000000001000", MSG_NONE},
    {"WeightOfPosition11Is1", "8000000000100", MSG_NONE},
    {"WeightOfPosition12Is2", "7000000000010", MSG_NONE},
    {"WeightOfPosition13Is1", "8000000000001", MSG_NONE},
    {"Empty", "", HE70008E},
    {"TwelveDigits", "900000000000", HE70008E},
    {"FourteenDigits", "90000000000000", HE70008E},
};

TEST_P(CheckDijitHojinTest, JudgesTheNumber)
{
    EXPECT_EQ(KZCEkaValidCheckDigit::CheckDijit_Hojin(GetParam().szNumber), GetParam().eResult);
}

INSTANTIATE_TEST_SUITE_P(Numbers, CheckDijitHojinTest, testing::ValuesIn(HOJIN), CaseName());

// --- reference number: fourteen digits, the last one checks ---

class CheckDijitSeiriTest : public ResetState, public testing::WithParamInterface<RuleCase>
{};

constexpr RuleCase SEIRI[] = {
    {"Sum406LeavesTen", "12345678901231", MSG_NONE},
    {"Sum406WrongDigit", "12345678901234", HE70010E},
    {"RestZeroExpectsOne", "00000000000001", MSG_NONE},
    {"RestZeroIsNotZero", "00000000000000", HE70010E},
    {"SumElevenExpectsOne", "00010000000001", MSG_NONE},
    {"RestOneExpectsZero", "00100000000000", MSG_NONE},
    {"RestOneIsNotOne", "00100000000001", HE70010E},
    {"RestTenExpectsOne", "00001000000001", MSG_NONE},
    {"WeightOfPosition1Is14", "10000000000008", MSG_NONE},
    {"WeightOfPosition2Is13", "01000000000009", MSG_NONE},
    {"WeightOfPosition3Is12", "00100000000000", MSG_NONE},
    {"WeightOfPosition4Is11", "00010000000001", MSG_NONE},
    {"WeightOfPosition5Is10", "00001000000001", MSG_NONE},
    {"WeightOfPosition6Is9", "00000100000002", MSG_NONE},
    {"WeightOfPosition7Is8", "00000010000003", MSG_NONE},
    {"WeightOfPosition8Is7", "00000001000004", MSG_NONE},
    {"WeightOfPosition9Is6", "00000000100005", MSG_NONE},
    {"WeightOfPosition10Is5", "00000000010006", MSG_NONE},
    {"WeightOfPosition11Is4", "00000000001007", MSG_NONE},
    {"WeightOfPosition12Is3", "00000000000108", MSG_NONE},
    {"WeightOfPosition13Is2", "00000000000019", MSG_NONE},
    {"Empty", "", HE70008E},
    {"ThirteenDigits", "0000000000000", HE70008E},
    {"FifteenDigits", "000000000000010", HE70008E},
};

TEST_P(CheckDijitSeiriTest, JudgesTheNumber)
{
    EXPECT_EQ(KZCEkaValidCheckDigit::CheckDijit_Seiri(GetParam().szNumber), GetParam().eResult);
}

INSTANTIATE_TEST_SUITE_P(Numbers, CheckDijitSeiriTest, testing::ValuesIn(SEIRI), CaseName());

// --- the item ---

class ValidCheckDigitTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemText KOJIN_ITEM = {"checkdigit", "kojin"};
constexpr ItemText KOJIN2_ITEM = {"checkdigit", "kojin2"};
constexpr ItemText HOJIN_ITEM = {"checkdigit", "hojin"};
constexpr ItemText SEIRI_ITEM = {"checkdigit", "seiri"};
constexpr ItemText UNKNOWN_ITEM = {"checkdigit", "unknown"};

constexpr ItemValueCase CASES[] = {
    {"Kojin", KOJIN_ITEM, "123456789018", MSG_NONE},
    {"KojinWrongDigit", KOJIN_ITEM, "123456789010", HE70010E},
    {"KojinWrongLength", KOJIN_ITEM, "12345678901", HE70008E},
    {"KojinEmpty", KOJIN_ITEM, "", HE70008E},
    {"KojinLetter", KOJIN_ITEM, "12345678901a", HE70004E},
    {"LetterBeforeTheLength", KOJIN_ITEM, "1a", HE70004E},
    {"Blank", KOJIN_ITEM, " 123456789018", HE70004E},
    {"Sign", KOJIN_ITEM, "+12345678901", HE70004E},
    {"FullWidthDigitInShiftJis", KOJIN_ITEM, "\x82\x50", HE70004E},
    {"Kojin2", KOJIN2_ITEM, "9123456789018", MSG_NONE},
    {"Kojin2FirstCharacterIsNotExamined", KOJIN2_ITEM, "0123456789018", MSG_NONE},
    {"Kojin2FirstCharacterHasToBeADigit", KOJIN2_ITEM, "a123456789018", HE70004E},
    {"Kojin2WrongDigit", KOJIN2_ITEM, "9123456789010", HE70010E},
    {"Kojin2OfTwelveDigits", KOJIN2_ITEM, "123456789018", HE70008E},
    {"Kojin2OfOneDigit", KOJIN2_ITEM, "9", HE70008E},
    {"Kojin2Empty", KOJIN2_ITEM, "", HE70008E},
    {"Kojin2OfFortyDigits", KOJIN2_ITEM, "9123456789018000000000000000000000000000", HE70008E},
    {"Hojin", HOJIN_ITEM, "9900000000000", MSG_NONE},
    {"HojinWrongDigit", HOJIN_ITEM, "0900000000000", HE70010E},
    {"HojinEmpty", HOJIN_ITEM, "", HE70008E},
    {"HojinLetter", HOJIN_ITEM, "990000000000a", HE70004E},
    {"Seiri", SEIRI_ITEM, "12345678901231", MSG_NONE},
    {"SeiriWrongDigit", SEIRI_ITEM, "12345678901234", HE70010E},
    {"SeiriEmpty", SEIRI_ITEM, "", HE70008E},
    // The digits are looked at before the kind.
    {"UnknownKindAndALetter", UNKNOWN_ITEM, "12a", HE70004E},
};

TEST_P(ValidCheckDigitTest, JudgesTheValue)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidCheckDigitTest, testing::ValuesIn(CASES), CaseName());

using ValidCheckDigitFaultTest = ResetState;

TEST_F(ValidCheckDigitFaultTest, WithoutAKindRaises)
{
    const auto pItem = MakeItem({"checkdigit", ""});
    EXPECT_EQ(OnValue(*pItem, "123456789018"), RAISES);
    EXPECT_EQ(OnValue(*pItem, ""), RAISES);
    EXPECT_EQ(OnValue(*pItem, "a"), RAISES);
}

TEST_F(ValidCheckDigitFaultTest, AnUnknownKindRaises)
{
    for (const char* szKind : {"unknown", "Kojin", "kojin3", "kojin ", " "}) {
        const auto pItem = MakeItem({"checkdigit", szKind});
        EXPECT_EQ(OnValue(*pItem, "123456789018"), RAISES) << szKind;
        EXPECT_EQ(OnValue(*pItem, ""), RAISES) << szKind;
    }
}

}  // namespace
