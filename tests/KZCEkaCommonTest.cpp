#include "KZCEkaCommon.h"

#include <gtest/gtest.h>

#include <clocale>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/DebugLog.h"
#include "support/LogEntries.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"

namespace {

class KZCEkaCommonTest : public ResetState
{
protected:
    /// The number that an operation throws, or 0.
    template <class Operation>
    static int Thrown(Operation operation)
    {
        try {
            operation();
        } catch (int nThrown) {
            return nThrown;
        }
        return 0;
    }
};

// --- the two flags ---

TEST_F(KZCEkaCommonTest, SetExecModeIsReadBack)
{
    KZCEkaCommon::setExecMode(KZCEkaCommon::EXEC_MODE_OTHER);
    EXPECT_EQ(KZCEkaCommon::getExecMode(), KZCEkaCommon::EXEC_MODE_OTHER);
}

TEST_F(KZCEkaCommonTest, ExecModesHaveTheirFixedValues)
{
    EXPECT_EQ(static_cast<int>(KZCEkaCommon::EXEC_MODE_ZEKA), 1);
    EXPECT_EQ(static_cast<int>(KZCEkaCommon::EXEC_MODE_OTHER), 2);
}

TEST_F(KZCEkaCommonTest, SetCsvCheckFlagIsReadBack)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_TRUE(KZCEkaCommon::GetCsvCheckFlag());
    KZCEkaCommon::SetCsvCheckFlag(false);
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
}

TEST_F(KZCEkaCommonTest, NowRendersTheClock)
{
    Clock::Set(0);
    EXPECT_TRUE(KZCEkaCommon::Now("yyyy", "ss") == "1970 00" ||
                KZCEkaCommon::Now("yyyy", "ss") == "1969 00");
}

// --- StringTrim ---

TEST_F(KZCEkaCommonTest, StringTrimOfNullIsEmpty)
{
    const char* szText = nullptr;
    EXPECT_EQ(KZCEkaCommon::StringTrim(szText), "");
}

TEST_F(KZCEkaCommonTest, StringTrimReadsUtf8OutsideACheck)
{
    EXPECT_EQ(KZCEkaCommon::StringTrim("　あ "), "あ");
}

TEST_F(KZCEkaCommonTest, StringTrimReadsShiftJisDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(KZCEkaCommon::StringTrim(ToShiftJis("　あ ")), ToShiftJis("あ"));
}

TEST_F(KZCEkaCommonTest, StringTrimOfATextInTheOtherEncodingIsEmpty)
{
    EXPECT_EQ(KZCEkaCommon::StringTrim(ToShiftJis("　あ ")), "");
}

// --- UTF-16 ---

TEST_F(KZCEkaCommonTest, MtoWStringOfNullIsEmpty)
{
    EXPECT_EQ(KZCEkaCommon::MtoWString(nullptr), u"");
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(KZCEkaCommon::MtoWString(nullptr), u"");
}

TEST_F(KZCEkaCommonTest, MtoWStringReadsUtf8OutsideACheck)
{
    EXPECT_EQ(KZCEkaCommon::MtoWString("aあ𠮷"), u"aあ𠮷");
}

TEST_F(KZCEkaCommonTest, MtoWStringReadsShiftJisDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(KZCEkaCommon::MtoWString("a\x82\xA0\x81\x60"), u"aあ\uFF5E");
}

TEST_F(KZCEkaCommonTest, MtoWStringOfInvalidShiftJisIsEmpty)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(KZCEkaCommon::MtoWString("a\x82"), u"");
}

TEST_F(KZCEkaCommonTest, MtoWStringOfInvalidUtf8ThrowsTheFault)
{
    EXPECT_EQ(Thrown([] { static_cast<void>(KZCEkaCommon::MtoWString("a\x82")); }), FAULT);
}

TEST_F(KZCEkaCommonTest, MtoWStringDoesntDependOnTheLocale)
{
    const std::string strBefore = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    const std::u16string strUnits = KZCEkaCommon::MtoWString("国税");
    std::setlocale(LC_ALL, strBefore.c_str());
    EXPECT_EQ(strUnits, u"国税");
}

struct SubstitutionCase
{
    const char* szName;
    const char* szText;
    const char16_t* szZeka;
    const char16_t* szFinance;
};

class KZCEkaCommonSubstitutionTest : public ResetState,
                                     public testing::WithParamInterface<SubstitutionCase>
{};

TEST_P(KZCEkaCommonSubstitutionTest, TheBaseFamilyLooksAtTheJisTable)
{
    EXPECT_EQ(KZCEkaCommon::ConvertSPCharZeka(GetParam().szText), GetParam().szZeka);
}

TEST_P(KZCEkaCommonSubstitutionTest, TheOtherFamiliesLookAtTheCodePointsAsTheyAre)
{
    EXPECT_EQ(KZCEkaCommon::ConvertSPCharFinance(GetParam().szText), GetParam().szFinance);
}

TEST_P(KZCEkaCommonSubstitutionTest, TheModeSelects)
{
    EXPECT_EQ(KZCEkaCommon::ConvertSPChar(GetParam().szText), GetParam().szZeka);
    KZCEkaCommon::setExecMode(KZCEkaCommon::EXEC_MODE_OTHER);
    EXPECT_EQ(KZCEkaCommon::ConvertSPChar(GetParam().szText), GetParam().szFinance);
}

TEST_P(KZCEkaCommonSubstitutionTest, TheSameHoldsForShiftJisDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(KZCEkaCommon::ConvertSPChar(ToShiftJis(GetParam().szText).c_str()),
              GetParam().szZeka);
}

constexpr SubstitutionCase SUBSTITUTION_CASES[] = {
    {"Empty", "", u"", u""},
    {"Backslash", "\\", u"\u00A5", u"\\"},
    {"Tilde", "~", u"\u203E", u"~"},
    {"ParallelTo", "\u2225", u"\u2016", u"\u2225"},
    {"FullWidthHyphenMinus", "\uFF0D", u"\u2212", u"\uFF0D"},
    {"FullWidthBackslash", "\uFF3C", u"\\", u"\uFF3C"},
    {"FullWidthTilde", "\uFF5E", u"\u301C", u"\uFF5E"},
    {"FullWidthCent", "\uFFE0", u"\u00A2", u"\uFFE0"},
    {"FullWidthPound", "\uFFE1", u"\u00A3", u"\uFFE1"},
    {"FullWidthNot", "\uFFE2", u"\u00AC", u"\uFFE2"},
    {"BothBackslashesInOnePass", "\uFF3C\\\uFF3C", u"\\\u00A5\\", u"\uFF3C\\\uFF3C"},
    {"NothingElse", "aあｱ漢―￣￥", u"aあｱ漢―￣￥", u"aあｱ漢―￣￥"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCEkaCommonSubstitutionTest,
                         testing::ValuesIn(SUBSTITUTION_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCEkaCommonTest, ConvertSPCharOfNullIsEmptyInBothModes)
{
    EXPECT_EQ(KZCEkaCommon::ConvertSPChar(nullptr), u"");
    KZCEkaCommon::setExecMode(KZCEkaCommon::EXEC_MODE_OTHER);
    EXPECT_EQ(KZCEkaCommon::ConvertSPChar(nullptr), u"");
}

TEST_F(KZCEkaCommonTest, ConvertSPCharOfInvalidUtf8ThrowsTheFault)
{
    EXPECT_EQ(Thrown([] { static_cast<void>(KZCEkaCommon::ConvertSPChar("\xE3")); }), FAULT);
}

TEST_F(KZCEkaCommonTest, AFaultOfMtoWStringIsLoggedWithoutAMessage)
{
    const DebugLog log;
    EXPECT_EQ(Thrown([] { static_cast<void>(KZCEkaCommon::MtoWString("\xE3")); }), FAULT);
    EXPECT_EQ(LogEntries(log), (std::vector<LogEntry>{{"KZCEkaCommon::MtoWString", ""}}));
}

TEST_F(KZCEkaCommonTest, AFaultOfConvertSPCharIsLoggedByBothOperationsInBothModes)
{
    const std::vector<LogEntry> vecExpected = {{"KZCEkaCommon::MtoWString", ""},
                                               {"KZCEkaCommon::ConvertSPChar", ""}};
    for (const auto eMode : {KZCEkaCommon::EXEC_MODE_ZEKA, KZCEkaCommon::EXEC_MODE_OTHER}) {
        KZCEkaCommon::setExecMode(eMode);
        const DebugLog log;
        EXPECT_EQ(Thrown([] { static_cast<void>(KZCEkaCommon::ConvertSPChar("\xE3")); }), FAULT);
        EXPECT_EQ(LogEntries(log), vecExpected);
    }
}

TEST_F(KZCEkaCommonTest, AFaultOfEitherVariantIsThatOfMtoWString)
{
    const DebugLog log;
    EXPECT_EQ(Thrown([] { static_cast<void>(KZCEkaCommon::ConvertSPCharZeka("\xE3")); }), FAULT);
    EXPECT_EQ(Thrown([] { static_cast<void>(KZCEkaCommon::ConvertSPCharFinance("\xE3")); }), FAULT);
    EXPECT_EQ(LogEntries(log), (std::vector<LogEntry>{{"KZCEkaCommon::MtoWString", ""},
                                                      {"KZCEkaCommon::MtoWString", ""}}));
}

TEST_F(KZCEkaCommonTest, ConvertSPCharFinanceReadsShiftJisDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    EXPECT_EQ(KZCEkaCommon::ConvertSPCharFinance("a\x82\xA0\x81\x60"), u"aあ\uFF5E");
    EXPECT_EQ(KZCEkaCommon::ConvertSPCharFinance("a\x82"), u"");
}

// --- escaping ---

struct EscapeCase
{
    const char* szName;
    std::string_view strText;
    std::string_view strExpected;
};

class KZCEkaCommonEscapeTest : public testing::TestWithParam<EscapeCase>
{};

TEST_P(KZCEkaCommonEscapeTest, SpecialEncodingEscapesAllButWholeBlocks)
{
    EXPECT_EQ(KZCEkaCommon::SpecialEncoding(std::string(GetParam().strText)),
              GetParam().strExpected);
}

constexpr EscapeCase ESCAPE_CASES[] = {
    {"Empty", "", ""},
    {"NothingToEscape", "abc", "abc"},
    {"LessThan", "a<b", "a&lt;b"},
    {"GreaterThan", "a>b", "a&gt;b"},
    {"Ampersand", "a&b", "a&amp;b"},
    {"QuotationMark", "a\"b", "a&quot;b"},
    {"Apostrophe", "a'b", "a&apos;b"},
    {"AllFive", "\"&'<>", "&quot;&amp;&apos;&lt;&gt;"},
    {"EntityIsEscapedAgain", "&amp;", "&amp;amp;"},
    {"Japanese", "国税<太郎>", "国税&lt;太郎&gt;"},
    {"ControlCharactersStay", "a\r\n\tb", "a\r\n\tb"},
    {"EndsAtTheFirstNul", std::string_view("a<\0b<", 5), "a&lt;"},
    {"NulInsideABlock", std::string_view("<!--a\0-->", 9), "&lt;!--a"},
    // Whole blocks.
    {"Section", "x<![CDATA[a<b]]>y&z", "x<![CDATA[a<b]]>y&amp;z"},
    {"Comment", "<!-- a&b -->", "<!-- a&b -->"},
    {"Instruction", "<?pi a&b?>", "<?pi a&b?>"},
    {"EmptySection", "<![CDATA[]]>", "<![CDATA[]]>"},
    {"EmptyComment", "<!---->", "<!---->"},
    {"EmptyInstruction", "<?\?>", "<?\?>"},
    {"TwoBlocks", "<!--a-->&<?b?>", "<!--a-->&amp;<?b?>"},
    {"BlocksSideBySide", "<!--<--><?<?><![CDATA[<]]>", "<!--<--><?<?><![CDATA[<]]>"},
    {"TextOnBothSides", "'<!--'-->'", "&apos;<!--'-->&apos;"},
    {"ElementIsNoBlock", "<a>b</a>", "&lt;a&gt;b&lt;/a&gt;"},
    // The first block wins, whatever stands inside it.
    {"CommentInsideASection", "<![CDATA[<!--]]>-->", "<![CDATA[<!--]]>--&gt;"},
    {"SectionInsideAComment", "<!--<![CDATA[-->]]>", "<!--<![CDATA[-->]]&gt;"},
    {"InstructionInsideAComment", "<!--<?-->?>", "<!--<?-->?&gt;"},
    {"CommentInsideAnInstruction", "<?<!--?>-->", "<?<!--?>--&gt;"},
    {"CommentEndsAtTheFirstEnd", "<!--a-->b-->", "<!--a-->b--&gt;"},
    // Tokens that overlap.
    {"OverlappingInstruction", "<?>", "<?>"},
    {"OverlappingInstructionAmongText", "&<?>&", "&amp;<?>&amp;"},
    {"OverlappingInstructionEndsFirst", "<?>a?>", "<?>a?&gt;"},
    {"OverlappingComment", "<!-->", "<!-->"},
    {"OverlappingCommentOfThreeHyphens", "<!--->", "<!--->"},
    {"OverlappingCommentEndsFirst", "<!-->a-->", "<!-->a--&gt;"},
    {"SectionCannotOverlap", "<![CDATA[>", "&lt;![CDATA[&gt;"},
    // Torn blocks.
    {"SectionWithoutEnd", "<![CDATA[a", "&lt;![CDATA[a"},
    {"CommentWithoutEnd", "<!--a", "&lt;!--a"},
    {"InstructionWithoutEnd", "<?a", "&lt;?a"},
    {"SectionEndAlone", "a]]>", "a]]&gt;"},
    {"CommentEndAlone", "a-->", "a--&gt;"},
    {"InstructionEndAlone", "a?>", "a?&gt;"},
    {"EndBeforeStart", "--><!--", "--&gt;&lt;!--"},
    {"SectionEndOfTwoBrackets", "<![CDATA[a]>", "&lt;![CDATA[a]&gt;"},
    {"SectionInLowerCase", "<![cdata[a]]>", "&lt;![cdata[a]]&gt;"},
    {"CommentStartOfOneHyphen", "<!-a-->", "&lt;!-a--&gt;"},
    {"TornBlockBeforeAWholeOne", "<![CDATA[<!--&-->", "&lt;![CDATA[<!--&-->"},
    {"TornCommentBeforeAWholeInstruction", "<!--<?&?>&", "&lt;!--<?&?>&amp;"},
    {"TornBlockBehindAWholeOne", "<!--&--><?&", "<!--&-->&lt;?&amp;"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCEkaCommonEscapeTest,
                         testing::ValuesIn(ESCAPE_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

std::string Repeat(std::string_view strText, std::size_t nTimes)
{
    std::string strOut;
    strOut.reserve(strText.size() * nTimes);
    for (std::size_t nTime = 0; nTime < nTimes; ++nTime)
        strOut += strText;
    return strOut;
}

// A megabyte each: a search that starts again at every block doesn't come to an end.
TEST_F(KZCEkaCommonTest, AMegabyteOfBlocksWithTornStartsStays)
{
    const std::string strText = Repeat("<?<!--?>", 131072);
    EXPECT_TRUE(KZCEkaCommon::SpecialEncoding(strText) == strText);
}

TEST_F(KZCEkaCommonTest, AMegabyteOfBlocksWithAFarSectionStays)
{
    const std::string strText = "<![CDATA[" + Repeat("<?<!--?>", 131072) + "]]>";
    EXPECT_TRUE(KZCEkaCommon::SpecialEncoding(strText) == strText);
}

TEST_F(KZCEkaCommonTest, AMegabyteOfBlocksBeforeAFarBlockStays)
{
    const std::string strText = Repeat("<?a?>", 209715) + "<!--&-->";
    EXPECT_TRUE(KZCEkaCommon::SpecialEncoding(strText) == strText);
}

TEST_F(KZCEkaCommonTest, AMegabyteOfTornCommentsIsEscaped)
{
    EXPECT_TRUE(KZCEkaCommon::SpecialEncoding(Repeat("<!--", 262144)) == Repeat("&lt;!--", 262144));
}

TEST_F(KZCEkaCommonTest, AMegabyteOfTornStartsOfAllKindsIsEscaped)
{
    EXPECT_TRUE(KZCEkaCommon::SpecialEncoding(Repeat("<![CDATA[<!--<?", 69905)) ==
                Repeat("&lt;![CDATA[&lt;!--&lt;?", 69905));
}

TEST_F(KZCEkaCommonTest, AMegabyteOfEndTokensIsEscaped)
{
    EXPECT_TRUE(KZCEkaCommon::SpecialEncoding(Repeat("]]>--", 209715)) ==
                Repeat("]]&gt;--", 209715));
}

// --- resources ---

TEST_F(KZCEkaCommonTest, LoadResoucePathFindsTheDefinitionIndex)
{
    const Bundle bundle;
    EXPECT_EQ(KZCEkaCommon::LoadResoucePath(202, "XML_DAT"), bundle.Path("KZEkaDefine.xml"));
}

TEST_F(KZCEkaCommonTest, LoadResoucePathDoesntReadTheResourceType)
{
    const Bundle bundle;
    EXPECT_EQ(KZCEkaCommon::LoadResoucePath(203, nullptr), bundle.Path("TaxOffices.xml"));
    EXPECT_EQ(KZCEkaCommon::LoadResoucePath(203, "x"), bundle.Path("TaxOffices.xml"));
}

TEST_F(KZCEkaCommonTest, LoadResoucePathOfAnyOtherIdIsEmpty)
{
    const Bundle bundle;
    EXPECT_EQ(KZCEkaCommon::LoadResoucePath(201, "XML_DAT"), "");
    EXPECT_EQ(KZCEkaCommon::LoadResoucePath(204, "XML_DAT"), "");
    EXPECT_EQ(KZCEkaCommon::LoadResoucePath(0, "XML_DAT"), "");
}

TEST_F(KZCEkaCommonTest, LoadResoucePathOfAMissingFileIsEmpty)
{
    const Bundle bundle(std::nullopt, SMALL_TAX_OFFICES);
    EXPECT_EQ(KZCEkaCommon::LoadResoucePath(202, "XML_DAT"), "");
}

class KZCEkaCommonSearchTest : public ResetState
{
protected:
    KZCEkaCommonSearchTest()
    {
        m_folder.Write("definitions/PGE2015vld.xml", "");
        m_folder.Write("definitions/PGE2015tpl.xml", "");
        m_folder.Write("definitions/PGE2025vld.xml", "");
        m_folder.Write("definitions/sub/PGE2030vld.xml", "");
    }

    std::string Search(const std::string& strFirst, const std::string& strSecond) const
    {
        return KZCEkaCommon::searchProperties(m_folder.Path("definitions"), strFirst, strSecond);
    }

    TempFolder m_folder;
};

TEST_F(KZCEkaCommonSearchTest, FindsTheFileThatHoldsBothKeys)
{
    EXPECT_EQ(Search("PGE2015", "vld.xml"), m_folder.Path("definitions/PGE2015vld.xml"));
    EXPECT_EQ(Search("PGE2015", "tpl.xml"), m_folder.Path("definitions/PGE2015tpl.xml"));
}

TEST_F(KZCEkaCommonSearchTest, TwoEmptyKeysFitTheFirstFileByName)
{
    EXPECT_EQ(Search("", ""), m_folder.Path("definitions/PGE2015tpl.xml"));
}

TEST_F(KZCEkaCommonSearchTest, FirstByNameWinsWhicheverWasMadeFirst)
{
    for (const char* szName : {"m", "c", "z", "A", "b", "k"})
        m_folder.Write(std::string("definitions/") + szName + "PGE2040vld.xml", "");
    EXPECT_EQ(Search("PGE2040", "vld.xml"), m_folder.Path("definitions/APGE2040vld.xml"));
}

TEST_F(KZCEkaCommonSearchTest, AnEmptyFirstKeyFitsEveryFile)
{
    EXPECT_EQ(Search("", "vld.xml"), m_folder.Path("definitions/PGE2015vld.xml"));
}

TEST_F(KZCEkaCommonSearchTest, AnEmptySecondKeyFitsEveryFile)
{
    EXPECT_EQ(Search("PGE2025", ""), m_folder.Path("definitions/PGE2025vld.xml"));
}

TEST_F(KZCEkaCommonSearchTest, AKeyInTheFoldersNameFitsEveryFile)
{
    EXPECT_EQ(Search("definitions", "vld.xml"), m_folder.Path("definitions/PGE2015vld.xml"));
}

TEST_F(KZCEkaCommonSearchTest, KeysAreTakenInTheirCase)
{
    EXPECT_EQ(Search("pge2015", "vld.xml"), "");
}

TEST_F(KZCEkaCommonSearchTest, BothKeysHaveToFitOneFile)
{
    EXPECT_EQ(Search("PGE2025", "tpl.xml"), "");
}

TEST_F(KZCEkaCommonSearchTest, SubfoldersAreNotSearched)
{
    EXPECT_EQ(Search("PGE2030", "vld.xml"), "");
}

TEST_F(KZCEkaCommonSearchTest, AMissingFolderGivesTheEmptyText)
{
    EXPECT_EQ(KZCEkaCommon::searchProperties(m_folder.Path("none"), "", ""), "");
}

TEST_F(KZCEkaCommonSearchTest, AnEmptyFolderGivesTheEmptyText)
{
    const TempFolder folder;
    EXPECT_EQ(KZCEkaCommon::searchProperties(folder.Path(), "", ""), "");
}

}  // namespace
