#include "text/ShiftJis.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <map>

#include "support/ShiftJisText.h"

namespace {

std::string TwoBytes(unsigned nCode)
{
    return {static_cast<char>(nCode >> 8U), static_cast<char>(nCode & 0xFFU)};
}

/// Asks the C library for one code, so that the expected values don't come from the code under
/// test.
class SystemCodePage
{
public:
    SystemCodePage() : m_pDecoder(::iconv_open("UTF-16LE", "CP932")) {}
    ~SystemCodePage() { ::iconv_close(m_pDecoder); }
    SystemCodePage(const SystemCodePage&) = delete;
    SystemCodePage& operator=(const SystemCodePage&) = delete;

    std::optional<std::u16string> Decode(std::string strCode) const
    {
        ::iconv(m_pDecoder, nullptr, nullptr, nullptr, nullptr);
        char szOut[16] = {};
        char* pIn = strCode.data();
        char* pOut = szOut;
        std::size_t nIn = strCode.size();
        std::size_t nOut = sizeof(szOut);
        if (::iconv(m_pDecoder, &pIn, &nIn, &pOut, &nOut) != 0)
            return std::nullopt;
        std::u16string strUnits;
        for (std::size_t nByte = 0; nByte < sizeof(szOut) - nOut; nByte += 2)
            strUnits += static_cast<char16_t>(static_cast<unsigned char>(szOut[nByte]) |
                                              static_cast<unsigned char>(szOut[nByte + 1]) << 8U);
        return strUnits;
    }

private:
    iconv_t m_pDecoder;
};

/// Calls use(code) for every lead byte of a two-byte code with every trail byte.
template <class Use>
void ForEachTwoByteCode(Use use)
{
    for (unsigned nLead = 0x81; nLead <= 0xFC; ++nLead) {
        if (nLead >= 0xA0 && nLead <= 0xDF)
            continue;
        for (unsigned nTrail = 0; nTrail <= 0xFF; ++nTrail)
            use(nLead << 8U | nTrail);
    }
}

TEST(ShiftJisTest, EveryTwoByteCodeDecodesAsTheSystemsCodePageHasIt)
{
    const SystemCodePage codePage;
    ForEachTwoByteCode([&](unsigned nCode) {
        const std::string strCode = TwoBytes(nCode);
        EXPECT_EQ(ShiftJis::Decode(strCode), codePage.Decode(strCode)) << std::hex << nCode;
    });
}

// 6,879 characters of JIS X 0208, 83 of NEC row 13, 374 NEC-selected, 388 IBM extensions and 1,880
// for private use.
TEST(ShiftJisTest, HasExactly9604TwoByteCodes)
{
    unsigned nCount = 0;
    ForEachTwoByteCode([&](unsigned nCode) {
        const auto strUnits = ShiftJis::Decode(TwoBytes(nCode));
        nCount += strUnits && strUnits->size() == 1 ? 1U : 0U;
    });
    EXPECT_EQ(nCount, 9604U);
}

TEST(ShiftJisTest, TheTableCanBeReadBackCharacterByCharacter)
{
    ForEachTwoByteCode([&](unsigned nCode) {
        const auto strUnits = ShiftJis::Decode(TwoBytes(nCode));
        if (!strUnits)
            return;
        const auto strCode = ShiftJis::Encode(*strUnits);
        ASSERT_TRUE(strCode) << std::hex << nCode;
        EXPECT_EQ(ShiftJis::Decode(*strCode), strUnits) << std::hex << nCode;
    });
}

// A character is written only if reading the code gives the same character again. So whatever the
// system's converter accepts as a look-alike is refused.
TEST(ShiftJisTest, WritesExactlyTheCharactersThatItReads)
{
    std::vector<bool> vecRead(0x10000);
    for (unsigned nByte = 0; nByte <= 0xFF; ++nByte)
        if (const auto strUnits = ShiftJis::Decode(std::string(1, static_cast<char>(nByte))))
            vecRead[(*strUnits)[0]] = true;
    ForEachTwoByteCode([&](unsigned nCode) {
        if (const auto strUnits = ShiftJis::Decode(TwoBytes(nCode)))
            vecRead[(*strUnits)[0]] = true;
    });
    for (unsigned nUnit = 0; nUnit < 0x10000; ++nUnit)
        EXPECT_EQ(ShiftJis::Encode(std::u16string(1, static_cast<char16_t>(nUnit))).has_value(),
                  vecRead[nUnit])
            << std::hex << nUnit;
}

TEST(ShiftJisTest, AsciiStandsForItself)
{
    for (unsigned nByte = 0; nByte < 0x80; ++nByte)
        EXPECT_EQ(ShiftJis::Decode(std::string(1, static_cast<char>(nByte))),
                  std::u16string(1, static_cast<char16_t>(nByte)))
            << nByte;
}

TEST(ShiftJisTest, HalfWidthKatakanaTakeOneByte)
{
    for (unsigned nByte = 0xA1; nByte <= 0xDF; ++nByte)
        EXPECT_EQ(ShiftJis::Decode(std::string(1, static_cast<char>(nByte))),
                  std::u16string(1, static_cast<char16_t>(0xFF61 + nByte - 0xA1)))
            << nByte;
}

// 10 lead bytes with 188 trail bytes each, in order.
TEST(ShiftJisTest, PrivateUseCodesFollowOneAnother)
{
    unsigned nUnit = 0xE000;
    for (unsigned nLead = 0xF0; nLead <= 0xF9; ++nLead) {
        for (unsigned nTrail = 0x40; nTrail <= 0xFC; ++nTrail) {
            if (nTrail == 0x7F)
                continue;
            EXPECT_EQ(ShiftJis::Decode(TwoBytes(nLead << 8U | nTrail)),
                      std::u16string(1, static_cast<char16_t>(nUnit++)));
        }
    }
    EXPECT_EQ(nUnit, 0xE758U);
}

struct CodeCase
{
    const char* szName;
    unsigned nCode;
    char16_t cUnit;
    unsigned nCanonical;
};

class ShiftJisCodeTest : public testing::TestWithParam<CodeCase>
{
protected:
    static std::string Bytes(unsigned nCode)
    {
        return nCode < 0x100 ? std::string(1, static_cast<char>(nCode)) : TwoBytes(nCode);
    }
};

TEST_P(ShiftJisCodeTest, DecodesToItsCharacter)
{
    EXPECT_EQ(ShiftJis::Decode(Bytes(GetParam().nCode)), std::u16string(1, GetParam().cUnit));
}

TEST_P(ShiftJisCodeTest, ComesBackInItsCanonicalForm)
{
    EXPECT_EQ(ShiftJis::Canonical(Bytes(GetParam().nCode)), Bytes(GetParam().nCanonical));
}

TEST_P(ShiftJisCodeTest, TheCharacterIsWrittenInTheCanonicalForm)
{
    EXPECT_EQ(ShiftJis::Encode(std::u16string(1, GetParam().cUnit)), Bytes(GetParam().nCanonical));
}

constexpr CodeCase CODE_CASES[] = {
    {"Backslash", 0x5C, 0x005C, 0x5C},
    {"Tilde", 0x7E, 0x007E, 0x7E},
    {"FullWidthSpace", 0x8140, 0x3000, 0x8140},
    {"Macron", 0x8150, 0xFFE3, 0x8150},
    {"HorizontalBar", 0x815C, 0x2015, 0x815C},
    {"FullWidthBackslash", 0x815F, 0xFF3C, 0x815F},
    {"WaveDash", 0x8160, 0xFF5E, 0x8160},
    {"DoubleVerticalLine", 0x8161, 0x2225, 0x8161},
    {"Minus", 0x817C, 0xFF0D, 0x817C},
    {"Yen", 0x818F, 0xFFE5, 0x818F},
    {"Cent", 0x8191, 0xFFE0, 0x8191},
    {"Pound", 0x8192, 0xFFE1, 0x8192},
    {"Hiragana", 0x82A0, 0x3042, 0x82A0},
    {"TrailByteOfABackslash", 0x835C, 0x30BD, 0x835C},
    {"FirstKanji", 0x889F, 0x4E9C, 0x889F},
    {"LastKanji", 0xEAA4, 0x7199, 0xEAA4},
    {"FirstPrivateUse", 0xF040, 0xE000, 0xF040},
    {"LastPrivateUse", 0xF9FC, 0xE757, 0xF9FC},
    // Characters that stand both in JIS X 0208 and in NEC row 13.
    {"NecApproximately", 0x8790, 0x2252, 0x81E0},
    {"JisApproximately", 0x81E0, 0x2252, 0x81E0},
    {"NecIdentical", 0x8791, 0x2261, 0x81DF},
    {"NecIntegral", 0x8792, 0x222B, 0x81E7},
    {"NecRoot", 0x8795, 0x221A, 0x81E3},
    {"NecPerpendicular", 0x8796, 0x22A5, 0x81DB},
    {"NecAngle", 0x8797, 0x2220, 0x81DA},
    {"NecBecause", 0x879A, 0x2235, 0x81E6},
    {"NecIntersection", 0x879B, 0x2229, 0x81BF},
    {"NecUnion", 0x879C, 0x222A, 0x81BE},
    {"IbmBecause", 0xFA5B, 0x2235, 0x81E6},
    {"JisNot", 0x81CA, 0xFFE2, 0x81CA},
    {"NecSelectedNot", 0xEEF9, 0xFFE2, 0x81CA},
    {"IbmNot", 0xFA54, 0xFFE2, 0x81CA},
    // NEC row 13 goes before the IBM extensions.
    {"NecRomanOne", 0x8754, 0x2160, 0x8754},
    {"IbmRomanOne", 0xFA4A, 0x2160, 0x8754},
    {"IbmParenthesisedStock", 0xFA58, 0x3231, 0x878A},
    {"IbmNumero", 0xFA59, 0x2116, 0x8782},
    {"IbmTelephone", 0xFA5A, 0x2121, 0x8784},
    {"NecCircledOne", 0x8740, 0x2460, 0x8740},
    // The IBM extensions go before what NEC selected from them.
    {"NecSelectedSmallRomanOne", 0xEEEF, 0x2170, 0xFA40},
    {"IbmSmallRomanOne", 0xFA40, 0x2170, 0xFA40},
    {"NecSelectedBrokenBar", 0xEEFA, 0xFFE4, 0xFA55},
    {"NecSelectedApostrophe", 0xEEFB, 0xFF07, 0xFA56},
    {"NecSelectedQuotationMark", 0xEEFC, 0xFF02, 0xFA57},
    {"NecSelectedFirstKanji", 0xED40, 0x7E8A, 0xFA5C},
    {"IbmFirstKanji", 0xFA5C, 0x7E8A, 0xFA5C},
    {"NecSelectedLastKanji", 0xEEEC, 0x9ED1, 0xFC4B},
    {"IbmLastKanji", 0xFC4B, 0x9ED1, 0xFC4B},
};

INSTANTIATE_TEST_SUITE_P(Codes,
                         ShiftJisCodeTest,
                         testing::ValuesIn(CODE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

struct BytesCase
{
    const char* szName;
    std::string_view strBytes;
};

class ShiftJisInvalidTest : public testing::TestWithParam<BytesCase>
{};

TEST_P(ShiftJisInvalidTest, AnInvalidSequenceRefusesTheWholeText)
{
    EXPECT_EQ(ShiftJis::Decode(GetParam().strBytes), std::nullopt);
    EXPECT_EQ(ShiftJis::Canonical(GetParam().strBytes), std::nullopt);
    EXPECT_EQ(ShiftJis::ToUtf8(GetParam().strBytes), std::nullopt);
}

constexpr BytesCase INVALID_CASES[] = {
    {"Byte80", "\x80"},
    {"ByteA0", "\xA0"},
    {"ByteFD", "\xFD"},
    {"ByteFE", "\xFE"},
    {"ByteFF", "\xFF"},
    {"Byte80BeforeALetter",
     "\x80"
     "A"},
    {"ByteA0BeforeALetter",
     "\xA0"
     "A"},
    {"ByteFDBeforeALetter",
     "\xFD"
     "A"},
    {"LoneLeadByte", "\x82"},
    {"LoneLeadByteAtTheEnd", "abc\x82"},
    {"TrailByteTooLow", "\x82\x3F"},
    {"TrailByte7F", "\x82\x7F"},
    {"TrailByteTooHigh", "\x82\xFD"},
    {"TrailByteNul", std::string_view("\x82\0", 2)},
    {"UnassignedInRow1", "\x81\xAD"},
    {"UnassignedRow9", "\x85\x40"},
    {"UnassignedBehindTheIbmExtensions", "\xFC\x4C"},
    {"UnassignedLeadByteEF", "\xEF\x40"},
    {"InvalidBehindValid", "\x82\xA0\x80"},
    {"InvalidBehindNul", std::string_view("a\0\x80", 3)},
    {"Utf8ByteOrderMark", "\xEF\xBB\xBF"},
    {"Utf16ByteOrderMark", "\xFF\xFE"},
};

INSTANTIATE_TEST_SUITE_P(Bytes,
                         ShiftJisInvalidTest,
                         testing::ValuesIn(INVALID_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

struct RefusedCase
{
    const char* szName;
    std::u16string_view strUnits;
};

class ShiftJisRefusedTest : public testing::TestWithParam<RefusedCase>
{};

TEST_P(ShiftJisRefusedTest, ACharacterWithoutAPlaceRefusesTheWholeText)
{
    EXPECT_EQ(ShiftJis::Encode(GetParam().strUnits), std::nullopt);
}

constexpr RefusedCase REFUSED_CASES[] = {
    {"YenSign", u"\u00A5"},
    {"Overline", u"\u203E"},
    {"WaveDashOfJis", u"\u301C"},
    {"MinusSignOfJis", u"\u2212"},
    {"DoubleVerticalLineOfJis", u"\u2016"},
    {"CentSignOfJis", u"\u00A2"},
    {"PoundSignOfJis", u"\u00A3"},
    {"NotSignOfJis", u"\u00AC"},
    {"EmDash", u"\u2014"},
    {"LatinLetterWithAccent", u"\u00E9"},
    {"HangulSyllable", u"\uAC00"},
    {"BehindThePrivateUseCodes", u"\uE758"},
    {"SurrogatePair", u"\U00020BB7"},
    {"LoneSurrogate", std::u16string_view(u"\xD842", 1)},
    {"AmongOthers", u"abc\u00A5"},
};

INSTANTIATE_TEST_SUITE_P(Characters,
                         ShiftJisRefusedTest,
                         testing::ValuesIn(REFUSED_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST(ShiftJisTest, MixedTextDecodes)
{
    EXPECT_EQ(ShiftJis::Decode("a\x82\xA0\xB1\\"), u"aあｱ\\");
}

TEST(ShiftJisTest, TheEmptyTextDecodesToTheEmptyText)
{
    EXPECT_EQ(ShiftJis::Decode(""), u"");
}

TEST(ShiftJisTest, NulCharactersPass)
{
    EXPECT_EQ(ShiftJis::Decode(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
    EXPECT_EQ(ShiftJis::Encode(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(ShiftJisTest, ToUtf8GivesTheSameText)
{
    EXPECT_EQ(ShiftJis::ToUtf8(ToShiftJis("国税太郎,ｱｲｳ,1")), "国税太郎,ｱｲｳ,1");
}

TEST(ShiftJisTest, ALongTextDecodesWhole)
{
    std::string strBytes;
    std::u16string strUnits;
    for (int nAt = 0; nAt < 100000; ++nAt) {
        strBytes += "\x82\xA0";
        strUnits += u'あ';
    }
    EXPECT_TRUE(ShiftJis::Decode(strBytes) == strUnits);
}

// --- UTF-8 ---

struct Utf8Case
{
    const char* szName;
    std::string_view strBytes;
    std::u16string_view strUnits;
};

class Utf8ValidTest : public testing::TestWithParam<Utf8Case>
{};

TEST_P(Utf8ValidTest, Decodes)
{
    EXPECT_EQ(Utf8::Decode(GetParam().strBytes), std::u16string(GetParam().strUnits));
}

TEST_P(Utf8ValidTest, EncodesBack)
{
    EXPECT_EQ(Utf8::Encode(GetParam().strUnits), std::string(GetParam().strBytes));
}

constexpr Utf8Case UTF8_CASES[] = {
    {"Empty", "", u""},
    {"Nul", std::string_view("\0", 1), std::u16string_view(u"\0", 1)},
    {"LastOfOneByte", "\x7F", u"\x7F"},
    {"FirstOfTwoBytes", "\xC2\x80", u"\u0080"},
    {"LastOfTwoBytes", "\xDF\xBF", u"\u07FF"},
    {"FirstOfThreeBytes", "\xE0\xA0\x80", u"\u0800"},
    {"BeforeTheSurrogates", "\xED\x9F\xBF", u"\uD7FF"},
    {"BehindTheSurrogates", "\xEE\x80\x80", u"\uE000"},
    {"LastOfThreeBytes", "\xEF\xBF\xBF", u"\uFFFF"},
    {"FirstOfFourBytes", "\xF0\x90\x80\x80", u"\U00010000"},
    {"LastOfFourBytes", "\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
    {"ByteOrderMarkIsACharacter",
     "\xEF\xBB\xBF"
     "a",
     u"\uFEFF"
     u"a"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         Utf8ValidTest,
                         testing::ValuesIn(UTF8_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

class Utf8InvalidTest : public testing::TestWithParam<BytesCase>
{};

TEST_P(Utf8InvalidTest, IsRefused)
{
    EXPECT_EQ(Utf8::Decode(GetParam().strBytes), std::nullopt);
}

constexpr BytesCase UTF8_INVALID_CASES[] = {
    {"LoneContinuationByte", "\x80"},
    {"OverlongSlash", "\xC0\xAF"},
    {"OverlongOfTwoBytes", "\xC1\xBF"},
    {"OverlongOfThreeBytes", "\xE0\x9F\xBF"},
    {"OverlongOfFourBytes", "\xF0\x8F\xBF\xBF"},
    {"Surrogate", "\xED\xA0\x80"},
    {"SurrogatePairInSixBytes", "\xED\xA1\x82\xED\xBE\xB7"},
    {"BeyondTheLastCharacter", "\xF4\x90\x80\x80"},
    {"LeadByteF5", "\xF5\x80\x80\x80"},
    {"ByteFE", "\xFE"},
    {"ByteFF", "\xFF"},
    {"CutInsideACharacter", "a\xE3\x81"},
    {"LetterInsideACharacter",
     "\xE3\x81"
     "a"},
    {"ShiftJisText", "\x82\xA0"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         Utf8InvalidTest,
                         testing::ValuesIn(UTF8_INVALID_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST(ShiftJisPiecesTest, CharactersStayWholeWhereverTheTextIsCut)
{
    // Trail bytes that are lead bytes too, that are letters, and that are single characters.
    const std::string strText = ToShiftJis("a表ソ,ｱ貶あ髙\n能") + "\x83\x83\x83\x83";
    for (std::size_t nCut = 0; nCut <= strText.size(); ++nCut) {
        ShiftJis::Pieces pieces;
        std::string strTaken(pieces.Take(std::string_view(strText).substr(0, nCut)));
        EXPECT_TRUE(ShiftJis::IsValid(strTaken)) << nCut;
        EXPECT_LE(nCut - strTaken.size(), 1u) << nCut;
        const std::string strRest(pieces.Take(std::string_view(strText).substr(nCut)));
        EXPECT_TRUE(ShiftJis::IsValid(strRest)) << nCut;
        EXPECT_TRUE(pieces.IsWhole());
        EXPECT_EQ(strTaken + strRest, strText) << nCut;
    }
}

TEST(ShiftJisPiecesTest, LeadByteAtTheEndIsNeverTaken)
{
    ShiftJis::Pieces pieces;
    EXPECT_EQ(pieces.Take("ab\x82"), "ab");
    EXPECT_FALSE(pieces.IsWhole());
    EXPECT_EQ(pieces.Take(""), "");
    EXPECT_FALSE(pieces.IsWhole());
    EXPECT_EQ(pieces.Take("\xA0"), "\x82\xA0");
    EXPECT_TRUE(pieces.IsWhole());
}

TEST(ShiftJisPiecesTest, LeadByteBeforeANoTrailByteStaysWithItAndIsInvalid)
{
    ShiftJis::Pieces pieces;
    EXPECT_EQ(pieces.Take("a\x82"), "a");
    const std::string_view strTaken = pieces.Take(",b");
    EXPECT_EQ(strTaken, "\x82,b");
    EXPECT_FALSE(ShiftJis::IsValid(strTaken));
}

TEST(ShiftJisPiecesTest, ValidTextIsTheOneThatCanBeDecoded)
{
    EXPECT_TRUE(ShiftJis::IsValid(""));
    EXPECT_TRUE(ShiftJis::IsValid("abc"));
    EXPECT_TRUE(ShiftJis::IsValid(ToShiftJis("青葉")));
    EXPECT_FALSE(ShiftJis::IsValid("a\x82"));
    EXPECT_FALSE(ShiftJis::IsValid("\xFF"));
    EXPECT_FALSE(ShiftJis::IsValid("\x82,"));
}

TEST(Utf8Test, ALoneHighSurrogateIsNotEncoded)
{
    EXPECT_EQ(Utf8::Encode(std::u16string(1, u'\xD842')), std::nullopt);
}

TEST(Utf8Test, AHighSurrogateBeforeALetterIsNotEncoded)
{
    EXPECT_EQ(Utf8::Encode(std::u16string(1, u'\xD842') + u"a"), std::nullopt);
}

TEST(Utf8Test, ALoneLowSurrogateIsNotEncoded)
{
    EXPECT_EQ(Utf8::Encode(std::u16string(1, u'\xDFB7')), std::nullopt);
}

TEST(Utf8Test, AppendUnitWritesOneToThreeBytes)
{
    std::string strOut = "x";
    Utf8::AppendUnit(strOut, u'a');
    Utf8::AppendUnit(strOut, u'\u00E9');
    Utf8::AppendUnit(strOut, u'あ');
    EXPECT_EQ(strOut, "xaéあ");
}

}  // namespace
