#include "KZCEkaDefinitionFinance.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "KZCEkaITDataFinance.h"
#include "KZCEkaXDOM.h"
#include "KZCValidResult.h"
#include "definition/DefinitionLimits.h"
#include "definition/RunOnDefinition.h"
#include "family/FamilyFolder.h"
#include "family/FormRange.h"
#include "family/SpreadProcedure.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

constexpr std::size_t MESSAGE_BUFFER_SIZE = 100;
/// Numbers that a conversion draws and drops.
constexpr long DRAWN_NUMBERS = 1000;
/// A report that ends before the second record never hands over to the next.
constexpr std::int64_t LEAST_HANDOVER_ROW = 2;

constexpr const char* VALIDATE_CSV = "KZCEkaDefinitionFinance::ValidateCsv";

std::int64_t ReadRow(const std::string& strText)
{
    return CText::ReadLong(strText.c_str());
}

[[noreturn]] void RaiseUnknownProcedure(const char* szFunction, const char* szTypeId)
{
    const std::string strMessage = CText::CutToBuffer(
        std::string("定義体に対象の申請番号が存在しません。：") + szTypeId, MESSAGE_BUFFER_SIZE);
    RaiseFault(szFunction, strMessage.c_str());
}

/// The records that the writers give to a report, both from 1.
struct WriteRange
{
    std::int64_t nStart;
    std::int64_t nEnd;

    bool Covers(std::int64_t nIndex) const { return nStart <= nIndex + 1 && nIndex < nEnd; }
};

WriteRange RangeToWrite(const KZCEkaDefinitionFinance::REPORT_INFO& info, std::int64_t nCount)
{
    const WriteRange range = {ReadRow(info.strStartRow), ReadRow(info.strEndRow)};
    if ((range.nStart == 0 && range.nEnd == 0) || range.nEnd == -1)
        return {1, nCount};
    return range;
}

/// The day and the time of day in digits. Nothing in a document shows it.
std::string MakeStamp()
{
    std::string strStamp = KZCEkaCommon::Now("yyMMdd", "HHmmssmm");
    std::erase_if(strStamp, [](char cByte) { return cByte == ' '; });
    return strStamp;
}

}  // namespace

/// The records of a report in a check: first index, and the index behind the last.
struct KZCEkaDefinitionFinance::RecordRange
{
    std::int64_t nFirst;
    std::int64_t nEnd;
};

int KZCEkaDefinitionFinance::CreateDefinition(const char* szTypeId, bool bValidate)
{
    static constexpr FamilyLoad FINANCE = {
        CALL_TYPE_FINANCE, "KZCEkaDefinitionFinance::CreateDefinition",
        [] { return std::make_unique<KZCEkaMOKDefReportFinance>(); }};
    return LoadDefinition(FINANCE, szTypeId, bValidate);
}

int KZCEkaDefinitionFinance::LoadDefinition(const FamilyLoad& family,
                                            const char* szTypeId,
                                            bool bValidate)
{
    const char* szFunction = family.szFunction;
    if (szTypeId == nullptr) {
        KZCDebugDump::Log(szFunction, "引数エラー。定義情報作成に必要な情報が準備されていません。");
        return STATUS_NG;
    }
    try {
        Clear();
        PROC_INFO info;
        if (!KZCDefinitionManager::getProcInfo(szTypeId, info, family.eType))
            RaiseUnknownProcedure(szFunction, szTypeId);
        const std::string strPath = FamilyFolder::FindDefinition(
            family.eType, info.procId,
            bValidate ? FamilyFolder::VALIDATION_FILE : FamilyFolder::TEMPLATE_FILE, szFunction);
        KZCEkaXDOM dom;
        if (!dom.Initialize() || !dom.Parse(strPath.c_str()))
            RaiseFault(szFunction, "定義体の読み込みでエラーが発生しました。");
        return LoadReports(dom, family, szTypeId, bValidate);
    } catch (...) {
        KZCDebugDump::Log(szFunction, UNEXPECTED_ERROR);
        return STATUS_NG;
    }
}

/// Makes the trees of all reports. The cursor stands on the root.
int KZCEkaDefinitionFinance::LoadReports(KZCEkaXDOM& dom,
                                         const FamilyLoad& family,
                                         const char* szTypeId,
                                         bool bValidate)
{
    int nStatus = STATUS_OK;
    for (long lMove = dom.MoveFirstChild(); lMove == STATUS_OK; lMove = dom.MoveNextSibling()) {
        if (dom.GetNodeName() != "report")
            continue;
        m_strProcId = dom.GetAttribute("procId");
        m_strProcVR = dom.GetAttribute("procVR");
        if (m_strProcId.empty())
            RaiseUnknownProcedure(family.szFunction, szTypeId);
        REPORT_INFO info;
        info.pReport = family.pMakeReport();
        if (!LoadReport(dom, info, bValidate)) {
            nStatus = STATUS_NG;
            KZCDebugDump::Log(family.szFunction, BROKEN_TREE);
        }
        m_listReport.push_back(std::move(info));
        // Up to the report. From one without any element the cursor never went down: it goes up to
        // the root then and the reports behind aren't reached. Wanted.
        static_cast<void>(dom.MoveParent());
    }
    return nStatus;
}

/// Fills the tree of the cursor's report. \return false if a node could not be made or placed, or
/// if the report can't be divided into pages.
bool KZCEkaDefinitionFinance::LoadReport(KZCEkaXDOM& dom, REPORT_INFO& info, bool bValidate)
{
    info.strReportId = dom.GetAttribute("reportId");
    info.strReportVR = dom.GetAttribute("reportVR");
    info.strStartRow = dom.GetAttribute("startRow");
    info.strEndRow = dom.GetAttribute("endRow");
    info.strStepRow = dom.GetAttribute("stepRow");
    info.strLastRecord = dom.GetAttribute("lastRecord");
    info.pReport->Initialize(info.strReportId.c_str(), info.strReportVR.c_str());
    const std::int64_t nStepRow = ReadRow(info.strStepRow);
    info.pReport->setControlRows(ReadRow(info.strStartRow), ReadRow(info.strEndRow), nStepRow);
    info.pReport->setControlRows("lastRecord", info.strLastRecord);
    const bool bLoaded = LoadItems(dom, *info.pReport, bValidate);
    const bool bNeedsPages = !bValidate && getCsvRecordType() == CSV_RECORD_MULTI &&
                             info.pReport->isSettingRecordRange();
    return bLoaded && (!bNeedsPages || nStepRow != 0);
}

/// Makes the nodes of the cursor's report, up to the first that fails. Leaves the cursor among the
/// children, if there are any.
bool KZCEkaDefinitionFinance::LoadItems(KZCEkaXDOM& dom,
                                        KZCEkaMOKDefReportFinance& report,
                                        bool bValidate)
{
    for (long lMove = dom.MoveFirstChild(); lMove == STATUS_OK; lMove = dom.MoveNextSibling()) {
        if (dom.GetNodeName() != "item")
            continue;
        auto pNode = KZCEkaMOKDefineNode::CreateNode(&dom, bValidate);
        if (!pNode)
            return false;
        // Held by this share as well while a parent takes its own; destroyed with it if none did.
        const KZCEkaMOKDefineNode::Share node(pNode.release());
        if (report.LocateNodeFinance(&*node, bValidate, STATUS_NG) < 0)
            return false;
        if (!bValidate && node->getLastRecord() == 1)
            report.setControlRows("LAST_RECORD_ROW", std::to_string(node->getStartRow()));
    }
    return true;
}

int KZCEkaDefinitionFinance::ValidateCsv(const KZCEkaCsvFile* pCsv)
{
    constexpr const char* MISSING = "引数エラー。CSVチェックに必要な情報が準備されていません。";
    if (pCsv == nullptr)
        RaiseFault(VALIDATE_CSV, MISSING);
    return RunOnDefinition(VALIDATE_CSV, [&] {
        int nStatus = STATUS_OK;
        for (const REPORT_INFO& info : m_listReport) {
            if (!info.pReport)
                RaiseFault(VALIDATE_CSV, MISSING);
            const RecordRange range = RangeToCheck(info, pCsv->GetRecordCount());
            for (std::int64_t nIndex = range.nFirst; nIndex < range.nEnd; ++nIndex)
                if (pCsv->IsValidRecord(nIndex) &&
                    info.pReport->ValidateCsv(pCsv, nIndex) != STATUS_OK)
                    nStatus = STATUS_NG;
        }
        return nStatus;
    });
}

KZCEkaDefinitionFinance::RecordRange KZCEkaDefinitionFinance::RangeToCheck(
    const REPORT_INFO& info, std::int64_t nCount) const
{
    const auto isTrailer = [](const REPORT_INFO& report) {
        return CText::ReadInt(report.strLastRecord.c_str()) != 0;
    };
    const FormRange range = {ReadRow(info.strStartRow), ReadRow(info.strEndRow), isTrailer(info)};
    if (!range.bTrailer && range.nStartRow < 0)
        RaiseFault(VALIDATE_CSV, "開始レコードの値が不正です。");
    const RecordSpan span = RecordsOf(range, isTrailer(m_listReport.back()), nCount);
    return {span.nFirst - 1, span.nLast};
}

std::string KZCEkaDefinitionFinance::MakeReportToCsvFinance(const KZCEkaCsvFile* pCsv,
                                                            KZCEkaITDataFinance* pIT)
{
    constexpr const char* FUNCTION = "KZCEkaDefinitionFinance::MakeReportToCsvFinance";
    if (pCsv == nullptr || pIT == nullptr)
        RaiseMissing(FUNCTION);
    return MakeReports(
        FUNCTION, *pCsv,
        [=](KZCEkaMOKDefReportFinance& report, long lRow, const std::string& strStamp) {
            return report.WriteNodeFinance(pCsv, lRow, pIT, strStamp);
        });
}

std::string KZCEkaDefinitionFinance::MakeReports(const char* szFunction,
                                                 const KZCEkaCsvFile& csv,
                                                 const RecordWriter& write)
{
    const std::int64_t nCount = csv.GetRecordCount();
    const auto startReport = [&] {
        if (!m_listReport.front().pReport)
            RaiseMissing(szFunction);
        m_listReport.front().pReport->setPageNum(0);
        return RangeToWrite(m_listReport.front(), nCount);
    };
    if (m_listReport.empty() || !m_listReport.front().pReport)
        RaiseMissing(szFunction);
    return RunOnDefinition(szFunction, [&] {
        WriteRange range = startReport();
        KZCEkaMOKDefReportFinance::clearReportIDList();
        const std::string strStamp = MakeStamp();
        // Nothing here draws from this generator: the host's code may.
        std::srand(static_cast<unsigned>(std::time(nullptr)));
        KZCValidResult::instance()->ResetRundomNumber(DRAWN_NUMBERS);
        std::string strReports;
        for (std::int64_t nIndex = 0; nIndex < nCount; ++nIndex) {
            if (range.nEnd >= LEAST_HANDOVER_ROW && nIndex >= range.nEnd) {
                m_listReport.pop_front();
                if (m_listReport.empty())
                    RaiseFault(szFunction, "構文エラー。MOK作成に必要な情報が準備されていません。");
                range = startReport();
            }
            if (range.Covers(nIndex))
                strReports += write(*m_listReport.front().pReport, nIndex, strStamp);
        }
        return strReports;
    });
}

std::string KZCEkaDefinitionFinance::MakeSingleTypeReportFromCsvMultiRecord(
    KZCEkaCsvFile* pCsv, KZCEkaITDataFinance* pIT)
{
    constexpr const char* FUNCTION =
        "KZCEkaDefinitionFinance::MakeSingleTypeReportFromCsvMultiRecord";
    if (pCsv == nullptr || pIT == nullptr || m_listReport.empty() || !m_listReport.front().pReport)
        RaiseMissing(FUNCTION);
    return RunOnDefinition(FUNCTION, [&] {
        KZCEkaMOKDefReportFinance& report = *m_listReport.front().pReport;
        WriteRange range = {ReadRow(m_listReport.front().strStartRow),
                            ReadRow(m_listReport.front().strEndRow)};
        if (range.nStart == 0 && range.nEnd == 0)
            range = {1, pCsv->GetRecordCount()};
        else
            range = {convRecordRow(pCsv, range.nStart), convRecordRow(pCsv, range.nEnd)};
        report.setPageNum(0);
        KZCEkaMOKDefReportFinance::clearReportIDList();
        std::string strReports;
        for (std::int64_t nIndex = 0; nIndex < pCsv->GetRecordCount(); ++nIndex)
            if (range.Covers(nIndex))
                strReports += report.WriteNodeFromCSVMultiRecord(pCsv, nIndex, pIT);
        return strReports;
    });
}

void KZCEkaDefinitionFinance::RaiseMissing(const char* szFunction)
{
    RaiseFault(szFunction, "引数エラー。MOK作成に必要な情報が準備されていません。");
}

KZCEkaDefinitionFinance::CSV_RECORD_TYPE KZCEkaDefinitionFinance::getCsvRecordType() const
{
    return m_strProcId == SpreadProcedure::PROC_ID ? CSV_RECORD_MULTI : CSV_RECORD_SINGLE;
}

std::vector<std::string> KZCEkaDefinitionFinance::GetReportIDList() const
{
    return KZCEkaMOKDefReportFinance::GetReportIDList();
}

std::string KZCEkaDefinitionFinance::GetReportIdW_Index(int nRow) const
{
    for (const REPORT_INFO& info : m_listReport) {
        const std::int64_t nStart = ReadRow(info.strStartRow);
        const std::int64_t nEnd = ReadRow(info.strEndRow);
        if ((nStart == 0 || nStart <= nRow) && (nEnd == 0 || nEnd == -1 || nEnd >= nRow))
            return info.strReportId;
    }
    return {};
}

std::int64_t KZCEkaDefinitionFinance::convRecordRow(const KZCEkaCsvFile* pCsv, std::int64_t nRow)
{
    return KZCEkaMOKDefineNode::convRecordRow(pCsv, nRow);
}

void KZCEkaDefinitionFinance::Clear()
{
    m_strProcId.clear();
    m_strProcVR.clear();
    m_listReport.clear();
}
