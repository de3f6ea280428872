// What the IT sections of the Finance and CrossBorder families do alike.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "fault/Fault.h"
#include "support/FamilyItData.h"
#include "support/Raised.h"

namespace {

using enum KZCEkaITDataFinance_t;

struct Finance : FinanceItData
{
    static constexpr auto PROCEDURES = std::to_array<const char*>(
        {"PGE2030", "PGE2015", "PGE2025", "PGE2040", "PGE2055", "PGE2065", "PGE2070", "PGE2080",
         "PGE2095", "PGE2105", "PGE2115", "PGE2125", "PGE2135", "PGE2140", "PGE2150", "PGE2160",
         "PGE1630", "PGE1640"});
    static constexpr const char* SHORT_ZIP1 = "refuses 9999-00019-HE70008E";
};

struct CrossBorder : CrossBorderItData
{
    static constexpr auto PROCEDURES = std::to_array<const char*>({"PGE1660", "PGE1650"});
    static constexpr const char* SHORT_ZIP1 = "refuses 9999-00012-HE70008E";
};

template <class Family>
class FamilyItDataTest : public FamilyItData<Family>
{
};

using Families = testing::Types<Finance, CrossBorder>;
TYPED_TEST_SUITE(FamilyItDataTest, Families);

TYPED_TEST(FamilyItDataTest, NothingSetGivesAnEmptyElement)
{
    EXPECT_EQ(this->m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TYPED_TEST(FamilyItDataTest, EveryFieldStandsInTheOrderOfTheTable)
{
    for (const auto& [eId, strValue] : FullItValues(TypeParam::PROCEDURES.front()))
        EXPECT_EQ(this->Set(eId, strValue), PASSES);
    EXPECT_EQ(this->m_it.GetXml(), FullItSection(TypeParam::PROCEDURES.front()));
}

TYPED_TEST(FamilyItDataTest, DayHoldsTheChildrenThatHaveAValue)
{
    EXPECT_EQ(this->Set(IT_DD, "9"), PASSES);
    EXPECT_EQ(this->Set(IT_ERA, "1"), PASSES);
    EXPECT_EQ(this->m_it.GetXml(),
              R"(<IT VR="1.3" id="IT"><TEISYUTSU_DAY ID="TEISYUTSU_DAY">)"
              R"(<gen:era>1</gen:era><gen:dd>9</gen:dd></TEISYUTSU_DAY></IT>)");
}

TYPED_TEST(FamilyItDataTest, EmptyAgentNameGivesNoElement)
{
    EXPECT_EQ(this->Set(IT_DAIRI_NM, ""), PASSES);
    EXPECT_EQ(this->m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
}

TYPED_TEST(FamilyItDataTest, SoftwareNameGivesNoElement)
{
    EXPECT_EQ(this->Set(IT_SOFT_NAME, "帳票ソフト"), PASSES);
    EXPECT_EQ(this->m_it.GetXml(), R"(<IT VR="1.3" id="IT"></IT>)");
    EXPECT_STREQ(this->Get(IT_SOFT_NAME), "帳票ソフト");
}

TYPED_TEST(FamilyItDataTest, FieldZeroIsEmpty)
{
    EXPECT_STREQ(this->Get(IT_NONE), "");
}

TYPED_TEST(FamilyItDataTest, RefusedValueLeavesAFilledFieldAsItWas)
{
    EXPECT_EQ(this->Set(IT_ZIP1, "123"), PASSES);
    EXPECT_EQ(this->Set(IT_ZIP1, "12"), TypeParam::SHORT_ZIP1);
    EXPECT_STREQ(this->Get(IT_ZIP1), "123");
}

TYPED_TEST(FamilyItDataTest, InitializeEmptiesTheFieldsAndTakesThePath)
{
    EXPECT_EQ(this->Set(IT_ERA, "5"), PASSES);
    EXPECT_TRUE(this->m_it.IsPublic());
    this->m_it.Initialize(false);
    EXPECT_FALSE(this->m_it.IsPublic());
    EXPECT_STREQ(this->Get(IT_ERA), "");
}

TYPED_TEST(FamilyItDataTest, FieldsWithoutACheckTakeAnything)
{
    for (const int nId : {0, 1, 3, 9, 13, 21})
        EXPECT_EQ(this->Set(static_cast<KZCEkaITDataFinance_t>(nId), "\x01"), PASSES) << nId;
}

TYPED_TEST(FamilyItDataTest, FieldBehindTheLastRaises)
{
    const auto set = [this] {
        constexpr auto BEHIND = static_cast<KZCEkaITDataFinance_t>(24);
        static_cast<void>((this->m_it.*TypeParam::SET)(BEHIND, "x"));
    };
    EXPECT_EQ(Raised(set), FAULT);
}

TYPED_TEST(FamilyItDataTest, EveryProcedureOfTheFamilyIsTaken)
{
    for (const char* szProcedure : TypeParam::PROCEDURES)
        EXPECT_EQ(this->Set(IT_PROCEDURE_CD, szProcedure), PASSES) << szProcedure;
}

TYPED_TEST(FamilyItDataTest, LastDayOfNoMonthIsTaken)
{
    // The calendar isn't asked.
    EXPECT_EQ(this->Set(IT_MM, "2"), PASSES);
    EXPECT_EQ(this->Set(IT_DD, "31"), PASSES);
}

}  // namespace
