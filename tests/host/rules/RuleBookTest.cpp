#include "rules/RuleBook.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Language.h"

namespace host {
namespace {

CheckDefinition Length(long lColumn, const std::string& strMax)
{
    CheckDefinition check;
    check.strKeyword = "length";
    check.strMax = strMax;
    check.lColumn = lColumn;
    return check;
}

CheckDefinition Exist(long lColumn)
{
    CheckDefinition check;
    check.strKeyword = "exist";
    check.lColumn = lColumn;
    return check;
}

FormDefinition Form(const std::vector<CheckDefinition>& vecCheck)
{
    FormDefinition form;
    form.vecItem.resize(1);
    form.vecItem[0].lColumn = 3;
    form.vecItem[0].vecCheck = vecCheck;
    return form;
}

DetailEntry Entry(long lRecord, long lColumn, KZCEkaMessage_t eMessage)
{
    return {lRecord, lColumn, SINGLE_COLUMN, EkaMsgTable[eMessage].szCode, eMessage};
}

class RuleBookTest : public testing::Test
{
protected:
    RuleBookTest() { SetLanguage(Language::English); }

    /// The answer about column 3 of record 1 for so many different lengths.
    static std::string RuleOfLengths(int nCount)
    {
        std::vector<CheckDefinition> vecCheck;
        for (int n = 1; n <= nCount; ++n)
            vecCheck.push_back(Length(3, std::to_string(n + 10)));
        return RuleOf(Form(vecCheck), Entry(1, 3, HE70008E));
    }
};

TEST_F(RuleBookTest, EightRulesOfAPlaceAreToldAndOfMoreTheFirstEight)
{
    const std::string strEight =
        "up to 11 digits; or up to 12 digits; or up to 13 digits; or up to 14 digits; or up to 15 "
        "digits; or up to 16 digits; or up to 17 digits; or up to 18 digits";
    EXPECT_EQ(RuleOfLengths(8), strEight);
    EXPECT_EQ(RuleOfLengths(9), strEight + "; or …");
    EXPECT_EQ(RuleOfLengths(5000), strEight + "; or …");
}

TEST_F(RuleBookTest, LongRuleIsCutBehindAWholeCharacter)
{
    CheckDefinition check;
    check.strKeyword = "contain";
    check.lColumn = 3;
    for (int n = 0; n < 3000; ++n)
        check.strValue += "見";
    const std::string strRule = RuleOf(Form({check}), Entry(1, 3, HE70009E));
    ASSERT_TRUE(strRule.ends_with("見…")) << strRule.size();
    EXPECT_LE(strRule.size(), 4000U + 3U);
    EXPECT_GE(strRule.size(), 3998U + 3U);
}

TEST_F(RuleBookTest, AnswersOfOnePlaceDifferByCode)
{
    ProcedureDefinition procedure;
    procedure.vecForm = {Form({Exist(3), Length(3, "5")})};
    RuleBook book(procedure);
    EXPECT_EQ(book.RuleOf(Entry(1, 3, HE70001E), 1), "required");
    EXPECT_EQ(book.RuleOf(Entry(1, 3, HE70008E), 1), "up to 5 digits");
    EXPECT_EQ(book.RuleOf(Entry(1, 3, HE70001E), 1), "required");
    EXPECT_EQ(book.RuleOf(Entry(1, 4, HE70001E), 1), "");
}

TEST_F(RuleBookTest, AnswersOfOnePlaceDifferByTheFormOfTheRecord)
{
    ProcedureDefinition procedure;
    procedure.vecForm = {Form({Length(3, "5")}), Form({Length(3, "7")})};
    procedure.vecForm[0].lStartRow = procedure.vecForm[0].lEndRow = 1;
    procedure.vecForm[1].lStartRow = 2;
    RuleBook book(procedure);
    EXPECT_EQ(book.RuleOf(Entry(1, 3, HE70008E), 3), "up to 5 digits");
    EXPECT_EQ(book.RuleOf(Entry(2, 3, HE70008E), 3), "up to 7 digits");
    EXPECT_EQ(book.RuleOf(Entry(3, 3, HE70008E), 3), "up to 7 digits");
}

TEST_F(RuleBookTest, AnswersOfOnePlaceDifferByRecordWhereACheckNamesIts)
{
    CheckDefinition check;
    check.strKeyword = "rangebasedate";
    check.lColumn = 3;
    check.strValue = "1_13";
    check.strMin = "2019/05/01";
    check.strErrColumn = "13";
    check.strErrRow = "2";
    ProcedureDefinition procedure;
    procedure.vecForm = {Form({check})};
    RuleBook book(procedure);
    const auto entry = [](long lRecord) {
        return DetailEntry{lRecord, 13, 16, EkaMsgTable[HE70025E].szCode, HE70025E};
    };
    EXPECT_EQ(book.RuleOf(entry(1), 3), "");
    EXPECT_NE(book.RuleOf(entry(2), 3), "");
    EXPECT_EQ(book.RuleOf(entry(3), 3), "");
}

}  // namespace
}  // namespace host
