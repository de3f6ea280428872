#include "request/FilerFields.h"

#include <KZEkaMok/KZEkaMok.h>
#include <gtest/gtest.h>

#include <set>

#include "command/FilerOptions.h"
#include "form/DetailTable.h"
#include "request/FamilyOperations.h"
#include "support/TempFolder.h"

namespace host {
namespace {

struct FamilyFile
{
    Family eFamily;
    const char* szProcedure;
};

constexpr FamilyFile FAMILY_FILES[] = {
    {Family::Base, "PGE5020"}, {Family::Finance, "PGE2015"}, {Family::CrossBorder, "PGE1650"}};

std::string Repeated(const std::string& strText, int nTimes)
{
    std::string strAll;
    for (int n = 0; n < nTimes; ++n)
        strAll += strText;
    return strAll;
}

FilerFields RightFields(const char* szProcedure)
{
    FilerFields fields;
    fields[ZEIMUSHO_CD] = "90101";
    fields[NOZEISHA_ID] = "9900000000000017";
    fields[NOZEISHA_NM] = "見本";
    fields[NOZEISHA_ADR] = "例町";
    fields[TETSUZUKI] = szProcedure;
    fields[SOFT_NAME] = "soft";
    fields[TEISHUTSU_ERA] = "5";
    fields[TEISHUTSU_YEAR] = "8";
    fields[TEISHUTSU_MONTH] = "11";
    fields[TEISHUTSU_DAY] = "20";
    fields[NOZEISHA_ZIP1] = "999";
    fields[NOZEISHA_ZIP2] = "0101";
    return fields;
}

/// A value that the field's own checks refuse.
std::string WrongValue(FilerField eField)
{
    switch (eField) {
        case ZEIMUSHO_CD:
        case NOZEISHA_ID:
        case KOJIN_BANGO:
        case HOJIN_BANGO:
        case DAIRI_ID:
        case NOZEISHA_ZIP1:
        case NOZEISHA_ZIP2:
            return "1";
        case NOZEISHA_NM:
        case DAIHYO_NM:
        case DAIRI_NM:
        case SOFT_NAME:
            return Repeated("見", 31);
        case NOZEISHA_ADR:
        case DAIRI_ADR:
            return Repeated("見", 101);
        case TETSUZUKI:
            return "PGE9999";
        case TEISHUTSU_ERA:
            return "6";
        case TEISHUTSU_YEAR:
            return "0";
        case TEISHUTSU_MONTH:
            return "13";
        case TEISHUTSU_DAY:
            return "32";
        case FILER_FIELD_COUNT:
            break;
    }
    return {};
}

struct FieldCase
{
    FamilyFile file;
    FilerField eField;
};

std::vector<FieldCase> AllFields()
{
    std::vector<FieldCase> vecCase;
    for (const FamilyFile& file : FAMILY_FILES)
        for (const FilerField eField : ArgumentsOf(file.eFamily))
            vecCase.push_back({file, eField});
    return vecCase;
}

class FilerArgumentTest : public testing::TestWithParam<FieldCase>
{};

TEST_P(FilerArgumentTest, WrongFieldIsTheOneThatTheLibraryNames)
{
    const auto& [file, eField] = GetParam();
    const TempFolder folder;
    const std::string strCsv =
        std::string(KZEKAMOK_SAMPLES_DIR) + "/" + file.szProcedure + "_pass.csv";
    FilerFields fields = RightFields(file.szProcedure);
    fields[eField] = WrongValue(eField);
    KZICsvConvMokEka library;
    const FamilyOperations operations(library, file.eFamily);
    const auto pResult = operations.Convert(strCsv, folder.Path("out.mok"), fields);
    ASSERT_TRUE(pResult);
    EXPECT_EQ(pResult->GetResult(), PROCESS_FAIL);

    std::set<std::string> setOption;
    for (const DetailEntry& entry : ParseDetailTable(pResult->GetDetailErrorInfo())) {
        EXPECT_EQ(entry.lRecord, ARGUMENT_RECORD);
        const auto field = FieldOfArgument(file.eFamily, entry.lColumn);
        setOption.insert(field ? FILER_FIELDS[*field].szOption : "no field");
    }
    EXPECT_EQ(setOption, std::set<std::string>{FILER_FIELDS[eField].szOption});
    library.Terminate();
}

INSTANTIATE_TEST_SUITE_P(Fields,
                         FilerArgumentTest,
                         testing::ValuesIn(AllFields()),
                         [](const auto& testCase) {
                             return std::string(FamilyName(testCase.param.file.eFamily)) + "_" +
                                    FILER_FIELDS[testCase.param.eField].szKey;
                         });

class FamilyFileTest : public testing::TestWithParam<FamilyFile>
{};

TEST_P(FamilyFileTest, RightFieldsMakeTheDocumentOnDiskAndInMemory)
{
    const TempFolder folder;
    const std::string strCsv =
        std::string(KZEKAMOK_SAMPLES_DIR) + "/" + GetParam().szProcedure + "_pass.csv";
    const FilerFields fields = RightFields(GetParam().szProcedure);
    KZICsvConvMokEka library;
    const FamilyOperations operations(library, GetParam().eFamily);
    EXPECT_TRUE(Passed(operations.Convert(strCsv, folder.Path("out.mok"), fields)));
    EXPECT_TRUE(operations.CanMakeDocument(strCsv, fields));
    FilerFields wrong = fields;
    wrong[ZEIMUSHO_CD] = "1";
    EXPECT_FALSE(operations.CanMakeDocument(strCsv, wrong));
}

TEST_P(FamilyFileTest, ArgumentsBeforeAndBehindTheFieldsAreNoFields)
{
    const auto lCount = static_cast<long>(ArgumentsOf(GetParam().eFamily).size());
    EXPECT_EQ(FieldOfArgument(GetParam().eFamily, 0), std::nullopt);
    EXPECT_EQ(FieldOfArgument(GetParam().eFamily, MOK_PATH_ARGUMENT), std::nullopt);
    EXPECT_EQ(FieldOfArgument(GetParam().eFamily, 3), ZEIMUSHO_CD);
    EXPECT_EQ(FieldOfArgument(GetParam().eFamily, 3 + lCount), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Families,
                         FamilyFileTest,
                         testing::ValuesIn(FAMILY_FILES),
                         [](const auto& testCase) { return FamilyName(testCase.param.eFamily); });

TEST(FilerFieldsTest, OnlyTheBaseFamilyDoesWithoutDayAndPostalCode)
{
    for (const FilerField eField : {TEISHUTSU_ERA, TEISHUTSU_YEAR, TEISHUTSU_MONTH, TEISHUTSU_DAY,
                                    NOZEISHA_ZIP1, NOZEISHA_ZIP2}) {
        EXPECT_FALSE(Takes(Family::Base, eField));
        EXPECT_TRUE(Takes(Family::Finance, eField));
        EXPECT_TRUE(Takes(Family::CrossBorder, eField));
    }
    EXPECT_TRUE(Takes(Family::Base, SOFT_NAME));
}

struct DateCase
{
    const char* szName;
    const char* szDate;
    const char* szEra;  ///< null for a text that is refused
    const char* szYear = "";
    const char* szMonth = "";
    const char* szDay = "";
};

class FilingDateTest : public testing::TestWithParam<DateCase>
{};

TEST_P(FilingDateTest, BecomesAnEraAndItsYear)
{
    GivenFilerFields fields;
    const bool bSet = SetFilingDate(GetParam().szDate, fields);
    ASSERT_EQ(bSet, GetParam().szEra != nullptr);
    if (!bSet) {
        EXPECT_EQ(fields, GivenFilerFields());
        return;
    }
    EXPECT_EQ(fields[TEISHUTSU_ERA], GetParam().szEra);
    EXPECT_EQ(fields[TEISHUTSU_YEAR], GetParam().szYear);
    EXPECT_EQ(fields[TEISHUTSU_MONTH], GetParam().szMonth);
    EXPECT_EQ(fields[TEISHUTSU_DAY], GetParam().szDay);
}

constexpr DateCase DATES[] = {
    {"Today", "2026-11-21", "5", "8", "11", "21"},
    {"FirstOfTheFifthEra", "2019-05-01", "5", "1", "5", "1"},
    {"LastOfTheFourthEra", "2019-04-30", "4", "31", "4", "30"},
    {"FirstOfTheFourthEra", "1989-01-08", "4", "1", "1", "8"},
    {"LastOfTheThirdEra", "1989-01-07", "3", "64", "1", "7"},
    {"SecondEra", "1926-12-24", "2", "15", "12", "24"},
    {"FirstEra", "1890-01-01", "1", "23", "1", "1"},
    {"LeapDay", "2024-02-29", "5", "6", "2", "29"},
    {"BeforeTheEras", "1889-12-31", nullptr},
    {"NoLeapDay", "2026-02-29", nullptr},
    {"NoSuchMonth", "2026-13-01", nullptr},
    {"ShortMonth", "2026-1-01", nullptr},
    {"Slashes", "2026/11/21", nullptr},
    {"Letters", "2026-11-2x", nullptr},
    {"Sign", "2026-11--1", nullptr},
    {"Longer", "2026-11-211", nullptr},
    {"Empty", "", nullptr},
};

INSTANTIATE_TEST_SUITE_P(Dates, FilingDateTest, testing::ValuesIn(DATES), [](const auto& testCase) {
    return testCase.param.szName;
});

}  // namespace
}  // namespace host
