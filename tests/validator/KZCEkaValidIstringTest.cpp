#include "validator/KZCEkaValidIstring.h"

#include <cstdint>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "text/ShiftJis.h"
#include "validator/IstringTable.h"

namespace {

// --- the model: JIS X 0208 as the C library's EUC-JP has it, and the rule of the table ---

constexpr unsigned JIS_CELLS = 94;  // rows, and columns of a row

/// The Unicode image of a JIS X 0208 position (row and column from 1), or nothing if none is there.
std::optional<unsigned> JisImage(unsigned nRow, unsigned nColumn)
{
    const std::string strEuc = {static_cast<char>(0xa0 + nRow), static_cast<char>(0xa0 + nColumn)};
    try {
        const std::string strUtf16 = ConvertText(strEuc, "UTF-16BE", "EUC-JP");
        return PairCode(strUtf16, 0);
    } catch (const std::invalid_argument&) {
        return std::nullopt;
    }
}

/// The Shift_JIS code of a JIS X 0208 position.
unsigned ShiftJisCode(unsigned nRow, unsigned nColumn)
{
    const unsigned nLead = (nRow - 1) / 2 + (nRow <= 62 ? 0x81 : 0xc1);
    if (nRow % 2 == 0)
        return nLead * 0x100 + 0x9e + nColumn;
    return nLead * 0x100 + 0x3f + nColumn + (nColumn >= 64 ? 1 : 0);
}

/// Every assigned character of JIS X 0208: its Unicode image by its Shift_JIS code.
std::map<unsigned, unsigned> JisCharacters()
{
    std::map<unsigned, unsigned> mapCharacter;
    for (unsigned nRow = 1; nRow <= JIS_CELLS; ++nRow)
        for (unsigned nColumn = 1; nColumn <= JIS_CELLS; ++nColumn)
            if (const auto nUnit = JisImage(nRow, nColumn))
                mapCharacter.emplace(ShiftJisCode(nRow, nColumn), *nUnit);
    return mapCharacter;
}

constexpr unsigned LEFT_OUT[] = {0x2103, 0x212b, 0x2312, 0x2605, 0x2606, 0x2640,
                                 0x2642, 0x266a, 0x266d, 0x266f, 0xff3c};

/// What the filing service takes.
std::set<unsigned> ServiceCharacters()
{
    std::set<unsigned> setUnit;
    for (const auto& [nCode, nUnit] : JisCharacters())
        setUnit.insert(nUnit);
    for (unsigned nUnit = 0x20; nUnit <= 0x7d; ++nUnit)
        setUnit.insert(nUnit);
    setUnit.insert({0xa5, 0x203e});
    for (unsigned nUnit = 0xff61; nUnit <= 0xff65; ++nUnit)
        setUnit.insert(nUnit);
    for (unsigned nUnit : LEFT_OUT)
        setUnit.erase(nUnit);
    return setUnit;
}

std::string ShiftJisBytes(unsigned nCode)
{
    return {static_cast<char>(nCode >> 8), static_cast<char>(nCode & 0xff)};
}

bool CanBeDecoded(const std::string& strShiftJis)
{
    try {
        return !ConvertText(strShiftJis, "UTF-8", "CP932").empty();
    } catch (const std::invalid_argument&) {
        return false;
    }
}

// --- the table ---

using IstringTableTest = ResetState;

TEST_F(IstringTableTest, HoldsExactlyTheCharactersOfTheFilingService)
{
    std::set<unsigned> setHeld;
    for (unsigned nUnit = 0; nUnit <= 0xffff; ++nUnit)
        if (IstringTable::ContainsUnit(static_cast<char16_t>(nUnit)))
            setHeld.insert(nUnit);
    EXPECT_EQ(setHeld, ServiceCharacters());
}

TEST_F(IstringTableTest, Holds6969CodePoints)
{
    int nHeld = 0;
    for (unsigned nUnit = 0; nUnit <= 0xffff; ++nUnit)
        nHeld += IstringTable::ContainsUnit(static_cast<char16_t>(nUnit)) ? 1 : 0;
    EXPECT_EQ(nHeld, 6969);
}

TEST_F(IstringTableTest, FallsInto4118RangesOfNeighbours)
{
    int nRanges = 0;
    bool bBefore = false;
    for (unsigned nUnit = 0; nUnit <= 0xffff; ++nUnit) {
        const bool bHeld = IstringTable::ContainsUnit(static_cast<char16_t>(nUnit));
        nRanges += bHeld && !bBefore ? 1 : 0;
        bBefore = bHeld;
    }
    EXPECT_EQ(nRanges, 4118);
}

TEST_F(IstringTableTest, TakesTheStandardsImagesAndNotThePlatformVariants)
{
    for (char16_t cUnit : {u'\u2015', u'\uffe3', u'\uffe5', u'\u2016', u'\u2212', u'\u301c',
                           u'\u00a2', u'\u00a3', u'\u00ac'})
        EXPECT_TRUE(IstringTable::ContainsUnit(cUnit)) << static_cast<unsigned>(cUnit);
    for (char16_t cUnit :
         {u'\u2014', u'\u00af', u'\u2225', u'\uff0d', u'\uff5e', u'\uffe0', u'\uffe1', u'\uffe2'})
        EXPECT_FALSE(IstringTable::ContainsUnit(cUnit)) << static_cast<unsigned>(cUnit);
}

TEST_F(IstringTableTest, ListsEachRangeOnceAndInOrder)
{
    const auto ranges = IstringTable::UnitRanges();
    ASSERT_EQ(ranges.size(), 4118u);
    unsigned nCodePoints = 0;
    int nBehind = -1;  // behind the last one so far, and not next to it
    for (const IstringTable::Range& range : ranges) {
        EXPECT_GT(static_cast<int>(range.nFirst), nBehind);
        EXPECT_GE(range.nLast, range.nFirst);
        nCodePoints += range.nLast - range.nFirst + 1u;
        nBehind = range.nLast + 1;
    }
    EXPECT_EQ(nCodePoints, 6969u);
}

struct CodeRange
{
    unsigned nFirst;
    unsigned nLast;
};

constexpr CodeRange ASSIGNED[] = {
    {0x8140, 0x817e}, {0x8180, 0x81ac}, {0x81b8, 0x81bf}, {0x81c8, 0x81ce}, {0x81da, 0x81e8},
    {0x81f0, 0x81f7}, {0x81fc, 0x81fc}, {0x824f, 0x8258}, {0x8260, 0x8279}, {0x8281, 0x829a},
    {0x829f, 0x82f1}, {0x8340, 0x837e}, {0x8380, 0x8396}, {0x839f, 0x83b6}, {0x83bf, 0x83d6},
    {0x8440, 0x8460}, {0x8470, 0x847e}, {0x8480, 0x8491}, {0x849f, 0x84be}, {0x889f, 0x9872},
    {0x989f, 0x9ffc}, {0xe040, 0xeaa4},
};

TEST_F(IstringTableTest, HoldsTheAssignedCodes)
{
    std::set<unsigned> setExpected;
    for (const CodeRange& range : ASSIGNED)
        for (unsigned nCode = range.nFirst; nCode <= range.nLast; ++nCode)
            setExpected.insert(nCode);
    std::set<unsigned> setHeld;
    for (unsigned nCode = 0; nCode <= 0xffff; ++nCode)
        if (IstringTable::ContainsCode(nCode))
            setHeld.insert(nCode);
    EXPECT_EQ(setHeld, setExpected);
}

// --- the item on Shift_JIS cells ---

struct FamilyCase
{
    const char* szName;
    KZCEkaCommon::EXEC_MODE eMode;
    std::set<unsigned> setRefused;  ///< codes of JIS X 0208 that the family doesn't take
};

void PrintTo(const FamilyCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidIstringFamilyTest : public ResetState, public testing::WithParamInterface<FamilyCase>
{};

TEST_P(ValidIstringFamilyTest, AcceptsTheJisCharactersThatTheServiceTakes)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    KZCEkaCommon::setExecMode(GetParam().eMode);
    const auto pItem = MakeItem({"istring"});
    pItem->SetErrOutput(false);

    std::set<unsigned> setExpected;
    for (const auto& [nCode, nUnit] : JisCharacters())
        if (!GetParam().setRefused.contains(nCode))
            setExpected.insert(nCode);
    std::set<unsigned> setAccepted;
    for (unsigned nCode = 0x8140; nCode <= 0xfcfc; ++nCode) {
        const std::string strValue = ShiftJisBytes(nCode);
        if (CanBeDecoded(strValue) && OnValue(*pItem, strValue.c_str()) == PASSES)
            setAccepted.insert(nCode);
    }
    EXPECT_EQ(setAccepted, setExpected);
}

// The ten symbols that no family takes: degree Celsius, angstrom, arc, the two stars, female, male
// and the three musical signs. The base family alone maps the variants of the code page away first.
const FamilyCase FAMILIES[] = {
    {"Base",
     KZCEkaCommon::EXEC_MODE_ZEKA,
     {0x818e, 0x81f0, 0x81dc, 0x8199, 0x819a, 0x818a, 0x8189, 0x81f4, 0x81f3, 0x81f2}},
    {"FinanceAndCrossBorder",
     KZCEkaCommon::EXEC_MODE_OTHER,
     {0x818e, 0x81f0, 0x81dc, 0x8199, 0x819a, 0x818a, 0x8189, 0x81f4, 0x81f3, 0x81f2, 0x815f,
      0x8160, 0x8161, 0x817c, 0x8191, 0x8192, 0x81ca}},
};

INSTANTIATE_TEST_SUITE_P(Families, ValidIstringFamilyTest, testing::ValuesIn(FAMILIES), CaseName());

class ValidIstringShiftJisTest : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase SHIFT_JIS_CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"Kanji", "\x88\x9f\xea\xa4", MSG_NONE},
    {"SingleByteLetter", "A", HE70006E},
    {"SingleByteLetterBehindKanji",
     "\x88\x9f"
     "A",
     HE70006E},
    {"Blank", " ", HE70006E},
    {"HalfWidthKatakana", "\xb1", HE70006E},
    {"HalfWidthPunctuation", "\xa1", HE70006E},
    {"DegreeCelsius", "\x81\x8e", HE70006E},
    {"DegreeCelsiusBehindKanji", "\x88\x9f\x81\x8e", HE70006E},
    {"HorizontalBar", "\x81\x5c", MSG_NONE},
    {"FullWidthMacron", "\x81\x50", MSG_NONE},
    {"FullWidthYen", "\x81\x8f", MSG_NONE},
    {"CircledDigit", "\x87\x40", HE70006E},
    {"PrivateUse", "\xf0\x40", HE70006E},
    {"ExtensionKanji", "\xfa\x5c", HE70006E},
};

TEST_P(ValidIstringShiftJisTest, JudgesTheValueDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem({"istring"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values,
                         ValidIstringShiftJisTest,
                         testing::ValuesIn(SHIFT_JIS_CASES),
                         CaseName());

// --- the item on UTF-8 values: the codes of the first pass are then the first two UTF-8 bytes ---

class ValidIstringUtf8Test : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase UTF8_CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"KanjiAndKana", "亜あア", MSG_NONE},
    {"Letter", "A", HE70006E},
    {"LetterBehindKanji", "亜A", HE70006E},
    {"GreekLetterOfTwoBytes", "β", HE70006E},
    {"FullWidthLetter", "Ａ", HE70006E},
    {"KanjiOutsideTheStandard", "丂", HE70006E},
    {"DegreeCelsius", "℃", HE70006E},
    {"DoubleVerticalLineOfTheStandard", "‖", MSG_NONE},
    {"SurrogatePair", "𠀀", HE70006E},
};

TEST_P(ValidIstringUtf8Test, JudgesTheValueOutsideACheck)
{
    const auto pItem = MakeItem({"istring"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidIstringUtf8Test, testing::ValuesIn(UTF8_CASES), CaseName());

struct SweepCase
{
    const char* szName;
    KZCEkaCommon::EXEC_MODE eMode;
    bool bParallelTo;  ///< U+2225 passes: it is mapped to U+2016 first
};

void PrintTo(const SweepCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidIstringSweepTest : public ResetState, public testing::WithParamInterface<SweepCase>
{};

TEST_P(ValidIstringSweepTest, AcceptsTheServiceCharactersWhoseUtf8PassesTheFirstPass)
{
    KZCEkaCommon::setExecMode(GetParam().eMode);
    const auto pItem = MakeItem({"istring"});
    pItem->SetErrOutput(false);
    // UTF-8 from E0 A0 to EA A4, which the range E040 to EAA4 takes in.
    constexpr unsigned FIRST = 0x0800;
    constexpr unsigned LAST = 0xa93f;
    std::set<unsigned> setExpected;
    for (unsigned nUnit : ServiceCharacters())
        if (nUnit >= FIRST && nUnit <= LAST)
            setExpected.insert(nUnit);
    if (GetParam().bParallelTo)
        setExpected.insert(0x2225);

    std::set<unsigned> setAccepted;
    for (unsigned nUnit = 1; nUnit <= 0xffff; ++nUnit) {
        if (nUnit >= 0xd800 && nUnit <= 0xdfff)
            continue;  // not a character alone, and has no UTF-8
        std::string strValue;
        Utf8::AppendUnit(strValue, static_cast<char16_t>(nUnit));
        if (OnValue(*pItem, strValue.c_str()) == PASSES)
            setAccepted.insert(nUnit);
    }
    EXPECT_EQ(setAccepted, setExpected);
}

constexpr SweepCase SWEEPS[] = {
    {"BaseFamily", KZCEkaCommon::EXEC_MODE_ZEKA, true},
    {"OtherFamilies", KZCEkaCommon::EXEC_MODE_OTHER, false},
};

INSTANTIATE_TEST_SUITE_P(Families, ValidIstringSweepTest, testing::ValuesIn(SWEEPS), CaseName());

// --- the trail ---

class ValidIstringLogTest : public ResetState
{
protected:
    ValidIstringLogTest() { KZCEkaCommon::SetCsvCheckFlag(true); }

    DebugLog m_log;
};

TEST_F(ValidIstringLogTest, LogsTheCodeThatTheFirstPassRefuses)
{
    const auto pItem = MakeItem({"istring"});
    EXPECT_EQ(OnValue(*pItem, "\x87\x40"), Verdict(HE70006E));
    EXPECT_TRUE(m_log.HasLine("34624")) << m_log.Text();  // 0x8740
}

TEST_F(ValidIstringLogTest, LogsTheUnitThatTheSecondPassRefuses)
{
    const auto pItem = MakeItem({"istring"});
    EXPECT_EQ(OnValue(*pItem, "\x81\x8e"), Verdict(HE70006E));
    EXPECT_TRUE(m_log.HasLine("8451")) << m_log.Text();  // U+2103
}

}  // namespace
