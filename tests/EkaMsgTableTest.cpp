#include "EkaMsgTable.h"

#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <string>

namespace {

struct MessageCase
{
    int nValue;
    const char* szCode;
    const char* szText;
};

constexpr MessageCase MESSAGES[] = {
    {0, "", ""},
    {1, "HE70001E", "値が入力されていません。"},
    {2, "HE70002E", "入力された局署名称は正しくありません。"},
    {3, "HE70003E", "全角カタカナ以外の文字が含まれています。"},
    {4, "HE70004E", "半角数字以外の文字が含まれています。"},
    {5, "HE70005E", "入力が不要な項目です。"},
    {6, "HE70006E", "使用できない文字が含まれています。"},
    {7, "HE70007E", "入力できる文字数を超えています。"},
    {8, "HE70008E", "入力された桁数が正しくありません。"},
    {9, "HE70009E", "値の範囲外です。"},
    {10, "HE70010E", "入力内容が正しくありません。"},
    {11, "HE70011E", "入力された局署番号は正しくありません。"},
    {12, "HE70012E", "入力された日付は実在しません。"},
    {13, "HE70013E", "ファイルが存在しません。"},
    {14, "HE70014E", "ファイルにアクセス権がありません。"},
    {15, "HE70015E", "拡張子が正しくありません。"},
    {16, "HE70016E", "mokファイルの作成に失敗しました。"},
    {17, "HE70017E", "詳細エラー情報が存在しません。"},
    {18, "HE70018E", "想定しないエラーが発生しました。"},
    {19, "HE70019E", "申請区分に対するCSVのフォーマットが正しくありません。"},
    {20, "HE70020E", "作成可能なデータ数(5000件)を超えてしまうため、読み込むことができません。"},
    {21, "HE70021E", "CSVファイルに異なる申請区分の情報が含まれています。"},
    {22, "HE70022E", "詳細エラー情報が100,000件を超えています。"},
    {23, "HE70023E", "変換後のファイルサイズが10MBを超えています。"},
    {24, "HE70024E", "空のCSVファイルです。"},
    {25, "HE70025E", "入力された日付の関連性が正しくありません。"},
    {26, "HE70026E", "ファイルへのアクセス権がありません。"},
    {27, "HE70027E", "出力先フォルダーが存在しません。"},
    {28, "HE70028E", "ファイルの書き込みに失敗しました。"},
    {29, "HE70029E", "作成可能なCSVレコード数を超えてしまうため、読み込むことができません。"},
    {30, "HE70030E", "いずれかの項目に1を設定してください。"},
    {31, "HE70031E", "値が重複しています。"},
    {32, "HE70032E", "半角英字以外の文字が含まれています。"},
    {33, "HE70033E", "2レコード目以降の入力が必要です。"},
    {34, "HE70034E", "全角カタカナ及び英数字以外の文字が含まれています。"},
    {35, "HE70035E", "半角英数字以外の文字が含まれています。"},
    {36, "HE99999E", "エラーが発生しました。"},
};

class EkaMsgTableRowTest : public testing::TestWithParam<MessageCase>
{};

TEST_P(EkaMsgTableRowTest, TheValueIsTheRowsIndex)
{
    EXPECT_EQ(EkaMsgTable[GetParam().nValue].eMessage, GetParam().nValue);
}

TEST_P(EkaMsgTableRowTest, TheRowHasItsCodeAndText)
{
    EXPECT_STREQ(EkaMsgTable[GetParam().nValue].szCode, GetParam().szCode);
    EXPECT_STREQ(EkaMsgTable[GetParam().nValue].szText, GetParam().szText);
}

TEST_P(EkaMsgTableRowTest, TheCodeFindsTheRow)
{
    EXPECT_EQ(FindEkaMessage(GetParam().szCode), GetParam().nValue);
}

INSTANTIATE_TEST_SUITE_P(Rows,
                         EkaMsgTableRowTest,
                         testing::ValuesIn(MESSAGES),
                         [](const auto& testCase) {
                             const std::string strCode = testCase.param.szCode;
                             return strCode.empty() ? std::string("None") : strCode;
                         });

TEST(EkaMsgTableTest, HoldsThirtySevenRows)
{
    EXPECT_EQ(EKA_MSG_COUNT, 37);
    EXPECT_EQ(std::size(EkaMsgTable), std::size(MESSAGES));
}

TEST(EkaMsgTableTest, EnumeratorsHaveTheValuesOfTheirCodes)
{
    EXPECT_EQ(static_cast<int>(MSG_NONE), 0);
    EXPECT_EQ(static_cast<int>(HE70001E), 1);
    EXPECT_EQ(static_cast<int>(HE70018E), 18);
    EXPECT_EQ(static_cast<int>(HE70035E), 35);
    EXPECT_EQ(static_cast<int>(HE99999E), 36);
}

TEST(EkaMsgTableTest, NoTwoRowsShareACodeOrAText)
{
    std::set<std::string> setCode;
    std::set<std::string> setText;
    for (const EkaMsgRow& row : EkaMsgTable) {
        setCode.insert(row.szCode);
        setText.insert(row.szText);
    }
    EXPECT_EQ(setCode.size(), 37U);
    EXPECT_EQ(setText.size(), 37U);
}

struct UnknownCase
{
    const char* szName;
    std::string_view strCode;
};

class EkaMsgTableUnknownTest : public testing::TestWithParam<UnknownCase>
{};

TEST_P(EkaMsgTableUnknownTest, AnUnknownCodeFindsNoMessage)
{
    EXPECT_EQ(FindEkaMessage(GetParam().strCode), MSG_NONE);
}

constexpr UnknownCase UNKNOWN_CASES[] = {
    {"Empty", ""},
    {"GapBehindTheLast", "HE70036E"},
    {"LowerCase", "he70001e"},
    {"Prefix", "HE70001"},
    {"TrailingText", "HE70001EX"},
    {"TrailingBlank", "HE70001E "},
    {"LeadingBlank", " HE70001E"},
    {"TrailingNul", std::string_view("HE70001E\0", 9)},
    {"Number", "1"},
};

INSTANTIATE_TEST_SUITE_P(Codes,
                         EkaMsgTableUnknownTest,
                         testing::ValuesIn(UNKNOWN_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

}  // namespace
