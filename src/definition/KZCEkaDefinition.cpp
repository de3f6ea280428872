#include "KZCEkaDefinition.h"

#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "KZCEkaXDOM.h"
#include "definition/DefinitionLimits.h"
#include "definition/RunOnDefinition.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

constexpr unsigned short DEFINITION_INDEX_ID = 202;
constexpr std::size_t MESSAGE_BUFFER_SIZE = 100;

}  // namespace

int KZCEkaDefinition::CreateDefinition(const char* szTypeId, bool bValidate)
{
    constexpr const char* FUNCTION = "KZCEkaDefinition::CreateDefinition";
    if (szTypeId == nullptr) {
        KZCDebugDump::Log(FUNCTION, "引数エラー。定義情報作成に必要な情報が準備されていません。");
        return STATUS_NG;
    }
    try {
        Clear();
        const std::string strPath = KZCEkaCommon::LoadResoucePath(DEFINITION_INDEX_ID, "XML_DAT");
        KZCEkaXDOM dom;
        if (!dom.Initialize() || !dom.Parse(strPath.c_str()))
            RaiseFault(FUNCTION, "定義体の読み込みでエラーが発生しました。");
        return LoadTree(dom, szTypeId, bValidate);
    } catch (...) {
        KZCDebugDump::Log(FUNCTION, UNEXPECTED_ERROR);
        return STATUS_NG;
    }
}

/// Makes the tree of the first report with the type id. The cursor stands on the root.
int KZCEkaDefinition::LoadTree(KZCEkaXDOM& dom, const char* szTypeId, bool bValidate)
{
    constexpr const char* FUNCTION = "KZCEkaDefinition::CreateDefinition";
    long lMove = dom.MoveFirstChild();
    while (lMove == STATUS_OK &&
           (dom.GetNodeName() != "report" || dom.GetAttribute("id") != szTypeId))
        lMove = dom.MoveNextSibling();
    if (lMove == STATUS_OK)
        TakeTexts(dom);
    if (m_strProcId.empty())
        RaiseFault(FUNCTION, CText::CutToBuffer(
                                 std::string("定義体に対象の申請番号が存在しません。:") + szTypeId,
                                 MESSAGE_BUFFER_SIZE)
                                 .c_str());
    return LoadItems(dom, bValidate);
}

void KZCEkaDefinition::TakeTexts(const KZCEkaXDOM& dom)
{
    m_strProcId = dom.GetAttribute("procId");
    m_strProcVR = dom.GetAttribute("procVR");
    m_strReportId = dom.GetAttribute("reportId");
    m_strReportVR = dom.GetAttribute("reportVR");
}

int KZCEkaDefinition::LoadItems(KZCEkaXDOM& dom, bool bValidate)
{
    constexpr const char* FUNCTION = "KZCEkaDefinition::CreateDefinition";
    m_pReport = std::make_unique<KZCEkaMOKDefReport>();
    m_pReport->Initialize(m_strReportId.c_str(), m_strReportVR.c_str());
    for (long lMove = dom.MoveFirstChild(); lMove == STATUS_OK; lMove = dom.MoveNextSibling()) {
        if (dom.GetNodeName() != "item")
            continue;
        if (!AddNode(dom, bValidate)) {
            KZCDebugDump::Log(FUNCTION, BROKEN_TREE);
            return STATUS_NG;
        }
    }
    return STATUS_OK;
}

/// Makes the node of the cursor's item and hangs it in the tree.
bool KZCEkaDefinition::AddNode(KZCEkaXDOM& dom, bool bValidate)
{
    auto pNode = KZCEkaMOKDefineNode::CreateNode(&dom, bValidate);
    if (!pNode)
        return false;
    // Held by this share as well while parents take theirs; destroyed with it if none did.
    const KZCEkaMOKDefineNode::Share node(pNode.release());
    return m_pReport->LocateNode(&*node, STATUS_NG) >= 0;
}

int KZCEkaDefinition::ValidateCsv(const KZCEkaCsvFile* pCsv)
{
    constexpr const char* FUNCTION = "KZCEkaDefinition::ValidateCsv";
    if (pCsv == nullptr || !m_pReport)
        RaiseFault(FUNCTION, "引数エラー。CSVチェックに必要な情報が準備されていません。");
    return RunOnDefinition(FUNCTION, [&] {
        int nStatus = STATUS_OK;
        for (long lRow = 0; lRow < pCsv->GetRecordCount(); ++lRow)
            if (pCsv->IsValidRecord(lRow) && m_pReport->ValidateCsv(pCsv, lRow) != STATUS_OK)
                nStatus = STATUS_NG;
        return nStatus;
    });
}

std::string KZCEkaDefinition::MakeReportToCsv(const KZCEkaCsvFile* pCsv, KZCEkaITData* pIT)
{
    constexpr const char* FUNCTION = "KZCEkaDefinition::MakeReportToCsv";
    if (pCsv == nullptr || pIT == nullptr || !m_pReport)
        RaiseFault(FUNCTION, "引数エラー。MOK作成に必要な情報が準備されていません。");
    return RunOnDefinition(FUNCTION, [&] {
        std::string strReports;
        for (long lRow = 0; lRow < pCsv->GetRecordCount(); ++lRow)
            strReports += m_pReport->WriteNode(pCsv, lRow, pIT);
        return strReports;
    });
}

void KZCEkaDefinition::Clear()
{
    m_strProcId.clear();
    m_strProcVR.clear();
    m_strReportId.clear();
    m_strReportVR.clear();
    m_pReport.reset();
}
