#include "definition/KZCEkaMOKDefReport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KZCEkaITData.h"
#include "calendar/Clock.h"
#include "fault/Fault.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

class DefReportTest : public ResetState
{
protected:
    DefReportTest() : m_csv(Records{{"003", "a"}, {"003", ""}, {"003", "c"}})
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
        m_it.Initialize(true);
        SetIt("青葉商会", "Soft");
        EXPECT_EQ(m_report.Initialize("GEZ030", "2.0"), STATUS_OK);
    }

    void SetIt(const std::string& strName, const std::string& strSoftware)
    {
        EXPECT_EQ(m_it.SetITData(IT_NOZEISHA_NM, strName.c_str()), STATUS_OK);
        EXPECT_EQ(m_it.SetITData(IT_SOFT_NAME, strSoftware.c_str()), STATUS_OK);
    }

    GenerationCsv m_csv;
    KZCEkaITData m_it;
    KZCEkaMOKDefReport m_report;
};

TEST_F(DefReportTest, NullArgumentRaises)
{
    EXPECT_EQ(Raised([&] { static_cast<void>(m_report.WriteNode(nullptr, 0, &m_it)); }), FAULT);
    EXPECT_EQ(Raised([&] { static_cast<void>(m_report.WriteNode(&m_csv, 0, nullptr)); }), FAULT);
}

TEST_F(DefReportTest, EachRecordIsAnElementOfItsNumber)
{
    HangAll(m_report, {R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"});
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it),
              R"(<GEZ030 VR="2.0" id="GEZ030-1" page="1" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="青葉商会" softNM="Soft"><A>a</A></GEZ030>)");
    EXPECT_EQ(m_report.WriteNode(&m_csv, 2, &m_it),
              R"(<GEZ030 VR="2.0" id="GEZ030-3" page="3" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="青葉商会" softNM="Soft"><A>c</A></GEZ030>)");
}

TEST_F(DefReportTest, RecordWithNothingToSayGivesNoElement)
{
    HangAll(m_report, {R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"});
    EXPECT_EQ(m_report.WriteNode(&m_csv, 1, &m_it), "");
}

TEST_F(DefReportTest, ReportWithoutNodesGivesNoElement)
{
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it), "");
}

TEST_F(DefReportTest, NamesAreEscaped)
{
    HangAll(m_report, {R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"});
    SetIt("A&B", "\"<Soft>'");
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it),
              R"(<GEZ030 VR="2.0" id="GEZ030-1" page="1" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="A&amp;B" softNM="&quot;&lt;Soft&gt;&apos;"><A>a</A></GEZ030>)");
}

TEST_F(DefReportTest, ChildrenAreWrittenInOrderWhateverTheirGeneration)
{
    const GenerationCsv csv(Records{{"003", "a"}}, {{0, "senior"}});
    HangAll(m_report,
            {R"(<item type="Normal" id="B" parent="GEZ030" column="2" generation="junior"/>)",
             R"(<item type="Normal" id="A" parent="GEZ030" column="1"/>)"});
    EXPECT_EQ(m_report.WriteNode(&csv, 0, &m_it),
              R"(<GEZ030 VR="2.0" id="GEZ030-1" page="1" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="青葉商会" softNM="Soft"><B>a</B><A>003</A></GEZ030>)");
}

TEST_F(DefReportTest, ChildrenAreCheckedByTheirGeneration)
{
    const GenerationCsv csv(Records{{"003", ""}, {"003", ""}}, {{0, "senior"}, {1, "junior"}});
    HangAll(
        m_report,
        {R"(<item type="Normal" id="B" parent="GEZ030" column="2" generation="junior"><valid id="exist"/></item>)"},
        true);
    EXPECT_EQ(Told([&] { return m_report.ValidateCsv(&csv, 0); }), PASSES);
    EXPECT_EQ(Told([&] { return m_report.ValidateCsv(&csv, 1); }), "refuses 0002-00002-HE70001E");
}

TEST_F(DefReportTest, TagThatAGroupLeftOpenIsNotClosed)
{
    HangAll(m_report,
            {R"(<item type="TAG" id="T" parent="GEZ030"/>)",
             R"(<item type="Normal" id="A" parent="T" column="2"/>)",
             R"(<item type="Normal" id="B" parent="T" column="2" startRow="2" endRow="2"/>)"});
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it),
              R"(<GEZ030 VR="2.0" id="GEZ030-1" page="1" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="青葉商会" softNM="Soft"><T><A>a</A></GEZ030>)");
    EXPECT_EQ(KZCEkaMOKDefineNode::getCloseTags(), "</T>");
}

TEST_F(DefReportTest, StartTagOf499BytesFits)
{
    HangAll(m_report, {R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"});
    SetIt("n", "s");
    // Without the version the tag has 86 bytes.
    const std::string strVersion(499 - 86, 'v');
    EXPECT_EQ(m_report.Initialize("GEZ030", strVersion.c_str()), STATUS_OK);
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it),
              "<GEZ030 VR=\"" + strVersion +
                  R"(" id="GEZ030-1" page="1" sakuseiDay="2024-03-04" sakuseiNM="n" softNM="s">)"
                  "<A>a</A></GEZ030>");
}

TEST_F(DefReportTest, LongerStartTagIsCut)
{
    HangAll(m_report, {R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"});
    SetIt("n", "s");
    const std::string strVersion(500 - 86, 'v');
    EXPECT_EQ(m_report.Initialize("GEZ030", strVersion.c_str()), STATUS_OK);
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it),
              "<GEZ030 VR=\"" + strVersion +
                  R"(" id="GEZ030-1" page="1" sakuseiDay="2024-03-04" sakuseiNM="n" softNM="s")"
                  "<A>a</A></GEZ030>");
}

TEST_F(DefReportTest, StartTagIsCutInsideTheSoftwareName)
{
    HangAll(m_report, {R"(<item type="Normal" id="A" parent="GEZ030" column="2"/>)"});
    SetIt("n", "soft");
    const std::string strVersion(500 - 86, 'v');
    EXPECT_EQ(m_report.Initialize("GEZ030", strVersion.c_str()), STATUS_OK);
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it),
              "<GEZ030 VR=\"" + strVersion +
                  R"(" id="GEZ030-1" page="1" sakuseiDay="2024-03-04" sakuseiNM="n" softNM="so)"
                  "<A>a</A></GEZ030>");
}

TEST_F(DefReportTest, EndTagIsCutByItsBuffer)
{
    const std::string strId(497, 'r');
    EXPECT_EQ(m_report.Initialize(strId.c_str(), "2.0"), STATUS_OK);
    HangAll(m_report,
            {("<item type=\"Normal\" id=\"A\" column=\"2\" parent=\"" + strId + "\"/>").c_str()});
    EXPECT_EQ(m_report.WriteNode(&m_csv, 0, &m_it), "<" + strId + " <A>a</A></" + strId);
}

}  // namespace
