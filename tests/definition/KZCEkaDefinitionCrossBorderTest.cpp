#include "definition/KZCEkaDefinitionCrossBorder.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "KZCEkaITDataCrossBorder.h"
#include "calendar/Clock.h"
#include "fault/Fault.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/FamilyDefinition.h"
#include "support/GenerationCsv.h"
#include "support/LogEntries.h"
#include "support/LogMessages.h"
#include "support/PagingModel.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;
using testing::ElementsAre;

/// A report of procedure PGE1650 that writes and checks the second column.
std::string Report(const std::string& strId,
                   const std::string& strRows,
                   const std::string& strProcId = "PGE1650",
                   const std::string& strItems = "")
{
    return "<report procId=\"" + strProcId + "\" procVR=\"240.0\" reportId=\"" + strId +
           "\" reportVR=\"1.0\" " + strRows + R"(><item type="Normal" id="A" column="2" parent=")" +
           strId + R"("><valid id="number"/></item>)" + strItems + "</report>";
}

class DefinitionCrossBorderTest : public ResetState
{
protected:
    DefinitionCrossBorderTest() : m_csv(Records{{"301", "1"}, {"301", "2"}, {"301", "3"}})
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
        m_it.Initialize(true);
    }

    ~DefinitionCrossBorderTest() override { KZCEkaMOKDefReportFinance::clearReportIDList(); }

    int Load(const std::string& strReports, bool bValidate = false)
    {
        m_bundle.Write(std::string("CrossBorder/PGE1650") + (bValidate ? "vld.xml" : "tpl.xml"),
                       DefinitionFile(strReports));
        return m_definition.CreateDefinition("301", bValidate);
    }

    std::string Written() { return m_definition.MakeReportToCsvCrossBorder(&m_csv, &m_it); }

    Bundle m_bundle{std::nullopt, std::nullopt};
    GenerationCsv m_csv;
    KZCEkaITDataCrossBorder m_it;
    KZCEkaDefinitionCrossBorder m_definition;
};

TEST_F(DefinitionCrossBorderTest, LoadsFromTheFolderOfThisFamily)
{
    m_bundle.Write("Finance/PGE1650tpl.xml", DefinitionFile(Report("GEZ100", "")));
    EXPECT_EQ(m_definition.CreateDefinition("301", false), STATUS_NG);
    EXPECT_EQ(Load(Report("GEZ850", "")), STATUS_OK);
    EXPECT_STREQ(m_definition.GetProcId(), "PGE1650");
    EXPECT_STREQ(m_definition.GetProcVR(), "240.0");
    EXPECT_EQ(m_definition.GetReportIdW_Index(1), "GEZ850");
}

TEST_F(DefinitionCrossBorderTest, TypeIdOfTheOtherFamilyFailsInEach)
{
    for (const char* szFolder : {"Finance/", "CrossBorder/"})
        for (const char* szName : {"PGE2015tpl.xml", "PGE1650tpl.xml"})
            m_bundle.Write(std::string(szFolder) + szName, DefinitionFile(Report("GEZ850", "")));
    KZCEkaDefinitionFinance finance;
    EXPECT_EQ(finance.CreateDefinition("101", false), STATUS_OK);
    EXPECT_EQ(m_definition.CreateDefinition("301", false), STATUS_OK);
    EXPECT_EQ(finance.CreateDefinition("301", false), STATUS_NG);
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition("101", false), STATUS_NG);
    EXPECT_THAT(
        LogEntries(log),
        ElementsAre(LogEntry{"KZCEkaDefinitionCrossBorder::CreateDefinition",
                             "定義体に対象の申請番号が存在しません。：101"},
                    LogEntry{"KZCEkaDefinitionCrossBorder::CreateDefinition", UNEXPECTED_ERROR}));
    EXPECT_EQ(m_definition.GetReportIdW_Index(1), "");
}

TEST_F(DefinitionCrossBorderTest, NullTypeIdIsLogged)
{
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition(nullptr, true), STATUS_NG);
    EXPECT_THAT(
        LogEntries(log),
        ElementsAre(LogEntry{"KZCEkaDefinitionCrossBorder::CreateDefinition",
                             "引数エラー。定義情報作成に必要な情報が準備されていません。"}));
}

TEST_F(DefinitionCrossBorderTest, MissingFileFails)
{
    const DebugLog log;
    EXPECT_EQ(m_definition.CreateDefinition("302", true), STATUS_NG);
    EXPECT_THAT(LastLogMessages(log, 2),
                ElementsAre("定義体の読み込みでエラーが発生しました。", UNEXPECTED_ERROR));
}

TEST_F(DefinitionCrossBorderTest, NodeThatCannotBePlacedFails)
{
    const DebugLog log;
    EXPECT_EQ(Load(Report("GEZ850", "", "PGE1650", R"(<item type="Normal" parent="NONE"/>)")),
              STATUS_NG);
    EXPECT_EQ(LogEntries(log).back(), (LogEntry{"KZCEkaDefinitionCrossBorder::CreateDefinition",
                                                "定義体の帳票タグ階層定義が不正です。"}));
}

TEST_F(DefinitionCrossBorderTest, ChecksAreTheFinanceOnes)
{
    EXPECT_EQ(Load(Report("GEZ850", R"(startRow="2" endRow="40")"), true), STATUS_OK);
    const GenerationCsv csv(Records{{"301", "x"}, {"301", "y"}, {"301", "3"}});
    EXPECT_EQ(Told([&] { return m_definition.ValidateCsv(&csv); }), "refuses 0002-00002-HE70004E");
    EXPECT_EQ(Load(Report("GEZ850", R"(startRow="-1")"), true), STATUS_OK);
    EXPECT_EQ(Told([&] { return m_definition.ValidateCsv(&csv); }), RAISES);
}

TEST_F(DefinitionCrossBorderTest, WholeDocumentOfTwoReports)
{
    EXPECT_EQ(Load(Report("GEZ850", R"(startRow="1" endRow="2")") +
                   Report("GEZ851", R"(startRow="3" endRow="-1")")),
              STATUS_OK);
    EXPECT_EQ(m_it.SetITDataCrossBorder(KZCEkaITDataCrossBorder_t::IT_NOZEISHA_NM, "青葉商会"),
              STATUS_OK);
    EXPECT_EQ(Written(), R"(<GEZ850 VR="1.0" id="GEZ850-1" page="1" sakuseiDay="2024-03-04")"
                         R"( sakuseiNM="青葉商会" softNM=""><A>1</A><A>2</A></GEZ850>)"
                         R"(<GEZ851 VR="1.0" id="GEZ851-1" page="1" sakuseiDay="2024-03-04")"
                         R"( sakuseiNM="青葉商会" softNM=""><A>3</A></GEZ851>)");
    EXPECT_THAT(m_definition.GetReportIDList(), ElementsAre("GEZ850-1", "GEZ851-1"));
}

TEST_F(DefinitionCrossBorderTest, EqualFilesGiveEqualDocumentsInBothFamilies)
{
    const std::string strReports = Report("GEZ850", R"(startRow="1" endRow="2" stepRow="2")") +
                                   Report("GEZ851", R"(startRow="3" endRow="-1")");
    m_bundle.Write("Finance/PGE2015tpl.xml", DefinitionFile(strReports));
    KZCEkaDefinitionFinance finance;
    EXPECT_EQ(finance.CreateDefinition("101", false), STATUS_OK);
    EXPECT_EQ(Load(strReports), STATUS_OK);
    const std::string strText = Written();
    EXPECT_EQ(PagesOf(strText), "[<A>1</A><A>2</A>][<A>3</A>]");
    KZCEkaITDataFinance it;
    it.Initialize(true);
    EXPECT_EQ(finance.MakeReportToCsvFinance(&m_csv, &it), strText);
}

TEST_F(DefinitionCrossBorderTest, ConversionUsesTheReportsUp)
{
    EXPECT_EQ(Load(Report("GEZ850", R"(startRow="1" endRow="2")") +
                   Report("GEZ851", R"(startRow="3" endRow="-1")")),
              STATUS_OK);
    static_cast<void>(Written());
    EXPECT_EQ(PagesOf(Written()), "<A>1</A><A>2</A>[<A>3</A>]");
}

TEST_F(DefinitionCrossBorderTest, ReportsThatRunOutAreLoggedAndRaise)
{
    EXPECT_EQ(Load(Report("GEZ850", R"(startRow="1" endRow="2")")), STATUS_OK);
    const DebugLog log;
    EXPECT_EQ(Raised([&] { static_cast<void>(Written()); }), FAULT);
    constexpr const char* FUNCTION = "KZCEkaDefinitionCrossBorder::MakeReportToCsvCrossBorder";
    EXPECT_THAT(
        LogEntries(log),
        ElementsAre(LogEntry{FUNCTION, "構文エラー。MOK作成に必要な情報が準備されていません。"},
                    LogEntry{FUNCTION, UNEXPECTED_ERROR}));
}

TEST_F(DefinitionCrossBorderTest, WritingNeedsACsvAnItSectionAndAReport)
{
    const DebugLog log;
    const auto raised = [&](const KZCEkaCsvFile* pCsv, KZCEkaITDataCrossBorder* pIT) {
        return Raised(
            [&] { static_cast<void>(m_definition.MakeReportToCsvCrossBorder(pCsv, pIT)); });
    };
    EXPECT_EQ(raised(&m_csv, &m_it), FAULT);
    EXPECT_EQ(Load(Report("GEZ850", "")), STATUS_OK);
    EXPECT_EQ(raised(nullptr, &m_it), FAULT);
    EXPECT_EQ(raised(&m_csv, nullptr), FAULT);
    EXPECT_THAT(LogEntries(log),
                testing::AllOf(testing::SizeIs(3),
                               testing::Each(LogEntry{
                                   "KZCEkaDefinitionCrossBorder::MakeReportToCsvCrossBorder",
                                   "引数エラー。MOK作成に必要な情報が準備されていません。"})));
}

TEST_F(DefinitionCrossBorderTest, ConversionDrawsFromAThousandNumbers)
{
    EXPECT_EQ(Load(Report("GEZ850", "")), STATUS_OK);
    KZCValidResult& result = *KZCValidResult::instance();
    result.ResetRundomNumber(1000);
    for (int n = 0; n < 3; ++n)
        static_cast<void>(result.PopFrontRandomNumber());
    const long lFourth = result.PopFrontRandomNumber();
    static_cast<void>(Written());
    EXPECT_EQ(result.PopFrontRandomNumber(), lFourth);
}

TEST_F(DefinitionCrossBorderTest, MultiRecordFormServesThisFamilyThroughItsFinanceBase)
{
    const std::string strTrailer =
        R"(<item type="Normal" id="C" parent="GEZ850" startRow="-1" lastRecord="1"/>)";
    EXPECT_EQ(
        Load(Report("GEZ850", R"(startRow="1" endRow="-1" stepRow="2")", "PGE1640", strTrailer)),
        STATUS_OK);
    EXPECT_EQ(m_definition.getCsvRecordType(), KZCEkaDefinitionFinance::CSV_RECORD_MULTI);
    EXPECT_EQ(m_it.SetITDataCrossBorder(KZCEkaITDataCrossBorder_t::IT_SOFT_NAME, "Soft"),
              STATUS_OK);
    EXPECT_EQ(m_definition.MakeSingleTypeReportFromCsvMultiRecord(&m_csv, &m_it),
              R"(<GEZ850 VR="1.0" id="GEZ850-1" page="1" sakuseiDay="2024-03-04" sakuseiNM="")"
              R"( softNM="Soft"><A>1</A><A>2</A><A>3</A></GEZ850>)");
}

TEST_F(DefinitionCrossBorderTest, MultiRecordTemplateWithRowsAndNoStepIsRefused)
{
    EXPECT_EQ(Load(Report("GEZ850", R"(startRow="1" endRow="-1")", "PGE1640")), STATUS_NG);
    EXPECT_EQ(Load(Report("GEZ850", R"(startRow="1" endRow="-1")")), STATUS_OK);
}

}  // namespace
