#include "KZCConvertResultEka.h"

#include <gtest/gtest.h>

namespace {

KZCConvertResultEka MakeFilledResult()
{
    KZCConvertResultEka result;
    result.SetResult("E_FAIL");
    result.SetDetailErrorInfo("0003-00012-HE70001E");
    result.SetRecordCount("20");
    result.SetProcId("PGE5010");
    result.SetMokData("<MOK/>");
    return result;
}

TEST(KZCConvertResultEkaTest, ANewRecordHasFiveEmptyFields)
{
    const KZCConvertResultEka result;
    EXPECT_EQ(result.GetResult(), "");
    EXPECT_EQ(result.GetDetailErrorInfo(), "");
    EXPECT_EQ(result.GetRecordCount(), "");
    EXPECT_EQ(result.GetProcId(), "");
    EXPECT_EQ(result.GetMokData(), "");
}

TEST(KZCConvertResultEkaTest, InitializeOnANewRecordLeavesTheResultEmptyAndNotAFailure)
{
    KZCConvertResultEka result;
    result.Initialize();
    EXPECT_EQ(result.GetResult(), "");
}

TEST(KZCConvertResultEkaTest, EachFieldGivesBackItsOwnText)
{
    const KZCConvertResultEka result = MakeFilledResult();
    EXPECT_EQ(result.GetResult(), "E_FAIL");
    EXPECT_EQ(result.GetDetailErrorInfo(), "0003-00012-HE70001E");
    EXPECT_EQ(result.GetRecordCount(), "20");
    EXPECT_EQ(result.GetProcId(), "PGE5010");
    EXPECT_EQ(result.GetMokData(), "<MOK/>");
}

TEST(KZCConvertResultEkaTest, InitializeEmptiesEveryField)
{
    KZCConvertResultEka result = MakeFilledResult();
    result.Initialize();
    EXPECT_EQ(result.GetResult(), "");
    EXPECT_EQ(result.GetDetailErrorInfo(), "");
    EXPECT_EQ(result.GetRecordCount(), "");
    EXPECT_EQ(result.GetProcId(), "");
    EXPECT_EQ(result.GetMokData(), "");
}

TEST(KZCConvertResultEkaTest, AShorterDocumentLeavesNoTraceOfALongerOne)
{
    KZCConvertResultEka result;
    result.SetMokData(std::string(100000, 'x'));
    result.Initialize();
    result.SetMokData("short");
    EXPECT_EQ(result.GetMokData(), "short");
}

TEST(KZCConvertResultEkaTest, AFieldTakesACopy)
{
    KZCConvertResultEka result;
    std::string strProcId = "PGE5010";
    result.SetProcId(strProcId);
    strProcId[0] = 'X';
    EXPECT_EQ(result.GetProcId(), "PGE5010");
}

TEST(KZCConvertResultEkaTest, AGetterGivesACopy)
{
    KZCConvertResultEka result = MakeFilledResult();
    std::string strCopy = result.GetResult();
    strCopy += "!";
    EXPECT_EQ(result.GetResult(), "E_FAIL");
}

}  // namespace
