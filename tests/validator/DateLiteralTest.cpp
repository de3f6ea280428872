#include "validator/DateLiteral.h"

#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

using DateLiteralTest = ResetState;

TEST_F(DateLiteralTest, SlashesStandBeforeTheLastFourAndTwoCharacters)
{
    EXPECT_EQ(DateLiteral::WithSlashes("20190430"), "2019/04/30");
    EXPECT_EQ(DateLiteral::WithSlashes("****0401"), "****/04/01");
    EXPECT_EQ(DateLiteral::WithSlashes("120190430"), "12019/04/30");
    EXPECT_EQ(DateLiteral::WithSlashes("190430"), "19/04/30");
    EXPECT_EQ(DateLiteral::WithSlashes("0430"), "/04/30");
}

TEST_F(DateLiteralTest, TooShortForTheSlashesMakesNone)
{
    for (const char* szLiteral : {"", "1", "30", "430"})
        EXPECT_EQ(DateLiteral::WithSlashes(szLiteral), std::nullopt) << szLiteral;
}

TEST_F(DateLiteralTest, ExactlyEightCharactersMakeADate)
{
    EXPECT_EQ(DateLiteral::OfEightCharacters("20190430"), "2019/04/30");
    EXPECT_EQ(DateLiteral::OfEightCharacters("abcdefgh"), "abcd/ef/gh");
}

TEST_F(DateLiteralTest, AnotherLengthMakesNone)
{
    for (const char* szLiteral : {"", "0430", "2019043", "201904301", "2019/04/30"})
        EXPECT_EQ(DateLiteral::OfEightCharacters(szLiteral), "") << szLiteral;
    EXPECT_EQ(DateLiteral::OfEightCharacters(nullptr), "");
}

// --- row_col ---

using RowAndColumn = std::pair<long, long>;

struct ReferenceCase
{
    const char* szName;
    const char* szParameter;
    std::optional<RowAndColumn> expected;
};

void PrintTo(const ReferenceCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class CellReferenceTest : public ResetState, public testing::WithParamInterface<ReferenceCase>
{};

TEST_P(CellReferenceTest, IsTwoPiecesBetweenUnderscores)
{
    const auto reference = DateLiteral::ReadReference(GetParam().szParameter);
    const auto rowAndColumn =
        reference ? std::optional(RowAndColumn(reference->lRow, reference->lColumn)) : std::nullopt;
    EXPECT_EQ(rowAndColumn, GetParam().expected);
}

const ReferenceCase REFERENCES[] = {
    {"RowAndColumn", "2_5", RowAndColumn(2, 5)},
    {"LargeNumbers", "120_45", RowAndColumn(120, 45)},
    {"RunOfUnderscoresIsOne", "2__5", RowAndColumn(2, 5)},
    {"UnderscoresAtTheEndsDontCount", "_2_5_", RowAndColumn(2, 5)},
    {"EachPieceIsReadLikeC", " +2x_ 5 6", RowAndColumn(2, 5)},
    {"NoNumberIsZero", "a_b", RowAndColumn(0, 0)},
    {"Negative", "-1_-2", RowAndColumn(-1, -2)},
    {"OnePiece", "5", std::nullopt},
    {"OnePieceBeforeAnUnderscore", "2_", std::nullopt},
    {"OnePieceBehindAnUnderscore", "_5", std::nullopt},
    {"ThreePieces", "2_5_7", std::nullopt},
    {"Empty", "", std::nullopt},
    {"UnderscoresOnly", "__", std::nullopt},
    {"AnotherSeparator", "2 5", std::nullopt},
    {"Null", nullptr, std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(Texts, CellReferenceTest, testing::ValuesIn(REFERENCES), CaseName());

}  // namespace
