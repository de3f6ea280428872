#include "KZCEkaITDataCrossBorder.h"

#include <gtest/gtest.h>

#include <string>

#include "support/FamilyItData.h"

namespace {

using enum KZCEkaITDataFinance_t;

using ItDataCrossBorderTest = FamilyItData<CrossBorderItData>;

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
