#include "definition/KZCEkaMOKDefReportCrossBorder.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "KZCEkaITDataCrossBorder.h"
#include "calendar/Clock.h"
#include "fault/Fault.h"
#include "support/GenerationCsv.h"
#include "support/NodeTree.h"
#include "support/PagingModel.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using testing::ElementsAre;

using Records = std::vector<KZCEkaCsvFile::Record>;

class ReportCrossBorderTest : public ResetState
{
protected:
    ReportCrossBorderTest() : m_csv(Records{{"301", "a"}, {"301", ""}, {"301", "c"}})
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
        KZCEkaMOKDefReportFinance::clearReportIDList();
        m_it.Initialize(true);
        EXPECT_EQ(m_it.SetITDataCrossBorder(KZCEkaITDataCrossBorder_t::IT_NOZEISHA_NM, "青葉&商会"),
                  STATUS_OK);
        EXPECT_EQ(m_it.SetITDataCrossBorder(KZCEkaITDataCrossBorder_t::IT_SOFT_NAME, "Soft"),
                  STATUS_OK);
        EXPECT_EQ(m_report.Initialize("GEZ850", "1.0"), STATUS_OK);
        HangAll(m_report, {R"(<item type="Normal" id="A" parent="GEZ850" column="2"/>)"});
    }

    ~ReportCrossBorderTest() override { KZCEkaMOKDefReportFinance::clearReportIDList(); }

    GenerationCsv m_csv;
    KZCEkaITDataCrossBorder m_it;
    KZCEkaMOKDefReportCrossBorder m_report;
};

TEST_F(ReportCrossBorderTest, NullArgumentRaises)
{
    EXPECT_EQ(
        Raised([&] { static_cast<void>(m_report.WriteNodeCrossBorder(nullptr, 0, &m_it, "")); }),
        FAULT);
    EXPECT_EQ(
        Raised([&] { static_cast<void>(m_report.WriteNodeCrossBorder(&m_csv, 0, nullptr, "")); }),
        FAULT);
}

TEST_F(ReportCrossBorderTest, StartTagTakesTheFieldsOfThisFamily)
{
    m_report.setPageNum(4);
    EXPECT_EQ(m_report.createReportTopTag(&m_it),
              R"(<GEZ850 VR="1.0" id="GEZ850-1" page="4" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="青葉&amp;商会" softNM="Soft">)");
}

TEST_F(ReportCrossBorderTest, RecordIsWrittenAsInTheFinanceFamily)
{
    m_report.setControlRows(1, 3, 0);
    EXPECT_EQ(m_report.WriteNodeCrossBorder(&m_csv, 0, &m_it, "stamp"),
              R"(<GEZ850 VR="1.0" id="GEZ850-1" page="1" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="青葉&amp;商会" softNM="Soft"><A>a</A>)");
    EXPECT_EQ(m_report.WriteNodeCrossBorder(&m_csv, 1, &m_it, "stamp"), "");
    EXPECT_EQ(m_report.WriteNodeCrossBorder(&m_csv, 2, &m_it, "stamp"), "<A>c</A></GEZ850>");
}

TEST_F(ReportCrossBorderTest, BothFamiliesNumberTheirPagesInOneList)
{
    KZCEkaMOKDefReportFinance finance;
    EXPECT_EQ(finance.Initialize("GEZ100", "1.0"), STATUS_OK);
    EXPECT_EQ(PagesOf(finance.createReportTopTag(&m_it)), "[");
    EXPECT_EQ(PagesOf(m_report.createReportTopTag(&m_it)), "[");
    EXPECT_EQ(finance.Initialize("GEZ850", "1.0"), STATUS_OK);
    EXPECT_EQ(PagesOf(finance.createReportTopTag(&m_it)), "[");
    EXPECT_THAT(KZCEkaMOKDefReportFinance::GetReportIDList(),
                ElementsAre("GEZ100-1", "GEZ850-1", "GEZ850-2"));
}

TEST_F(ReportCrossBorderTest, EachBodyTakesARandomNumber)
{
    KZCValidResult& result = *KZCValidResult::instance();
    result.ResetRundomNumber(10);
    static_cast<void>(result.PopFrontRandomNumber());
    const long lSecond = result.PopFrontRandomNumber();
    result.ResetRundomNumber(10);
    EXPECT_EQ(PagesOf(m_report.WriteNodeCrossBorder(&m_csv, 0, &m_it, "")), "[<A>a</A>]");
    EXPECT_EQ(m_report.WriteNodeCrossBorder(&m_csv, 1, &m_it, ""), "");
    EXPECT_EQ(result.PopFrontRandomNumber(), lSecond);
}

TEST_F(ReportCrossBorderTest, MultiRecordFormServesThisFamilyThroughItsFinanceBase)
{
    m_report.setControlRows(1, -1, 2);
    KZCEkaITDataFinance& it = m_it;
    EXPECT_EQ(m_report.WriteNodeFromCSVMultiRecord(&m_csv, 0, &it),
              R"(<GEZ850 VR="1.0" id="GEZ850-1" page="1" sakuseiDay="2024-03-04")"
              R"( sakuseiNM="青葉&amp;商会" softNM="Soft"><A>a</A>)");
}

}  // namespace
