#include "KZCEkaITDataCrossBorder.h"

#include <gtest/gtest.h>

#include <string>

#include "Fault.h"
#include "support/FamilyItData.h"
#include "support/Raised.h"

namespace {

using enum KZCEkaITDataFinance_t;

class ItDataCrossBorderTest : public ResetState
{
protected:
    ItDataCrossBorderTest()
    {
        KZCEkaTaxOffices::instance()->Initialize();
        m_it.Initialize(true);
    }

    std::string Set(KZCEkaITDataFinance_t eId, const std::string& strValue)
    {
        return Told([&] { return m_it.SetITDataCrossBorder(eId, strValue.c_str()); });
    }

    Bundle m_bundle;
    KZCEkaITDataCrossBorder m_it;
};

// ---- the element -------------------------------------------------------------------------------

TEST_F(ItDataCrossBorderTest, NothingSetGivesAnEmptyElement)
{
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TEST_F(ItDataCrossBorderTest, EveryFieldStandsInTheOrderOfTheTable)
{
    for (const auto& [eId, strValue] : FullItValues("PGE1660"))
        EXPECT_EQ(Set(eId, strValue), PASSES);
    EXPECT_EQ(m_it.GetXml(), FullItSection("PGE1660"));
}

TEST_F(ItDataCrossBorderTest, DayHoldsTheChildrenThatHaveAValue)
{
    EXPECT_EQ(Set(IT_DD, "9"), PASSES);
    EXPECT_EQ(Set(IT_ERA, "1"), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"><TEISYUTSU_DAY ID="TEISYUTSU_DAY">)"
                             R"(<gen:era>1</gen:era><gen:dd>9</gen:dd></TEISYUTSU_DAY></IT>)");
}

TEST_F(ItDataCrossBorderTest, EmptyAgentNameGivesNoElement)
{
    EXPECT_EQ(Set(IT_DAIRI_NM, ""), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TEST_F(ItDataCrossBorderTest, SoftwareNameGivesNoElement)
{
    EXPECT_EQ(Set(IT_SOFT_NAME, "帳票ソフト"), PASSES);
    EXPECT_EQ(m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
    EXPECT_STREQ(m_it.GetITDataCrossBorder(IT_SOFT_NAME), "帳票ソフト");
}

// ---- values ------------------------------------------------------------------------------------

TEST_F(ItDataCrossBorderTest, FieldZeroIsEmpty)
{
    EXPECT_STREQ(m_it.GetITDataCrossBorder(IT_NONE), "");
}

TEST_F(ItDataCrossBorderTest, RefusedValueLeavesAFilledFieldAsItWas)
{
    EXPECT_EQ(Set(IT_ZIP1, "123"), PASSES);
    EXPECT_EQ(Set(IT_ZIP1, "12"), "refuses 9999-00012-HE70008E");
    EXPECT_STREQ(m_it.GetITDataCrossBorder(IT_ZIP1), "123");
}

TEST_F(ItDataCrossBorderTest, InitializeEmptiesTheFieldsAndTakesThePath)
{
    EXPECT_EQ(Set(IT_ERA, "5"), PASSES);
    EXPECT_TRUE(m_it.IsPublic());
    m_it.Initialize(false);
    EXPECT_FALSE(m_it.IsPublic());
    EXPECT_STREQ(m_it.GetITDataCrossBorder(IT_ERA), "");
}

TEST_F(ItDataCrossBorderTest, FieldsWithoutACheckTakeAnything)
{
    for (const int nId : {0, 1, 3, 9, 13, 21})
        EXPECT_EQ(Set(static_cast<KZCEkaITDataFinance_t>(nId), "\x01"), PASSES) << nId;
}

TEST_F(ItDataCrossBorderTest, FieldBehindTheLastRaises)
{
    EXPECT_EQ(Raised([&] {
                  static_cast<void>(
                      m_it.SetITDataCrossBorder(static_cast<KZCEkaITDataFinance_t>(24), "x"));
              }),
              FAULT);
}

TEST_F(ItDataCrossBorderTest, EveryProcedureOfTheFamilyIsTaken)
{
    for (const char* szProcedure : {"PGE1650", "PGE1660"})
        EXPECT_EQ(Set(IT_PROCEDURE_CD, szProcedure), PASSES) << szProcedure;
}

TEST_F(ItDataCrossBorderTest, LastDayOfNoMonthIsTaken)
{
    // The calendar isn't asked.
    EXPECT_EQ(Set(IT_MM, "2"), PASSES);
    EXPECT_EQ(Set(IT_DD, "31"), PASSES);
}

// ---- argument numbers --------------------------------------------------------------------------

class ItDataCrossBorderColumnTest : public ItDataCrossBorderTest,
                                    public testing::WithParamInterface<ItColumnCase>
{};

TEST_P(ItDataCrossBorderColumnTest, RefusalNamesTheArgumentOfThePlainPath)
{
    EXPECT_EQ(Set(GetParam().eId, GetParam().strValue),
              std::string("refuses 9999-") + GetParam().szPlain);
}

TEST_P(ItDataCrossBorderColumnTest, RefusalNamesTheArgumentOfTheElPath)
{
    m_it.Initialize(false);
    EXPECT_EQ(Set(GetParam().eId, GetParam().strValue),
              std::string("refuses 9999-") + GetParam().szEl);
}

const ItColumnCase COLUMN_CASES[] = {
    {"NoTaxOffice", IT_ZEIMUSHO_CD, "", "00003-HE70001E", "00002-HE70001E"},
    {"TaxOfficeOfAnotherType", IT_ZEIMUSHO_CD, "00102", "00003-HE70011E", "00002-HE70011E"},
    {"NoEra", IT_ERA, "", "00004-HE70001E", "00003-HE70001E"},
    {"EraSix", IT_ERA, "6", "00004-HE70009E", "00003-HE70009E"},
    {"EraOfTwoDigits", IT_ERA, "01", "00004-HE70008E", "00003-HE70008E"},
    {"NoYear", IT_YY, "", "00005-HE70001E", "00004-HE70001E"},
    {"YearZero", IT_YY, "0", "00005-HE70009E", "00004-HE70009E"},
    {"YearOfThreeDigits", IT_YY, "100", "00005-HE70007E", "00004-HE70007E"},
    {"NoMonth", IT_MM, "", "00006-HE70001E", "00005-HE70001E"},
    {"MonthThirteen", IT_MM, "13", "00006-HE70009E", "00005-HE70009E"},
    {"NoDay", IT_DD, "", "00007-HE70001E", "00006-HE70001E"},
    {"LetterInADay", IT_DD, "1x", "00007-HE70004E", "00006-HE70004E"},
    {"DayThirtyTwo", IT_DD, "32", "00007-HE70009E", "00006-HE70009E"},
    {"NoFilerId", IT_NOZEISHA_ID, "", "00008-HE70001E", "00007-HE70001E"},
    {"ShortPersonalNumber", IT_KOJINBANGO, "12345678901", "00009-HE70008E", "00008-HE70008E"},
    {"LetterInACorporateNumber", IT_HOJINBANGO, "123456789012x", "00010-HE70004E",
     "00009-HE70004E"},
    {"NoName", IT_NOZEISHA_NM, "", "00011-HE70001E", "00010-HE70001E"},
    {"LongName", IT_NOZEISHA_NM, RepeatText("青", 31), "00011-HE70007E", "00010-HE70007E"},
    {"LongZip1", IT_ZIP1, "1234", "00012-HE70008E", "00011-HE70008E"},
    {"LetterInZip2", IT_ZIP2, "123x", "00013-HE70004E", "00012-HE70004E"},
    {"ShortZip2", IT_ZIP2, "123", "00013-HE70008E", "00012-HE70008E"},
    {"NoAddress", IT_NOZEISHA_ADR, "", "00014-HE70001E", "00013-HE70001E"},
    {"LongAddress", IT_NOZEISHA_ADR, RepeatText("市", 101), "00014-HE70007E", "00013-HE70007E"},
    {"LongRepresentative", IT_DAIHYO_NM, RepeatText("太", 31), "00015-HE70007E", "00014-HE70007E"},
    {"ShortAgentId", IT_DAIRI_ID, "1", "00016-HE70008E", "00015-HE70008E"},
    {"LongAgentName", IT_DAIRI_NM, RepeatText("白", 31), "00017-HE70007E", "00016-HE70007E"},
    {"LongAgentAddress", IT_DAIRI_ADR, RepeatText("市", 101), "00018-HE70007E", "00017-HE70007E"},
    {"NoProcedure", IT_PROCEDURE_CD, "", "00019-HE70010E", "00018-HE70010E"},
    {"ProcedureOfTheBaseFamily", IT_PROCEDURE_CD, "PGE5010", "00019-HE70010E", "00018-HE70010E"},
    {"ProcedureOfTheOtherFamily", IT_PROCEDURE_CD, "PGE2015", "00019-HE70010E", "00018-HE70010E"},
    {"NoSoftwareName", IT_SOFT_NAME, "", "00020-HE70001E", "00019-HE70001E"},
    {"LongSoftwareName", IT_SOFT_NAME, RepeatText("ソ", 31), "00020-HE70007E", "00019-HE70007E"},
};

INSTANTIATE_TEST_SUITE_P(Fields,
                         ItDataCrossBorderColumnTest,
                         testing::ValuesIn(COLUMN_CASES),
                         CaseName());

// ---- fields that may be empty ------------------------------------------------------------------

struct OptionalCase
{
    const char* szName;
    KZCEkaITDataFinance_t eId;
};

void PrintTo(const OptionalCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ItDataCrossBorderOptionalTest : public ItDataCrossBorderTest,
                                      public testing::WithParamInterface<OptionalCase>
{};

TEST_P(ItDataCrossBorderOptionalTest, MayBeEmpty)
{
    EXPECT_EQ(Set(GetParam().eId, ""), PASSES);
}

constexpr OptionalCase OPTIONAL_CASES[] = {
    {"PersonalNumber", IT_KOJINBANGO},
    {"CorporateNumber", IT_HOJINBANGO},
    {"Zip1", IT_ZIP1},
    {"Zip2", IT_ZIP2},
    {"Representative", IT_DAIHYO_NM},
    {"AgentId", IT_DAIRI_ID},
    {"AgentName", IT_DAIRI_NM},
    {"AgentAddress", IT_DAIRI_ADR},
};

INSTANTIATE_TEST_SUITE_P(Fields,
                         ItDataCrossBorderOptionalTest,
                         testing::ValuesIn(OPTIONAL_CASES),
                         CaseName());

}  // namespace
