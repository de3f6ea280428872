#include "KZCEkaITData.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

std::string Repeat(const char* szText, int nTimes)
{
    std::string strAll;
    for (int n = 0; n < nTimes; ++n)
        strAll += szText;
    return strAll;
}

class ItDataTest : public ResetState
{
protected:
    ItDataTest()
    {
        KZCEkaTaxOffices::instance()->Initialize();
        m_it.Initialize(true);
    }

    std::string Set(KZCEkaITData_t eId, const std::string& strValue)
    {
        return Told([&] { return m_it.SetITData(eId, strValue.c_str()); });
    }

    Bundle m_bundle;
    KZCEkaITData m_it;
};

// ---- the element -------------------------------------------------------------------------------

TEST_F(ItDataTest, NothingSetGivesAnEmptyElement)
{
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TEST_F(ItDataTest, EveryFieldStandsInTheOrderOfTheTable)
{
    EXPECT_EQ(Set(IT_PROCEDURE_CD, "PGE5030"), PASSES);
    EXPECT_EQ(Set(IT_SOFT_NAME, "帳票ソフト"), PASSES);
    EXPECT_EQ(Set(IT_DAIRI_ADR, "紅葉市4-5"), PASSES);
    EXPECT_EQ(Set(IT_DAIRI_NM, "白樺税務事務所"), PASSES);
    EXPECT_EQ(Set(IT_DAIRI_ID, "6543210987654321"), PASSES);
    EXPECT_EQ(Set(IT_DAIHYO_NM, "青葉太郎"), PASSES);
    EXPECT_EQ(Set(IT_NOZEISHA_ADR, "青葉市1-2-3"), PASSES);
    EXPECT_EQ(Set(IT_NOZEISHA_NM, "青葉商会"), PASSES);
    EXPECT_EQ(Set(IT_HOJINBANGO, "1234567890123"), PASSES);
    EXPECT_EQ(Set(IT_KOJINBANGO, "123456789012"), PASSES);
    EXPECT_EQ(Set(IT_NOZEISHA_ID, "1234567890123456"), PASSES);
    EXPECT_EQ(Set(IT_ZEIMUSHO_CD, "00101"), PASSES);
    EXPECT_EQ(m_it.GetXml(),
              R"(<IT VR="1.3" id="IT">)"
              R"(<ZEIMUSHO ID="ZEIMUSHO"><gen:zeimusho_CD>00101</gen:zeimusho_CD></ZEIMUSHO>)"
              R"(<NOZEISHA_ID ID="NOZEISHA_ID">1234567890123456</NOZEISHA_ID>)"
              R"(<NOZEISHA_BANGO ID="NOZEISHA_BANGO"><gen:kojinbango>123456789012</gen:kojinbango>)"
              R"(<gen:hojinbango>1234567890123</gen:hojinbango></NOZEISHA_BANGO>)"
              R"(<NOZEISHA_NM ID="NOZEISHA_NM">青葉商会</NOZEISHA_NM>)"
              R"(<NOZEISHA_ADR ID="NOZEISHA_ADR">青葉市1-2-3</NOZEISHA_ADR>)"
              R"(<DAIHYO_NM ID="DAIHYO_NM">青葉太郎</DAIHYO_NM>)"
              R"(<DAIRI_ID ID="DAIRI_ID">6543210987654321</DAIRI_ID>)"
              R"(<DAIRI_NM ID="DAIRI_NM">白樺税務事務所</DAIRI_NM>)"
              R"(<DAIRI_ADR ID="DAIRI_ADR">紅葉市4-5</DAIRI_ADR>)"
              R"(<TETSUZUKI ID="TETSUZUKI"><procedure_CD>PGE5030</procedure_CD></TETSUZUKI>)"
              R"(</IT>)");
}

TEST_F(ItDataTest, PersonalNumberAloneStandsInItsGroup)
{
    EXPECT_EQ(Set(IT_KOJINBANGO, "123456789012"), PASSES);
    EXPECT_EQ(m_it.GetXml(),
              R"(<IT VR="1.3" id="IT"><NOZEISHA_BANGO ID="NOZEISHA_BANGO">)"
              R"(<gen:kojinbango>123456789012</gen:kojinbango></NOZEISHA_BANGO></IT>)");
}

TEST_F(ItDataTest, CorporateNumberAloneStandsInItsGroup)
{
    EXPECT_EQ(Set(IT_HOJINBANGO, "1234567890123"), PASSES);
    EXPECT_EQ(m_it.GetXml(),
              R"(<IT VR="1.3" id="IT"><NOZEISHA_BANGO ID="NOZEISHA_BANGO">)"
              R"(<gen:hojinbango>1234567890123</gen:hojinbango></NOZEISHA_BANGO></IT>)");
}

TEST_F(ItDataTest, SoftwareNameGivesNoElement)
{
    EXPECT_EQ(Set(IT_SOFT_NAME, "帳票ソフト"), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TEST_F(ItDataTest, EmptyAgentNameGivesNoElement)
{
    EXPECT_EQ(Set(IT_DAIRI_NM, ""), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TEST_F(ItDataTest, EmptyTaxOfficeGivesNoGroup)
{
    EXPECT_EQ(Set(IT_DAIHYO_NM, "青葉太郎"), PASSES);
    EXPECT_EQ(m_it.GetXml(),
              R"(<IT VR="1.3" id="IT"><DAIHYO_NM ID="DAIHYO_NM">青葉太郎</DAIHYO_NM></IT>)");
}

TEST_F(ItDataTest, SpecialCharactersOfANameAreEscaped)
{
    EXPECT_EQ(Set(IT_NOZEISHA_NM, "A<B>&'\"C"), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"><NOZEISHA_NM ID="NOZEISHA_NM">)"
                             R"(A&lt;B&gt;&amp;&apos;&quot;C</NOZEISHA_NM></IT>)");
}

TEST_F(ItDataTest, CommentInANameStaysAComment)
{
    EXPECT_EQ(Set(IT_NOZEISHA_NM, "A<!-- & -->B&"), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"><NOZEISHA_NM ID="NOZEISHA_NM">)"
                             R"(A<!-- & -->B&amp;</NOZEISHA_NM></IT>)");
}

TEST_F(ItDataTest, ValueOfAGroupStandsBeforeItsChildren)
{
    EXPECT_EQ(Set(IT_ZEIMUSHO, "own&"), PASSES);
    EXPECT_EQ(Set(IT_ZEIMUSHO_CD, "00103"), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"><ZEIMUSHO ID="ZEIMUSHO">own&amp;)"
                             R"(<gen:zeimusho_CD>00103</gen:zeimusho_CD></ZEIMUSHO></IT>)");
}

TEST_F(ItDataTest, WritingTwiceGivesTheSame)
{
    EXPECT_EQ(Set(IT_NOZEISHA_NM, "青葉商会"), PASSES);
    EXPECT_EQ(m_it.GetXml(), m_it.GetXml());
}

// ---- values ------------------------------------------------------------------------------------

TEST_F(ItDataTest, FieldZeroIsEmpty)
{
    EXPECT_STREQ(m_it.GetITData(IT_NONE), "");
}

TEST_F(ItDataTest, StoredValueIsGivenBackUnescaped)
{
    EXPECT_EQ(Set(IT_NOZEISHA_NM, "A&B"), PASSES);
    EXPECT_STREQ(m_it.GetITData(IT_NOZEISHA_NM), "A&B");
}

TEST_F(ItDataTest, RefusedValueLeavesAnEmptyFieldEmpty)
{
    EXPECT_EQ(Set(IT_NOZEISHA_ID, "12"), "refuses 9999-00004-HE70008E");
    EXPECT_STREQ(m_it.GetITData(IT_NOZEISHA_ID), "");
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TEST_F(ItDataTest, RefusedValueLeavesAFilledFieldAsItWas)
{
    EXPECT_EQ(Set(IT_NOZEISHA_ID, "1234567890123456"), PASSES);
    EXPECT_EQ(Set(IT_NOZEISHA_ID, "x"), "refuses 9999-00004-HE70004E");
    EXPECT_STREQ(m_it.GetITData(IT_NOZEISHA_ID), "1234567890123456");
}

TEST_F(ItDataTest, FieldWithoutACheckTakesAnything)
{
    EXPECT_EQ(Set(IT_NOZEISHA_BANGO, "\x01"), PASSES);
    EXPECT_STREQ(m_it.GetITData(IT_NOZEISHA_BANGO), "\x01");
}

TEST_F(ItDataTest, InitializeEmptiesTheFieldsAndTakesThePath)
{
    EXPECT_EQ(Set(IT_NOZEISHA_NM, "青葉商会"), PASSES);
    EXPECT_TRUE(m_it.IsPublic());
    m_it.Initialize(false);
    EXPECT_FALSE(m_it.IsPublic());
    EXPECT_STREQ(m_it.GetITData(IT_NOZEISHA_NM), "");
}

TEST_F(ItDataTest, ClearEmptiesTheFields)
{
    EXPECT_EQ(Set(IT_NOZEISHA_NM, "青葉商会"), PASSES);
    m_it.Clear();
    m_it.Clear();
    EXPECT_STREQ(m_it.GetITData(IT_NOZEISHA_NM), "");
}

TEST_F(ItDataTest, NewSectionIsNotPublicAndHasNoFields)
{
    const KZCEkaITData it;
    EXPECT_FALSE(it.IsPublic());
    EXPECT_STREQ(it.GetITData(IT_SOFT_NAME), "");
}

TEST_F(ItDataTest, ValueIsCheckedAsUtf8OutsideACheck)
{
    EXPECT_EQ(Set(IT_NOZEISHA_NM, Repeat("青", 30)), PASSES);
    EXPECT_EQ(Set(IT_NOZEISHA_NM, Repeat("青", 31)), "refuses 9999-00007-HE70007E");
}

// ---- argument numbers --------------------------------------------------------------------------

struct ColumnCase
{
    const char* szName;
    KZCEkaITData_t eId;
    std::string strValue;
    const char* szPlain;
    const char* szEl;
};

void PrintTo(const ColumnCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ItDataColumnTest : public ItDataTest, public testing::WithParamInterface<ColumnCase>
{};

TEST_P(ItDataColumnTest, RefusalNamesTheArgumentOfThePlainPath)
{
    EXPECT_EQ(Set(GetParam().eId, GetParam().strValue),
              std::string("refuses 9999-") + GetParam().szPlain);
}

TEST_P(ItDataColumnTest, RefusalNamesTheArgumentOfTheElPath)
{
    m_it.Initialize(false);
    EXPECT_EQ(Set(GetParam().eId, GetParam().strValue),
              std::string("refuses 9999-") + GetParam().szEl);
}

const ColumnCase COLUMN_CASES[] = {
    {"NoTaxOffice", IT_ZEIMUSHO_CD, "", "00003-HE70001E", "00002-HE70001E"},
    {"TaxOfficeOfAnotherType", IT_ZEIMUSHO_CD, "00102", "00003-HE70011E", "00002-HE70011E"},
    {"NoFilerId", IT_NOZEISHA_ID, "", "00004-HE70001E", "00003-HE70001E"},
    {"ShortPersonalNumber", IT_KOJINBANGO, "12345678901", "00005-HE70008E", "00004-HE70008E"},
    {"LetterInACorporateNumber", IT_HOJINBANGO, "123456789012x", "00006-HE70004E",
     "00005-HE70004E"},
    {"NoName", IT_NOZEISHA_NM, "", "00007-HE70001E", "00006-HE70001E"},
    {"LineFeedInAName", IT_NOZEISHA_NM, "a\nb", "00007-HE70006E", "00006-HE70006E"},
    {"NoAddress", IT_NOZEISHA_ADR, "", "00008-HE70001E", "00007-HE70001E"},
    {"LongAddress", IT_NOZEISHA_ADR, Repeat("市", 101), "00008-HE70007E", "00007-HE70007E"},
    {"LongRepresentative", IT_DAIHYO_NM, Repeat("太", 31), "00009-HE70007E", "00008-HE70007E"},
    {"ShortAgentId", IT_DAIRI_ID, "1", "00010-HE70008E", "00009-HE70008E"},
    {"LongAgentName", IT_DAIRI_NM, Repeat("白", 31), "00011-HE70007E", "00010-HE70007E"},
    {"LongAgentAddress", IT_DAIRI_ADR, Repeat("市", 101), "00012-HE70007E", "00011-HE70007E"},
    {"NoProcedure", IT_PROCEDURE_CD, "", "00013-HE70010E", "00012-HE70010E"},
    {"ProcedureOfAnotherFamily", IT_PROCEDURE_CD, "PGE2015", "00013-HE70010E", "00012-HE70010E"},
    // The software name is no argument of the EL path, so that its number there is -1.
    {"NoSoftwareName", IT_SOFT_NAME, "", "00014-HE70001E", "-0001-HE70001E"},
};

INSTANTIATE_TEST_SUITE_P(Fields, ItDataColumnTest, testing::ValuesIn(COLUMN_CASES), CaseName());

struct OptionalCase
{
    const char* szName;
    KZCEkaITData_t eId;
};

void PrintTo(const OptionalCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ItDataOptionalTest : public ItDataTest, public testing::WithParamInterface<OptionalCase>
{};

TEST_P(ItDataOptionalTest, MayBeEmpty)
{
    EXPECT_EQ(Set(GetParam().eId, ""), PASSES);
}

constexpr OptionalCase OPTIONAL_CASES[] = {
    {"PersonalNumber", IT_KOJINBANGO}, {"CorporateNumber", IT_HOJINBANGO},
    {"Representative", IT_DAIHYO_NM},  {"AgentId", IT_DAIRI_ID},
    {"AgentName", IT_DAIRI_NM},        {"AgentAddress", IT_DAIRI_ADR},
};

INSTANTIATE_TEST_SUITE_P(Fields, ItDataOptionalTest, testing::ValuesIn(OPTIONAL_CASES), CaseName());

}  // namespace
