#include "validator/KZCEkaValidTaxofficenm.h"

#include <string>

#include "KZCEkaTaxOffices.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/DebugLog.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"
#include "support/TableCsv.h"

namespace {

constexpr ItemText TAXOFFICENM = {"taxofficenm"};

struct PairCase
{
    const char* szName;
    const char* szOffice;
    const char* szCode;
    bool bPasses;
};

void PrintTo(const PairCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValidTaxofficenmTest : public ResetState
{
protected:
    ValidTaxofficenmTest() { KZCEkaTaxOffices::instance()->Initialize(); }

private:
    Bundle m_bundle;
};

class ValidTaxofficenmPairTest : public ValidTaxofficenmTest,
                                 public testing::WithParamInterface<PairCase>
{};

constexpr PairCase PAIRS[] = {
    {"NameOfTheCode", "青葉", "00101", true},
    {"NameOfAnotherCode", "紅葉", "00101", false},
    {"NameOfTheLastCode", "紅葉", "00103", true},
    {"UnknownCode", "青葉", "99999", false},
    {"OfficeOfAnotherType", "白樺", "00102", false},
    {"EmptyName", "", "00101", false},
    {"EmptyCode", "青葉", "", false},
    {"BothEmpty", "", "", false},
    {"NameWithMore", "青葉局", "00101", false},
    {"TheTwoInterchanged", "00101", "青葉", false},
};

constexpr const char* REFUSED_PAIR = "refuses 0001-02:03-HE70002E";

TEST_P(ValidTaxofficenmPairTest, ComparesTheNameWithTheCodeInTheNextColumn)
{
    const TableCsv csv{{"001", GetParam().szOffice, GetParam().szCode}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().bPasses ? PASSES : REFUSED_PAIR);
}

TEST_P(ValidTaxofficenmPairTest, ReadsTheNameAsShiftJisDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const TableCsv csv{{"001", ToShiftJis(GetParam().szOffice), ToShiftJis(GetParam().szCode)}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), GetParam().bPasses ? PASSES : REFUSED_PAIR);
}

TEST_P(ValidTaxofficenmPairTest, HoldsAsAConditionOutsideACheck)
{
    const TableCsv csv{{"001", GetParam().szOffice, GetParam().szCode}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(AsCondition(*pItem, csv), GetParam().bPasses ? PASSES : REFUSES);
}

INSTANTIATE_TEST_SUITE_P(Pairs, ValidTaxofficenmPairTest, testing::ValuesIn(PAIRS), CaseName());

// The condition takes the name as it is, so a Japanese Shift_JIS name never matches. This is
// wanted.
TEST_F(ValidTaxofficenmTest, AsAConditionDuringACheckDoesNotConvertTheName)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const TableCsv csv{{"001", ToShiftJis("青葉"), "00101"}, {"001", "青葉", "00101"}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(AsCondition(*pItem, csv, 0), REFUSES);
    EXPECT_EQ(AsCondition(*pItem, csv, 1), PASSES);
}

TEST_F(ValidTaxofficenmTest, OverrideReplacesTheCode)
{
    const TableCsv csv{{"001", "紅葉", "00101"}};
    const auto pItem = MakeItem(TAXOFFICENM, 1, HE70010E);
    EXPECT_EQ(OnRecord(*pItem, csv), "refuses 0001-02:03-HE70010E");
}

TEST_F(ValidTaxofficenmTest, WithErrorOutputOffRefusesWithoutARecord)
{
    const TableCsv csv{{"001", "紅葉", "00101"}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    pItem->SetErrOutput(false);
    EXPECT_EQ(OnRecord(*pItem, csv), REFUSES);
}

TEST_F(ValidTaxofficenmTest, WithoutAColumnTakesTheFallback)
{
    const TableCsv csv{{"001", "x", "紅葉", "00101"}, {"001", "x", "紅葉", "00103"}};
    const auto pItem = MakeItem(TAXOFFICENM, -1);
    EXPECT_EQ(OnRecord(*pItem, csv, 0, 2), "refuses 0001-03:04-HE70002E");
    EXPECT_EQ(OnRecord(*pItem, csv, 1, 2), PASSES);
}

TEST_F(ValidTaxofficenmTest, WithAColumnIgnoresTheFallback)
{
    const TableCsv csv{{"001", "紅葉", "00103", "00101"}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(OnRecord(*pItem, csv, 0, 2), PASSES);
}

// With column -1 the name is the empty text and the code stands in the first column.
TEST_F(ValidTaxofficenmTest, AsAConditionTakesNoFallback)
{
    const TableCsv csv{{"001", "x", "紅葉", "00103"}};
    const auto pItem = MakeItem(TAXOFFICENM, -1);
    EXPECT_EQ(AsCondition(*pItem, csv, 0, 2), REFUSES);
}

TEST_F(ValidTaxofficenmTest, DoesNotRunIfAConditionDoesNotHold)
{
    const TableCsv csv{{"001", "紅葉", "00101", ""}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    pItem->AddOuterItem(MakeItem({"exist"}, 3).release());
    EXPECT_EQ(OnRecord(*pItem, csv), PASSES);
}

TEST_F(ValidTaxofficenmTest, PassesEveryBareValue)
{
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(OnValue(*pItem, "x"), PASSES);
    EXPECT_EQ(AsCondition(*pItem, "x"), PASSES);
}

TEST_F(ValidTaxofficenmTest, RaisesForNullInsteadOfAFile)
{
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(Told([&] { return pItem->ValidateCsv(nullptr, 0, 0); }), RAISES);
    EXPECT_EQ(Told([&] { return pItem->ValidateOuter(nullptr, 0, 0); }), RAISES);
}

TEST_F(ValidTaxofficenmTest, TracesTheNameAsUtf8DuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const DebugLog log;
    const TableCsv csv{{"001", ToShiftJis("紅葉"), "00101"}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), REFUSED_PAIR);
    EXPECT_TRUE(log.HasLine("record=0001 column=00002 value=紅葉")) << log.Text();
}

class ValidTaxofficenmFaultTest : public ResetState
{};

TEST_F(ValidTaxofficenmFaultTest, RaisesBeforeTheTableHasBeenRead)
{
    const TableCsv csv{{"001", "青葉", "00101"}};
    const auto pItem = MakeItem(TAXOFFICENM, 1);
    EXPECT_EQ(OnRecord(*pItem, csv), RAISES);
    EXPECT_EQ(AsCondition(*pItem, csv), RAISES);
}

}  // namespace
