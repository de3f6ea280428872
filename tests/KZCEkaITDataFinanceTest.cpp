#include "KZCEkaITDataFinance.h"

#include <gtest/gtest.h>

#include <string>

#include "support/FamilyItData.h"

namespace {

using enum KZCEkaITDataFinance_t;

using ItDataFinanceTest = FamilyItData<FinanceItData>;

// ---- argument numbers --------------------------------------------------------------------------

class ItDataFinanceColumnTest : public ItDataFinanceTest,
                                public testing::WithParamInterface<ItColumnCase>
{};

TEST_P(ItDataFinanceColumnTest, RefusalNamesTheArgumentOfThePlainPath)
{
    EXPECT_EQ(Set(GetParam().eId, GetParam().strValue),
              std::string("refuses 9999-") + GetParam().szPlain);
}

TEST_P(ItDataFinanceColumnTest, RefusalNamesTheArgumentOfTheElPath)
{
    m_it.Initialize(false);
    EXPECT_EQ(Set(GetParam().eId, GetParam().strValue),
              std::string("refuses 9999-") + GetParam().szEl);
}

const ItColumnCase COLUMN_CASES[] = {
    {"NoTaxOffice", IT_ZEIMUSHO_CD, "", "00003-HE70001E", "00002-HE70001E"},
    {"TaxOfficeOfAnotherType", IT_ZEIMUSHO_CD, "00102", "00003-HE70011E", "00002-HE70011E"},
    {"NoEra", IT_ERA, "", "00014-HE70001E", "00013-HE70001E"},
    {"EraSix", IT_ERA, "6", "00014-HE70009E", "00013-HE70009E"},
    {"EraOfTwoDigits", IT_ERA, "01", "00014-HE70008E", "00013-HE70008E"},
    {"NoYear", IT_YY, "", "00015-HE70001E", "00014-HE70001E"},
    {"YearZero", IT_YY, "0", "00015-HE70009E", "00014-HE70009E"},
    {"YearOfThreeDigits", IT_YY, "100", "00015-HE70007E", "00014-HE70007E"},
    {"NoMonth", IT_MM, "", "00016-HE70001E", "00015-HE70001E"},
    {"MonthThirteen", IT_MM, "13", "00016-HE70009E", "00015-HE70009E"},
    {"NoDay", IT_DD, "", "00017-HE70001E", "00016-HE70001E"},
    {"LetterInADay", IT_DD, "1x", "00017-HE70004E", "00016-HE70004E"},
    {"DayThirtyTwo", IT_DD, "32", "00017-HE70009E", "00016-HE70009E"},
    {"NoFilerId", IT_NOZEISHA_ID, "", "00004-HE70001E", "00003-HE70001E"},
    {"ShortPersonalNumber", IT_KOJINBANGO, "12345678901", "00005-HE70008E", "00004-HE70008E"},
    {"LetterInACorporateNumber", IT_HOJINBANGO, "123456789012x", "00006-HE70004E",
     "00005-HE70004E"},
    {"NoName", IT_NOZEISHA_NM, "", "00007-HE70001E", "00006-HE70001E"},
    {"LongName", IT_NOZEISHA_NM, RepeatText("青", 31), "00007-HE70007E", "00006-HE70007E"},
    {"LongZip1", IT_ZIP1, "1234", "00019-HE70008E", "00018-HE70008E"},
    {"LetterInZip2", IT_ZIP2, "123x", "00020-HE70004E", "00019-HE70004E"},
    {"ShortZip2", IT_ZIP2, "123", "00020-HE70008E", "00019-HE70008E"},
    {"NoAddress", IT_NOZEISHA_ADR, "", "00008-HE70001E", "00007-HE70001E"},
    {"LongAddress", IT_NOZEISHA_ADR, RepeatText("市", 101), "00008-HE70007E", "00007-HE70007E"},
    {"LongRepresentative", IT_DAIHYO_NM, RepeatText("太", 31), "00009-HE70007E", "00008-HE70007E"},
    {"ShortAgentId", IT_DAIRI_ID, "1", "00010-HE70008E", "00009-HE70008E"},
    {"LongAgentName", IT_DAIRI_NM, RepeatText("白", 31), "00011-HE70007E", "00010-HE70007E"},
    {"LongAgentAddress", IT_DAIRI_ADR, RepeatText("市", 101), "00012-HE70007E", "00011-HE70007E"},
    {"NoProcedure", IT_PROCEDURE_CD, "", "00013-HE70010E", "00012-HE70010E"},
    {"ProcedureOfTheBaseFamily", IT_PROCEDURE_CD, "PGE5010", "00013-HE70010E", "00012-HE70010E"},
    {"ProcedureOfTheOtherFamily", IT_PROCEDURE_CD, "PGE1650", "00013-HE70010E", "00012-HE70010E"},
    {"NoSoftwareName", IT_SOFT_NAME, "", "00018-HE70001E", "00017-HE70001E"},
    {"LongSoftwareName", IT_SOFT_NAME, RepeatText("ソ", 31), "00018-HE70007E", "00017-HE70007E"},
};

INSTANTIATE_TEST_SUITE_P(Fields,
                         ItDataFinanceColumnTest,
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

class ItDataFinanceOptionalTest : public ItDataFinanceTest,
                                  public testing::WithParamInterface<OptionalCase>
{};

TEST_P(ItDataFinanceOptionalTest, MayBeEmpty)
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
                         ItDataFinanceOptionalTest,
                         testing::ValuesIn(OPTIONAL_CASES),
                         CaseName());

}  // namespace
