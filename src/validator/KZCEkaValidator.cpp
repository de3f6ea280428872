#include "KZCEkaValidator.h"

#include <utility>

#include "ChildWalk.h"
#include "KZCDebugDump.h"
#include "KZCEkaXDOM.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

constexpr const char* NO_ITEM = "チェックアイテムが作成できません。";
constexpr const char* NO_OUTER_ITEM = "外部条件アイテムが作成できません。";
constexpr const char* SET_UP_FAILED = "validateの初期処理中にエラーが発生しました。";

/// The item of the cursor's element, or null.
std::unique_ptr<KZCEkaValidItem> MakeItem(const KZCEkaXDOM& dom,
                                          long lColumn,
                                          KZCEkaMessage_t eMessage)
{
    return KZCEkaValidItem::CreateItem(
        lColumn, dom.GetAttribute("id").c_str(), dom.GetAttribute("value").c_str(),
        dom.GetAttribute("min").c_str(), dom.GetAttribute("max").c_str(), eMessage);
}

long ReadColumn(const KZCEkaXDOM& dom)
{
    return CText::ReadLong(dom.GetAttribute("column").c_str());
}

bool IsTableType(KZCArgValid_t eType)
{
    // The table has rows for ARG_REFUSED too; it is refused all the same.
    return eType >= ARG_CSV_PATH && eType <= ARG_PROCEDURE_CD_CROSSBORDER && eType != ARG_REFUSED;
}

}  // namespace

int KZCEkaValidator::Initialize(long lColumn, KZCEkaXDOM* pDom)
{
    constexpr const char* FUNCTION = "KZCEkaValidator::Initialize";
    if (pDom == nullptr) {
        KZCDebugDump::Log(FUNCTION, "引数エラー。定義体のDOMが存在しません。");
        return STATUS_NG;
    }
    try {
        Clear();
        return WalkChildren(*pDom, FUNCTION,
                            [&](KZCEkaXDOM& dom) { return AddItem(lColumn, dom); });
    } catch (...) {
        KZCDebugDump::Log(FUNCTION, SET_UP_FAILED);
        return STATUS_NG;
    }
}

/// Adds the item of the cursor's element. An element that is no check is passed over.
int KZCEkaValidator::AddItem(long lColumn, KZCEkaXDOM& dom)
{
    if (dom.GetNodeName() != "valid")
        return STATUS_OK;
    const long lOwnColumn = ReadColumn(dom);
    auto pItem = MakeItem(dom, lOwnColumn < 1 ? lColumn : lOwnColumn - 1,
                          FindEkaMessage(dom.GetAttribute("message")));
    if (!pItem) {
        KZCDebugDump::Log("KZCEkaValidator::Initialize", NO_ITEM);
        return STATUS_NG;
    }
    if (const std::string strErrColumn = dom.GetAttribute("errcolumn"); !strErrColumn.empty())
        pItem->SetErrColumn(strErrColumn);
    if (const std::string strErrRow = dom.GetAttribute("errrow"); !strErrRow.empty())
        pItem->SetErrRow(strErrRow);
    const int nStatus = SetUpOuter(&dom, pItem.get());
    if (nStatus == STATUS_OK)
        m_vecItem.push_back(std::move(pItem));
    return nStatus;
}

int KZCEkaValidator::SetUpOuter(KZCEkaXDOM* pDom, KZCEkaValidItem* pItem)
{
    constexpr const char* FUNCTION = "KZCEkaValidator::SetUpOuter";
    return WalkChildren(*pDom, FUNCTION, [pItem](KZCEkaXDOM& dom) {
        // A condition names its column; it doesn't inherit the node's.
        const long lColumn = dom.GetNodeName() == "outer" ? ReadColumn(dom) : 0;
        if (lColumn <= 0)
            return STATUS_OK;
        auto pOuter = MakeItem(dom, lColumn - 1, MSG_NONE);
        if (!pOuter) {
            KZCDebugDump::Log(FUNCTION, NO_OUTER_ITEM);
            return STATUS_NG;
        }
        pItem->AddOuterItem(pOuter.release());
        return STATUS_OK;
    });
}

int KZCEkaValidator::Initialize(KZCArgValid_t eType, bool /*bCheck*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidator::Initialize";
    try {
        Clear();
        if (!IsTableType(eType))
            RaiseFault(FUNCTION, "存在しない引数チェックタイプが指定されました。");
        MakeItems(GetArgValidRows(eType));
        return STATUS_OK;
    } catch (...) {
        RaiseFault(FUNCTION, SET_UP_FAILED);
    }
}

void KZCEkaValidator::MakeItems(std::span<const ArgValidRow> rows)
{
    constexpr const char* FUNCTION = "KZCEkaValidator::Initialize";
    for (const ArgValidRow& row : rows) {
        auto pItem = KZCEkaValidItem::CreateItem(row.lColumn, row.szId, row.szValue, row.szMin,
                                                 row.szMax, row.eMessage);
        if (!pItem)
            RaiseFault(FUNCTION, NO_ITEM);
        if (*row.szOuterId != '\0') {
            auto pOuter =
                KZCEkaValidItem::CreateItem(row.lOuterColumn, row.szOuterId, row.szOuterValue,
                                            row.szOuterMin, row.szOuterMax, MSG_NONE);
            if (!pOuter)
                RaiseFault(FUNCTION, NO_OUTER_ITEM);
            pItem->AddOuterItem(pOuter.release());
        }
        m_vecItem.push_back(std::move(pItem));
    }
}

int KZCEkaValidator::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    if (pCsv == nullptr)
        RaiseFault("KZCEkaValidator::ValidateCsv", "引数エラー。CSV格納情報が不正です。");
    int nStatus = STATUS_OK;
    for (const auto& pItem : m_vecItem) {
        nStatus = pItem->ValidateCsv(pCsv, lRow, lColumn);
        if (nStatus == STATUS_NG)
            break;
    }
    return nStatus;
}

int KZCEkaValidator::Validate(const char* szValue, long lRow, long lColumn)
{
    int nStatus = STATUS_OK;
    for (const auto& pItem : m_vecItem) {
        nStatus = pItem->Validate(szValue, lRow, lColumn);
        if (nStatus == STATUS_NG)
            break;
    }
    return nStatus;
}
