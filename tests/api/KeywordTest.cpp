// Every check keyword in a definition, seen from outside: a record that passes and one that is
// refused, the outer conditions on both sides, the message override and the faulty parameter.
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "ApiFixture.h"

namespace {

// The records: column 1 is the kind, columns 2 to 13 are the row's, column 14 is always filled and
// column 15 always empty.
constexpr int COLUMN_COUNT = 15;
constexpr int LAST_OWN_COLUMN = 13;
constexpr const char* KIND = "002";
constexpr const char* OVERRIDE = "HE70030E";
constexpr const char* FATAL = "0000-00000-HE70018E";

// What the always refusing check records.
constexpr const char* REFUSED = "0001-00014-HE70005E";

/// What a keyword does apart from the common behaviour.
enum class Habit
{
    PLAIN,
    RECORDS_AS_OUTER,  ///< with its own code, as an outer condition too
    FIXED_CODE,        ///< no message replaces its code; records as an outer condition too
};

struct KeywordCase
{
    const char* szName;
    const char* szKeyword;
    const char* szParameters;  ///< the attributes value, min and max
    const char* szPassing;     ///< cells from column 2 on; '@' stands for a file that exists
    const char* szRefused;
    const char* szPlace;  ///< column or column range of the refusal, as in the detail table
    const char* szCode;
    const char* szFaulty = nullptr;  ///< attributes that are at fault when the check runs
    const char* szKind = KIND;
    Habit eHabit = Habit::PLAIN;
};

std::ostream& operator<<(std::ostream& stream, const KeywordCase& keyword)
{
    return stream << keyword.szName;
}

/// An element around strInner. The item watches column 2.
std::string Element(const std::string& strName,
                    const std::string& strKeyword,
                    const std::string& strAttributes,
                    const std::string& strInner = "",
                    int nColumn = 2)
{
    return "<" + strName + R"( id=")" + strKeyword + R"(" column=")" + std::to_string(nColumn) +
           R"(" )" + strAttributes + ">" + strInner + "</" + strName + ">";
}

std::string Item(const std::string& strValid)
{
    return R"(<item id="A" parent="GEZ902" type="Normal">)" + strValid + "</item>";
}

std::string Message()
{
    return std::string(R"( message=")") + OVERRIDE + R"(")";
}

/// A check that refuses every record, under the given outer condition.
std::string AlwaysRefusing(const std::string& strOuter)
{
    return Element("valid", "empty", "", strOuter, 14);
}

/// An outer condition that holds for no record.
std::string NeverHolding()
{
    return Element("outer", "exist", "", "", 15);
}

}  // namespace

class KeywordApiTest : public ApiTest
{
protected:
    KeywordApiTest()
        : m_strOffices(R"(<TaxOffices>)"
                       R"(<TaxOffice OfficeType="5" OfficeCode="01234" OfficeName="EAST"/>)"
                       R"(<TaxOffice OfficeType="5" OfficeCode="05678" OfficeName="見本西"/>)"
                       R"(</TaxOffices>)")
    {
    }

    /// One record of the kind is checked against one form with these items.
    Outcome CheckRecord(const std::string& strItems,
                        const std::string& strCells,
                        const std::string& strKind = KIND)
    {
        WriteBundle(m_strBundle,
                    R"(<definition><report id=")" + strKind + R"(" columnNum=")" +
                        std::to_string(COLUMN_COUNT) +
                        R"(" procId="PGE5020" procVR="1.1" reportId="GEZ902" reportVR="2.0">)" +
                        strItems + "</report></definition>",
                    m_strOffices);
        std::string strRecord = strKind + ",";
        int nColumn = 2;
        for (const char c : strCells) {
            if (c == '@') {
                strRecord += m_strCsv;
                continue;
            }
            nColumn += c == ',' ? 1 : 0;
            strRecord += c;
        }
        for (; nColumn < LAST_OWN_COLUMN; ++nColumn) {
            strRecord += ',';
        }
        return Check(MakeFile("keyword.csv", CsvText({(strRecord + ",x,").c_str()})));
    }

private:
    const std::string m_strOffices;
};

class KeywordTest : public KeywordApiTest, public testing::WithParamInterface<KeywordCase>
{
protected:
    Outcome CheckCase(const std::string& strValid, const char* szCells)
    {
        return CheckRecord(Item(strValid), szCells, GetParam().szKind);
    }

    static Outcome RefusedWith(const char* szCode)
    {
        return Failed(std::string("0001-") + GetParam().szPlace + "-" + szCode);
    }
};

TEST_P(KeywordTest, GoodRecordPasses)
{
    const KeywordCase& keyword = GetParam();
    EXPECT_EQ(
        CheckCase(Element("valid", keyword.szKeyword, keyword.szParameters), keyword.szPassing),
        CheckPassed("PGE5020"));
}

TEST_P(KeywordTest, BadRecordIsRefusedWithCodeAndColumns)
{
    const KeywordCase& keyword = GetParam();
    EXPECT_EQ(
        CheckCase(Element("valid", keyword.szKeyword, keyword.szParameters), keyword.szRefused),
        RefusedWith(keyword.szCode));
}

TEST_P(KeywordTest, BadRecordPassesWhenAnOuterConditionDoesNotHold)
{
    const KeywordCase& keyword = GetParam();
    EXPECT_EQ(CheckCase(Element("valid", keyword.szKeyword, keyword.szParameters, NeverHolding()),
                        keyword.szRefused),
              CheckPassed("PGE5020"));
}

TEST_P(KeywordTest, MessageReplacesTheCodeUnlessItIsFixed)
{
    const KeywordCase& keyword = GetParam();
    EXPECT_EQ(CheckCase(Element("valid", keyword.szKeyword, keyword.szParameters + Message()),
                        keyword.szRefused),
              RefusedWith(keyword.eHabit == Habit::FIXED_CODE ? keyword.szCode : OVERRIDE));
}

TEST_P(KeywordTest, AsAnOuterConditionItHoldsForAGoodRecord)
{
    const KeywordCase& keyword = GetParam();
    EXPECT_EQ(CheckCase(AlwaysRefusing(Element("outer", keyword.szKeyword, keyword.szParameters)),
                        keyword.szPassing),
              Failed(REFUSED));
}

TEST_P(KeywordTest, AsAnOuterConditionItKeepsTheCheckFromABadRecord)
{
    // A second item refuses, so that the detail table shows what a condition has recorded.
    const KeywordCase& keyword = GetParam();
    const std::string strOuter = Element("outer", keyword.szKeyword, keyword.szParameters);
    const std::string strOwn = std::string("0001-") + keyword.szPlace + "-" + keyword.szCode + ",";
    EXPECT_EQ(CheckRecord(Item(AlwaysRefusing(strOuter)) +
                              Item(Element("valid", "empty", Message(), "", 14)),
                          keyword.szRefused, keyword.szKind),
              Failed((keyword.eHabit == Habit::PLAIN ? "" : strOwn) + "0001-00014-" + OVERRIDE));
}

// --- the keywords ---

constexpr const char* NO_PARAMETERS = "";

const std::vector<KeywordCase> KEYWORDS = {
    {"age", "age", R"(value="2 6 0 1 1" min="20")", "4,10,1,1,4,30", "4,10,1,2,4,30", "00002",
     "HE70010E", R"(value="2 0 0 1 1" min="20")"},
    {"age_days", "age", R"(value="2 6 0 1 1 days" max="19")", "4,10,1,2,4,30", "4,10,1,1,4,30",
     "02:05", "HE70010E", NO_PARAMETERS},
    {"alnum", "alnum", "", "A-1 z", "A_1", "00002", "HE70006E"},
    {"alnumsbl", "alnumsbl", "", "A_1", "山", "00002", "HE70035E"},
    {"alphabet", "alphabet", "", "Az", "A1", "00002", "HE70006E"},
    {"anycontain", "anycontain", R"(value="3 4" min="1" max="5")", ",,3", ",,6", "00002",
     "HE70009E", NO_PARAMETERS},
    {"anyexist", "anyexist", R"(value="3 4")", ",,x", "x", "00002", "HE70001E", NO_PARAMETERS},
    {"charlength", "charlength", R"(max="2")", "１２", "１２３", "00002", "HE70007E",
     NO_PARAMETERS},
    // Of 00000000001 the weighted sum is 2, so the check digit is 11 - 2.
    {"checkdigit", "checkdigit", R"(value="kojin")", "000000000019", "000000000018", "00002",
     "HE70010E", R"(value="other")"},
    {"compdate", "compdate", R"(min="20180401")", "4,30,4,1", "4,30,3,31", "02:05", "HE70010E",
     R"(min="2018")"},
    {"contain", "contain", R"(value="山 川")", "川", "川川", "00002", "HE70009E", NO_PARAMETERS},
    {"containcolumn", "containcolumn", R"(value="3")", "01,01", "01,1", "00002", "HE70025E",
     R"(value="0")"},
    {"containyear", "containyear", R"(value="2018 2019")", "4,30", "4,29", "02:03", "HE70025E",
     NO_PARAMETERS},
    {"digitequality", "digitequality", R"(value="1" max="9")", "91", "81", "00002", "HE70010E",
     R"(value="1")"},
    {"empty", "empty", "", "", "x", "00002", "HE70005E"},
    {"equalyear", "equalyear", R"(value="4" max="1")", "4,30,4,29", "4,30,4,30", "02:03",
     "HE70025E", R"(value="0")"},
    {"except", "except", R"(value="9 99")", "999", "99", "00002", "HE99999E", NO_PARAMETERS},
    {"exceptcolumn", "exceptcolumn", R"(value="3")", "a,b", "a,a", "00002", "HE70010E",
     R"(value="0")"},
    {"exist", "exist", "", "x", "", "00002", "HE70001E"},
    {"exist_2_four_columns", "exist_2", "", "4,30,4,1", "4,30,4,", "02:05", "HE70012E", nullptr,
     "003", Habit::FIXED_CODE},
    {"exist_2_two_columns", "exist_2", "", "4,30", "4,", "02:03", "HE70012E", nullptr, "006",
     Habit::FIXED_CODE},
    {"existdate", "existdate", "", "3,64,1,7", "3,64,1,8", "02:05", "HE70012E"},
    {"existdate_2", "existdate_2", "", "4,31,4,30", "4,31,5,1", "02:05", "HE70012E"},
    {"existdateYYYYMMDD", "existdateYYYYMMDD", R"(value="2 3 4")", "2020,2,29", "2019,2,29",
     "02:04", "HE70012E", R"(value="2 3")", KIND, Habit::RECORDS_AS_OUTER},
    {"existpath", "existpath", R"(value="file")", "@", "@x", "00002", "HE70013E",
     R"(value="other")"},
    {"extension", "extension", R"(value=".csv .CSV")", "a.b.csv", "a.Csv", "00002", "HE70015E",
     NO_PARAMETERS},
    {"istring", "istring", "", "山", "a", "00002", "HE70006E"},
    {"length", "length", R"(value="2")", "山", "a", "00002", "HE70008E", NO_PARAMETERS},
    {"lvystring", "lvystring", "", "山a", "ｱ", "00002", "HE70006E"},
    {"multibyte", "multibyte", "", "山川", "a山", "00002", "HE99999E"},
    {"multikana", "multikana", "", "カナー", "かな", "00002", "HE70003E"},
    {"multikana_2", "multikana_2", "", "カナＡA", "ｱ", "00002", "HE70034E"},
    {"number", "number", "", "12", "1.2", "00002", "HE70004E"},
    {"onward", "onward", R"(value="20180401")", "4,30,4,1", "4,30,3,31", "02:05", "HE70010E",
     R"(value="2018")"},
    {"range", "range", R"(min="1" max="5")", "5", "6", "00002", "HE70009E", R"(min="5" max="1")"},
    {"rangebasedate", "rangebasedate", R"(min="6" max="10")", "4,30,1,1,4,30,1,1,4,30,1,2",
     "4,30,1,3,4,30,1,1,4,30,1,2", "02:05", "HE70025E"},
    {"rangebasedate_of_a_reference", "rangebasedate", R"(value="1_6" min="2018/01/01")",
     ",,,,4,30,1,1", ",,,,4,29,12,31", "02:05", "HE70025E"},
    {"rangebasedate_2", "rangebasedate_2", R"(min="6" max="10")", "4,30,1,2,4,30,1,1,4,30,1,3",
     "4,30,1,1,4,30,1,1,4,30,1,3", "02:05", "HE70025E"},
    {"rangedate", "rangedate", R"(min="****0401" max="****1231")", "4,30,4,1", "4,30,3,31", "02:05",
     "HE70010E", R"(min="20180230" max="20181231")"},
    {"rangedate_2", "rangedate_2", R"(min="20180401" max="6")", "4,30,9,30,4,30", "4,30,10,1,4,30",
     "06:07", "HE70025E", R"(min="20180401" max="0")"},
    {"rangedate_3", "rangedate_3", R"(value="6")", "4,29,10,1,4,30", "4,29,9,30,4,30", "02:05",
     "HE70025E", R"(value="0")"},
    {"rangedate_4", "rangedate_4", R"(min="20180401" max="20190331")", "4,30,4,1", "4,30,3,31",
     "02:05", "HE70010E", R"(min="20180230" max="20190331")"},
    {"taxoffice", "taxoffice", "", "01234", "01235", "00002", "HE70011E"},
    {"taxofficenm", "taxofficenm", "", "EAST,01234", "WEST,01234", "02:03", "HE70002E"},
};

std::vector<KeywordCase> KeywordsThatCanBeAtFault()
{
    std::vector<KeywordCase> listKeyword;
    for (const KeywordCase& keyword : KEYWORDS) {
        if (keyword.szFaulty != nullptr) {
            listKeyword.push_back(keyword);
        }
    }
    return listKeyword;
}

std::string CaseName(const testing::TestParamInfo<KeywordCase>& info)
{
    return info.param.szName;
}

INSTANTIATE_TEST_SUITE_P(Keywords, KeywordTest, testing::ValuesIn(KEYWORDS), CaseName);

class FaultyKeywordTest : public KeywordTest
{};

TEST_P(FaultyKeywordTest, FaultyParameterIsTheOneFatalError)
{
    const KeywordCase& keyword = GetParam();
    EXPECT_EQ(CheckCase(Element("valid", keyword.szKeyword, keyword.szFaulty), keyword.szPassing),
              Failed(FATAL));
}

INSTANTIATE_TEST_SUITE_P(Keywords,
                         FaultyKeywordTest,
                         testing::ValuesIn(KeywordsThatCanBeAtFault()),
                         CaseName);

// --- nonerr ---

/// The keyword `nonerr` decides by an item before it that refuses a letter in column 13.
class NonerrKeywordTest : public KeywordApiTest
{
protected:
    Outcome CheckAfterNumber(const std::string& strValid, const char* szColumn13)
    {
        return CheckRecord(Item(Element("valid", "number", "", "", 13)) + Item(strValid),
                           std::string(11, ',') + szColumn13);
    }

    static constexpr const char* PARAMETERS = R"(value="12 13")";
    static constexpr const char* ERROR = "0001-00013-HE70004E";
};

TEST_F(NonerrKeywordTest, CleanColumnsPassAndTheNextCheckRuns)
{
    const std::string strNonerr = Element("valid", "nonerr", PARAMETERS);
    EXPECT_EQ(CheckAfterNumber(strNonerr, "1"), CheckPassed("PGE5020"));
    EXPECT_EQ(CheckAfterNumber(strNonerr + AlwaysRefusing(""), "1"), Failed(REFUSED));
}

TEST_F(NonerrKeywordTest, ColumnInErrorEndsTheChecksWithNothingRecorded)
{
    EXPECT_EQ(CheckAfterNumber(Element("valid", "nonerr", PARAMETERS) + AlwaysRefusing(""), "x"),
              Failed(ERROR));
}

TEST_F(NonerrKeywordTest, OuterConditionThatDoesNotHoldLetsTheNextCheckRun)
{
    EXPECT_EQ(CheckAfterNumber(
                  Element("valid", "nonerr", PARAMETERS, NeverHolding()) + AlwaysRefusing(""), "x"),
              Failed(std::string(ERROR) + "," + REFUSED));
}

TEST_F(NonerrKeywordTest, MessageRecordsNothingEither)
{
    EXPECT_EQ(CheckAfterNumber(
                  Element("valid", "nonerr", PARAMETERS + Message()) + AlwaysRefusing(""), "x"),
              Failed(ERROR));
}

TEST_F(NonerrKeywordTest, AsAnOuterConditionItHoldsForCleanColumns)
{
    EXPECT_EQ(CheckAfterNumber(AlwaysRefusing(Element("outer", "nonerr", PARAMETERS)), "1"),
              Failed(REFUSED));
}

TEST_F(NonerrKeywordTest, AsAnOuterConditionItKeepsTheCheckFromColumnsInError)
{
    EXPECT_EQ(CheckAfterNumber(AlwaysRefusing(Element("outer", "nonerr", PARAMETERS)), "x"),
              Failed(ERROR));
}

TEST_F(NonerrKeywordTest, FaultyParameterIsTheOneFatalErrorAndDropsTheOthers)
{
    EXPECT_EQ(CheckAfterNumber(Element("valid", "nonerr", ""), "x"), Failed(FATAL));
}

// --- what the table has no place for ---

TEST_F(KeywordApiTest, BadReferenceOfRangebasedateKeepsItsCode)
{
    constexpr const char* GOOD_DATES = "4,30,1,1,4,30,1,1";
    constexpr const char* ERROR = "0001-02:05-HE70025E";
    for (const char* szBad :
         {R"(value="1" min="2018/01/01")", R"(value="1_6_1" min="2018/01/01")", R"(value="1_6")"}) {
        EXPECT_EQ(
            CheckRecord(Item(Element("valid", "rangebasedate", szBad + Message())), GOOD_DATES),
            Failed(ERROR))
            << szBad;
    }
}

TEST_F(KeywordApiTest, RangebasedateTwoWithoutAnyBoundIsRefusedAndNotFatal)
{
    EXPECT_EQ(CheckRecord(Item(Element("valid", "rangebasedate_2", "")), "4,30,1,1"),
              Failed("0001-02:05-HE99999E"));
}

TEST_F(KeywordApiTest, ExistTwoOnAKindWithoutDatesIsRefusedAndTakesTheMessage)
{
    EXPECT_EQ(CheckRecord(Item(Element("valid", "exist_2", "")), "4,30,4,1"),
              Failed("0001-00002-HE70012E"));
    EXPECT_EQ(CheckRecord(Item(Element("valid", "exist_2", Message())), "4,30,4,1"),
              Failed("0001-00002-HE70030E"));
}

TEST_F(KeywordApiTest, JapaneseOfficeNamePassesAsACheckButHoldsNotAsAnOuterCondition)
{
    constexpr const char* OFFICE = "見本西,05678";
    EXPECT_EQ(CheckRecord(Item(Element("valid", "taxofficenm", "")), OFFICE),
              CheckPassed("PGE5020"));
    EXPECT_EQ(CheckRecord(Item(AlwaysRefusing(Element("outer", "taxofficenm", ""))), OFFICE),
              CheckPassed("PGE5020"));
}
