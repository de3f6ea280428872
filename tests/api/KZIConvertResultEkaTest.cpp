#include <KZEkaMok/KZEkaMok.h>
#include <gtest/gtest.h>

#include <string>

#include "ApiFixture.h"

namespace {

KZIConvertResultEka FilledResult()
{
    KZIConvertResultEka result;
    result.SetResult("S_OK");
    result.SetDetailErrorInfo("0000-00000-HE70017E");
    result.SetRecordCount("12");
    result.SetProcId("PGE5010");
    result.SetMokData("<DATA/>");
    return result;
}

/// All five fields in their order.
std::string FieldsOf(const KZIConvertResultEka& result)
{
    return result.GetResult() + "|" + result.GetDetailErrorInfo() + "|" + result.GetRecordCount() +
           "|" + result.GetProcId() + "|" + result.GetMokData();
}

constexpr const char* FILLED = "S_OK|0000-00000-HE70017E|12|PGE5010|<DATA/>";

}  // namespace

TEST(KZIConvertResultEkaTest, NewResultHoldsFiveEmptyTexts)
{
    EXPECT_EQ(FieldsOf(KZIConvertResultEka()), "||||");
}

TEST(KZIConvertResultEkaTest, EachFieldGivesWhatWasSet)
{
    EXPECT_EQ(FieldsOf(FilledResult()), FILLED);
}

TEST(KZIConvertResultEkaTest, InitializeEmptiesAllFields)
{
    KZIConvertResultEka result = FilledResult();
    result.initialize();
    EXPECT_EQ(FieldsOf(result), "||||");
}

TEST(KZIConvertResultEkaTest, FieldKeepsItsValueWhenTheCallersTextChanges)
{
    std::string strText = "PGE5010";
    KZIConvertResultEka result;
    result.SetProcId(strText);
    strText.assign("changed");
    EXPECT_EQ(result.GetProcId(), "PGE5010");
}

TEST(KZIConvertResultEkaTest, CopyLivesOnWhenTheOriginalIsEmptied)
{
    KZIConvertResultEka original = FilledResult();
    const KZIConvertResultEka copy = original;
    original.initialize();
    EXPECT_EQ(FieldsOf(copy), FILLED);
}

TEST(KZIConvertResultEkaTest, AssignmentReplacesAllFields)
{
    KZIConvertResultEka target = FilledResult();
    target = KZIConvertResultEka();
    EXPECT_EQ(FieldsOf(target), "||||");
}

TEST(KZIConvertResultEkaTest, AssignedResultLivesOnWhenTheOriginalIsEmptied)
{
    KZIConvertResultEka original = FilledResult();
    KZIConvertResultEka target;
    target = original;
    original.initialize();
    EXPECT_EQ(FieldsOf(target), FILLED);
}

TEST(KZIConvertResultEkaTest, TextsWithJapaneseAndLineEndsComeBackUnchanged)
{
    KZIConvertResultEka result;
    result.SetMokData("値\r\n\t𠮷");
    EXPECT_EQ(result.GetMokData(), "値\r\n\t𠮷");
}

TEST(KZEkaMokSymbolsTest, VersionNumberIsTwo)
{
    EXPECT_EQ(KZEkaMokVersionNumber, 2.0);
}

TEST(KZEkaMokSymbolsTest, VersionStringNamesProgramAndProjectAndEndsInALineFeed)
{
    EXPECT_STREQ(KZEkaMokVersionString, "@(#)PROGRAM:KZEkaMok  PROJECT:KZEkaMok-2.0.0.0\n");
}

TEST(KZEkaMokSymbolsTest, ProcessTextsAreThoseOfTheResultField)
{
    EXPECT_STREQ(PROCESS_OK, "S_OK");
    EXPECT_STREQ(PROCESS_FAIL, "E_FAIL");
}

class ResultObjectTest : public ApiTest
{};

TEST_F(ResultObjectTest, EarlierResultKeepsItsFieldsThroughLaterRequests)
{
    KZICsvConvMokEka api;
    const auto pFirst = api.CsvCheck(m_strCsv.c_str());
    const auto pSecond = api.CsvCheck(nullptr);
    api.Terminate();
    EXPECT_NE(pFirst, pSecond);
    EXPECT_EQ(OutcomeOf(pFirst), CheckPassed("PGE5020"));
    EXPECT_EQ(OutcomeOf(pSecond), Failed("9999-00001-HE70001E"));
}

TEST_F(ResultObjectTest, ChangingAResultDoesNotReachTheNextRequest)
{
    KZICsvConvMokEka api;
    const auto pFirst = api.CsvCheck(m_strCsv.c_str());
    pFirst->SetResult("changed");
    pFirst->SetMokData("changed");
    EXPECT_EQ(OutcomeOf(api.CsvCheck(m_strCsv.c_str())), CheckPassed("PGE5020"));
    EXPECT_EQ(pFirst->GetResult(), "changed");
}

TEST_F(ResultObjectTest, ResultOutlivesTheObjectThatMadeIt)
{
    std::shared_ptr<KZIConvertResultEka> pResult;
    {
        KZICsvConvMokEka api;
        pResult = api.CsvCheck(m_strCsv.c_str());
    }
    EXPECT_EQ(OutcomeOf(pResult), CheckPassed("PGE5020"));
}
