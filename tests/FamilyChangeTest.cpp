// What a request of one family leaves of another's, in every order.
#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <tuple>

#include "fault/Fault.h"
#include "support/FamilyHost.h"

namespace {

constexpr const char* NO_KEPT_FILE = "9999-00001-HE70013E";

/// What a host does between a check under a key and the conversion of that key.
enum class Between
{
    Check,
    Convert,
    ElCheck,
    ElConvert,
};

std::ostream& operator<<(std::ostream& stream, Between eBetween)
{
    constexpr const char* NAMES[] = {"Check", "Convert", "ElCheck", "ElConvert"};
    return stream << NAMES[static_cast<int>(eBetween)];
}

StoreKind KindOf(Family eFamily)
{
    constexpr StoreKind KINDS[] = {StoreKind::Base, StoreKind::Finance, StoreKind::CrossBorder};
    return KINDS[static_cast<int>(eFamily)];
}

class FamilyChangeHost : public FamilyHost
{
protected:
    /// A good request, under another key than the one that the tests keep.
    Answer Do(Between eBetween, Family eFamily)
    {
        switch (eBetween) {
            case Between::Check:
                return Check(eFamily, GoodCsv(eFamily));
            case Between::Convert:
                return Convert(eFamily, GoodCsv(eFamily), FilerOf(eFamily));
            case Between::ElCheck:
                return ElCheck(eFamily, GoodCsv(eFamily), OTHER_KEY);
            case Between::ElConvert:
                return ElConvert(eFamily, OTHER_KEY, FilerOf(eFamily));
        }
        return {};
    }

    static constexpr long KEY = 1;
    static constexpr long OTHER_KEY = 2;
};

using ChangeCase = std::tuple<Family, Family, Between>;

class FamilyChangeTest : public FamilyChangeHost, public testing::WithParamInterface<ChangeCase>
{
protected:
    const Family m_eFirst = std::get<0>(GetParam());
    const Family m_eSecond = std::get<1>(GetParam());
    const Between m_eBetween = std::get<2>(GetParam());
    const bool m_bSame = m_eFirst == m_eSecond;
    const bool m_bPlain = m_eBetween == Between::Check || m_eBetween == Between::Convert;
};

INSTANTIATE_TEST_SUITE_P(Orders,
                         FamilyChangeTest,
                         testing::Combine(testing::ValuesIn(FAMILIES),
                                          testing::ValuesIn(FAMILIES),
                                          testing::Values(Between::Check,
                                                          Between::Convert,
                                                          Between::ElCheck,
                                                          Between::ElConvert)),
                         [](const auto& testCase) {
                             return testing::PrintToString(std::get<0>(testCase.param)) + "Then" +
                                    testing::PrintToString(std::get<1>(testCase.param)) +
                                    testing::PrintToString(std::get<2>(testCase.param));
                         });

TEST_P(FamilyChangeTest, KeptFileSurvivesElRequestsOfItsOwnFamilyAlone)
{
    EXPECT_EQ(ElCheck(m_eFirst, GoodCsv(m_eFirst), KEY).strResult, "S_OK");
    static_cast<void>(Do(m_eBetween, m_eSecond));
    const Answer answer = ElConvert(m_eFirst, KEY, FilerOf(m_eFirst));
    if (m_bSame && !m_bPlain) {
        EXPECT_EQ(answer.strResult, "S_OK") << answer;
    } else {
        EXPECT_EQ(answer, Refused(NO_KEPT_FILE));
    }
}

TEST_P(FamilyChangeTest, RequestBehindAnotherFamilysWorksAsAtFirst)
{
    if (m_eBetween == Between::ElConvert) {
        EXPECT_EQ(Do(Between::ElCheck, m_eSecond).strResult, "S_OK");
    }
    const Answer alone = Do(m_eBetween, m_eSecond);
    EXPECT_EQ(alone.strResult, "S_OK") << alone;
    m_entry.Terminate();
    EXPECT_EQ(ElCheck(m_eFirst, GoodCsv(m_eFirst), KEY).strResult, "S_OK");
    if (m_eBetween == Between::ElConvert) {
        EXPECT_EQ(Do(Between::ElCheck, m_eSecond).strResult, "S_OK");
    }
    EXPECT_EQ(Do(m_eBetween, m_eSecond), alone);
}

TEST_P(FamilyChangeTest, StoreIsThatOfTheLastElRequestOrGone)
{
    EXPECT_EQ(ElCheck(m_eFirst, GoodCsv(m_eFirst), KEY).strResult, "S_OK");
    static_cast<void>(Do(m_eBetween, m_eSecond));
    EXPECT_EQ(StorePeek::Kind(), m_bPlain ? StoreKind::None : KindOf(m_eSecond));
}

TEST_P(FamilyChangeTest, ResultStoreEndsWithAnotherFamilysStore)
{
    EXPECT_EQ(ElCheck(m_eFirst, GoodCsv(m_eFirst), KEY).strResult, "S_OK");
    KZCValidResult::instance()->SetITData(R"(<MARK ID="MARK">)");
    // A refused beginning: nothing but the change of the family touches the text.
    EXPECT_EQ(m_bPlain ? Check(m_eSecond, "").strResult : ElCheck(m_eSecond, "", KEY).strResult,
              "E_FAIL");
    EXPECT_EQ(KZCValidResult::instance()->ExistID("MARK"), m_bSame);
}

// ---- the IT text -------------------------------------------------------------------------------

class ItTextTest : public FamilyChangeHost, public testing::WithParamInterface<Family>
{
protected:
    ItTextTest()
    {
        m_bundle.Write(
            "KZEkaDefine.xml",
            DefinitionFile(R"(<report id="003" columnNum="3" procId="PGE5030" procVR="1.0")"
                           R"( reportId="GEZ030" reportVR="2.0">)"
                           R"(<item type="TAG" id="T" parent="GEZ030"/>)"
                           R"(<item type="Normal" id="N" parent="T" column="2"/>)"
                           R"(<item type="IdRef" id="A" parent="T" value="TEISYUTSU_DAY"/>)"
                           R"(</report>)"));
    }

    static constexpr const char* REFERENCE = R"(<A IDREF="TEISYUTSU_DAY"/>)";
};

INSTANTIATE_TEST_SUITE_P(Families,
                         ItTextTest,
                         testing::Values(Family::Finance, Family::CrossBorder),
                         [](const auto& testCase) {
                             return testing::PrintToString(testCase.param);
                         });

TEST_P(ItTextTest, LaterBaseDocumentRefersToTheTextOfAPlainConversionOfAnotherFamily)
{
    EXPECT_EQ(Do(Between::Convert, GetParam()).strResult, "S_OK");
    EXPECT_EQ(Do(Between::Convert, Family::Base).strResult, "S_OK");
    EXPECT_THAT(m_folder.Read("out.mok"), testing::HasSubstr(REFERENCE));
}

TEST_P(ItTextTest, TextOfAnElConversionGoesWithItsStore)
{
    EXPECT_EQ(Do(Between::ElCheck, GetParam()).strResult, "S_OK");
    EXPECT_EQ(Do(Between::ElConvert, GetParam()).strResult, "S_OK");
    EXPECT_TRUE(KZCValidResult::instance()->ExistID("TEISYUTSU_DAY"));
    EXPECT_EQ(Do(Between::Convert, Family::Base).strResult, "S_OK");
    EXPECT_THAT(m_folder.Read("out.mok"), testing::Not(testing::HasSubstr(REFERENCE)));
}

TEST_P(ItTextTest, TextEndsWithTerminate)
{
    EXPECT_EQ(Do(Between::Convert, GetParam()).strResult, "S_OK");
    m_entry.Terminate();
    EXPECT_EQ(Do(Between::Convert, Family::Base).strResult, "S_OK");
    EXPECT_THAT(m_folder.Read("out.mok"), testing::Not(testing::HasSubstr(REFERENCE)));
}

TEST_F(FamilyChangeHost, TextOfAFinanceConversionSurvivesAFinanceRequestButNoCrossBorderOne)
{
    // Behind a plain request there is no store: the CrossBorder family makes and drops one.
    EXPECT_EQ(Do(Between::Convert, Family::Finance).strResult, "S_OK");
    EXPECT_EQ(Check(Family::Finance, "").strResult, "E_FAIL");
    EXPECT_TRUE(KZCValidResult::instance()->ExistID("TEISYUTSU_DAY"));
    EXPECT_EQ(Check(Family::CrossBorder, "").strResult, "E_FAIL");
    EXPECT_FALSE(KZCValidResult::instance()->ExistID("TEISYUTSU_DAY"));
}

}  // namespace
