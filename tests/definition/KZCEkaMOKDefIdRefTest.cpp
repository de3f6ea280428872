#include "definition/KZCEkaMOKDefIdRef.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KZCValidResult.h"
#include "fault/Fault.h"
#include "support/GenerationCsv.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

constexpr const char* IT_SECTION =
    R"(<IT VR="1.3" id="IT"><NOZEISHA_NM ID="NOZEISHA_NM">x</NOZEISHA_NM></IT>)";

class DefIdRefTest : public ResetState
{
protected:
    DefIdRefTest() : m_csv(Records{{"003", "x"}})
    {
        KZCValidResult::instance()->SetITData(IT_SECTION);
    }

    GenerationCsv m_csv;
};

TEST_F(DefIdRefTest, NullCsvRaises)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefIdRef>(R"(<item type="IdRef" id="A" value="NOZEISHA_NM"/>)");
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNode(nullptr, 0)); }), FAULT);
}

TEST_F(DefIdRefTest, FieldOfTheItSectionIsReferredTo)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefIdRef>(R"(<item type="IdRef" id="A" value="NOZEISHA_NM"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), R"(<A IDREF="NOZEISHA_NM"/>)");
}

TEST_F(DefIdRefTest, EveryRecordHasItsReferenceWhateverItsCells)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefIdRef>(
        R"(<item type="IdRef" id="A" value="NOZEISHA_NM" column="9" startRow="1" endRow="1"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), R"(<A IDREF="NOZEISHA_NM"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 7), R"(<A IDREF="NOZEISHA_NM"/>)");
}

TEST_F(DefIdRefTest, FieldThatTheItSectionLacksIsNotReferredTo)
{
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefIdRef>(R"(<item type="IdRef" id="A" value="DAIRI_NM"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefIdRefTest, EmptyItSectionHasNothingToReferTo)
{
    KZCValidResult::instance()->SetITData("");
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefIdRef>(R"(<item type="IdRef" id="A" value="NOZEISHA_NM"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefIdRefTest, NodeWithoutValueWritesNothing)
{
    KZCValidResult::instance()->SetITData(R"(< ID="">)");
    const auto pNode = CreateNodeOf<KZCEkaMOKDefIdRef>(R"(<item type="IdRef" id="A"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefIdRefTest, ReferenceOf99BytesFits)
{
    const std::string strName(99 - 12 - 11, 'n');  // NOZEISHA_NM has 11 bytes, the marks 12
    const auto pNode = CreateNodeOf<KZCEkaMOKDefIdRef>("<item type=\"IdRef\" id=\"" + strName +
                                                       "\" value=\"NOZEISHA_NM\"/>");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<" + strName + " IDREF=\"NOZEISHA_NM\"/>");
}

TEST_F(DefIdRefTest, LongerReferenceIsCutByItsBuffer)
{
    const std::string strName(100 - 12 - 11, 'n');
    const auto pNode = CreateNodeOf<KZCEkaMOKDefIdRef>("<item type=\"IdRef\" id=\"" + strName +
                                                       "\" value=\"NOZEISHA_NM\"/>");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<" + strName + " IDREF=\"NOZEISHA_NM\"/");
}

}  // namespace
