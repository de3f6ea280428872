#include "KZCEkaValidator.h"

#include "CText.h"
#include "Fault.h"
#include "KZCDebugDump.h"
#include "KZCEkaXDOM.h"

namespace {

constexpr const char* NO_ITEM = "チェックアイテムが作成できません。";
constexpr const char* NO_OUTER_ITEM = "外部条件アイテムが作成できません。";
constexpr const char* CURSOR_LOST = "定義体のDOM操作に失敗しました。";
constexpr const char* SET_UP_FAILED = "validateの初期処理中にエラーが発生しました。";

/// Back to the parent of the children just read. \return nStatus, or STATUS_NG if that fails.
int ReturnToParent(KZCEkaXDOM& dom, const char* szFunction, int nStatus)
{
    if (dom.MoveParent() == STATUS_OK)
        return nStatus;
    KZCDebugDump::Log(szFunction, CURSOR_LOST);
    return STATUS_NG;
}

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
        if (pDom->MoveFirstChild() != STATUS_OK)
            return STATUS_OK;
        return ReturnToParent(*pDom, FUNCTION, ReadItems(lColumn, *pDom));
    } catch (...) {
        KZCDebugDump::Log(FUNCTION, SET_UP_FAILED);
        return STATUS_NG;
    }
}

/// Reads the cursor's element and its siblings.
int KZCEkaValidator::ReadItems(long lColumn, KZCEkaXDOM& dom)
{
    do {
        if (dom.GetNodeName() != "valid")
            continue;
        int nStatus = STATUS_OK;
        auto pItem = ReadItem(lColumn, dom, nStatus);
        if (nStatus != STATUS_OK)
            return nStatus;
        m_vecItem.push_back(std::move(pItem));
    } while (dom.MoveNextSibling() == STATUS_OK);
    return STATUS_OK;
}

std::unique_ptr<KZCEkaValidItem> KZCEkaValidator::ReadItem(long lColumn,
                                                           KZCEkaXDOM& dom,
                                                           int& nStatus)
{
    const long lOwnColumn = ReadColumn(dom);
    auto pItem = MakeItem(dom, lOwnColumn < 1 ? lColumn : lOwnColumn - 1,
                          FindEkaMessage(dom.GetAttribute("message")));
    if (!pItem) {
        KZCDebugDump::Log("KZCEkaValidator::Initialize", NO_ITEM);
        nStatus = STATUS_NG;
        return nullptr;
    }
    if (const std::string strErrColumn = dom.GetAttribute("errcolumn"); !strErrColumn.empty())
        pItem->SetErrColumn(strErrColumn);
    if (const std::string strErrRow = dom.GetAttribute("errrow"); !strErrRow.empty())
        pItem->SetErrRow(strErrRow);
    nStatus = SetUpOuter(&dom, pItem.get());
    return pItem;
}

int KZCEkaValidator::SetUpOuter(KZCEkaXDOM* pDom, KZCEkaValidItem* pItem)
{
    constexpr const char* FUNCTION = "KZCEkaValidator::SetUpOuter";
    if (pDom->MoveFirstChild() != STATUS_OK)
        return STATUS_OK;
    int nStatus = STATUS_OK;
    do {
        // A condition names its column; it doesn't inherit the node's.
        const long lColumn = pDom->GetNodeName() == "outer" ? ReadColumn(*pDom) : 0;
        if (lColumn <= 0)
            continue;
        auto pOuter = MakeItem(*pDom, lColumn - 1, MSG_NONE);
        if (!pOuter) {
            KZCDebugDump::Log(FUNCTION, NO_OUTER_ITEM);
            nStatus = STATUS_NG;
            break;
        }
        pItem->AddOuterItem(pOuter.release());
    } while (pDom->MoveNextSibling() == STATUS_OK);
    return ReturnToParent(*pDom, FUNCTION, nStatus);
}

int KZCEkaValidator::Initialize(KZCArgValid_t eType, bool /*bCheck*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidator::Initialize";
    try {
        Clear();
        if (!IsTableType(eType))
            RaiseFault(FUNCTION, "存在しない引数チェックタイプが指定されました。");
        MakeItems(eType);
        return STATUS_OK;
    } catch (...) {
        RaiseFault(FUNCTION, SET_UP_FAILED);
    }
}

void KZCEkaValidator::MakeItems(KZCArgValid_t eType)
{
    constexpr const char* FUNCTION = "KZCEkaValidator::Initialize";
    for (const ArgValidRow& row : GetArgValidRows(eType)) {
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
