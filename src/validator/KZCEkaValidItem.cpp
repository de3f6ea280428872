#include "KZCEkaValidItem.h"

#include <algorithm>
#include <new>
#include <utility>

#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "KZCValidResult.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

KZCEkaValidItem::KZCEkaValidItem(long lColumn, KZCEkaMessage_t eMessage)
    : m_eMessage(eMessage), m_lColumn(lColumn)
{
}

KZCEkaValidItem::~KZCEkaValidItem()
{
    while (!m_vecOuter.empty())
        m_vecOuter.pop_back();
}

int KZCEkaValidItem::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidItem::ValidateCsv");
    m_pCsv = pCsv;
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const char* szCell = pCsv->GetItem(lRow, m_lColumn);
    m_lRow = lRow;
    const KZCEkaMessage_t eRefusal = _validate(szCell);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordCell(eRefusal, lRow, szCell, !KZCEkaCommon::GetCsvCheckFlag());
}

int KZCEkaValidItem::Validate(const char* szValue, long lRow, long lColumn)
{
    if (!std::ranges::all_of(m_vecOuter, [szValue](const auto& pOuter) {
            return pOuter->ValidateOuter(szValue) == STATUS_OK;
        }))
        return STATUS_OK;
    const KZCEkaMessage_t eRefusal = _validate(szValue);
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    if (m_bErrOutput)
        Record(ReportedCode(eRefusal), lRow, lColumn, SINGLE_COLUMN, szValue,
               !KZCEkaCommon::GetCsvCheckFlag());
    return STATUS_NG;
}

int KZCEkaValidItem::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidItem::ValidateOuter");
    m_pCsv = pCsv;
    const char* szCell = pCsv->GetItem(lRow, m_lColumn);
    m_lRow = lRow;
    return _validate(szCell) == MSG_NONE ? STATUS_OK : OuterRefused();
}

int KZCEkaValidItem::ValidateOuter(const char* szValue)
{
    return _validate(szValue) == MSG_NONE ? STATUS_OK : OuterRefused();
}

void KZCEkaValidItem::AddOuterItem(KZCEkaValidItem* pItem)
{
    std::unique_ptr<KZCEkaValidItem> pOwned(pItem);  // before the list, which may fail to grow
    m_vecOuter.push_back(std::move(pOwned));
}

std::string KZCEkaValidItem::GetYYYYMMDDStr(const KZCEkaCsvFile* pCsv,
                                            long lYearColumn,
                                            long lMonthColumn,
                                            long lDayColumn)
{
    constexpr std::size_t BUFFER_SIZE = 64;
    constexpr int YEAR_WIDTH = 4;
    constexpr int PART_WIDTH = 2;
    try {
        if (pCsv == nullptr)
            throw FAULT;
        const char* szYear = pCsv->GetItem(m_lRow, lYearColumn);
        const char* szMonth = pCsv->GetItem(m_lRow, lMonthColumn);
        const char* szDay = pCsv->GetItem(m_lRow, lDayColumn);
        if (*szYear == '\0' && *szMonth == '\0' && *szDay == '\0')
            return {};
        std::string strDate;
        CText::AppendNumber(strDate, CText::ReadInt(szYear), YEAR_WIDTH);
        strDate += '/';
        CText::AppendNumber(strDate, CText::ReadInt(szMonth), PART_WIDTH);
        strDate += '/';
        CText::AppendNumber(strDate, CText::ReadInt(szDay), PART_WIDTH);
        return CText::CutToBuffer(std::move(strDate), BUFFER_SIZE);
    } catch (...) {
        RaiseFault("KZCEkaValidItem::GetYYYYMMDDStr", "想定しないエラーが発生しました。");
    }
}

void KZCEkaValidItem::SplitValue(const std::string& strValue,
                                 std::vector<long>& vecColumn,
                                 const std::string& strDelimiter)
{
    vecColumn.clear();
    if (strValue.empty())
        return;
    std::size_t nStart = 0;
    std::size_t nEnd = 0;
    do {
        nEnd = strDelimiter.empty() ? std::string::npos : strValue.find(strDelimiter, nStart);
        vecColumn.push_back(WrappingSum(std::stol(strValue.substr(nStart, nEnd - nStart)), -1));
        nStart = nEnd + strDelimiter.size();
    } while (nEnd != std::string::npos);
}

KZCEkaMessage_t KZCEkaValidItem::_validate(const char* /*szValue*/)
{
    return MSG_NONE;
}

void KZCEkaValidItem::RequireCsv(const KZCEkaCsvFile* pCsv, const char* szFunction)
{
    if (pCsv == nullptr)
        RaiseFault(szFunction, "引数エラー。CSV格納情報が不正です。");
}

bool KZCEkaValidItem::OuterItemsHold(const KZCEkaCsvFile* pCsv, long lRow)
{
    return std::ranges::all_of(m_vecOuter, [&](const auto& pOuter) {
        return pOuter->ValidateOuter(pCsv, lRow, -1) == STATUS_OK;
    });
}

int KZCEkaValidItem::RecordCell(KZCEkaMessage_t eRefusal,
                                long lRow,
                                const char* szCell,
                                bool bUtf8) const
{
    if (m_bErrOutput)
        Record(ReportedCode(eRefusal), WrappingSum(lRow, 1), WrappingSum(m_lColumn, 1),
               SINGLE_COLUMN, szCell, bUtf8);
    return STATUS_NG;
}

void KZCEkaValidItem::Record(KZCEkaMessage_t eMessage,
                             long lRecord,
                             long lColumn,
                             long lColumnEnd,
                             const char* szValue,
                             bool bUtf8)
{
    KZCValidResult::instance()->SetResult(eMessage, lRecord, lColumn, lColumnEnd);
    KZCDebugDump::OutputValid(eMessage, lRecord, lColumn, szValue, bUtf8);
}

int KZCEkaValidItem::OuterRefused()
{
    KZCDebugDump::OutputMessage("外部条件チェックアウトです。", 0);
    return STATUS_NG;
}

KZCEkaMessage_t KZCEkaValidItem::Refuse(KZCEkaMessage_t eMessage,
                                        const char* szFunction,
                                        const char* szMessage,
                                        const char* szFile,
                                        long lLine)
{
    KZCDebugDump::OutputLog(szFile, lLine, szFunction, szMessage);
    return eMessage;
}

void KZCEkaValidItem::RaiseCaught(const char* szFunction, const char* szFile, long lLine)
{
    try {
        throw;
    } catch (const std::bad_alloc&) {
        RaiseFault(szFunction, "メモリ確保エラー。", szFile, lLine);
    } catch (...) {
        RaiseFault(szFunction, nullptr, szFile, lLine);
    }
}

void KZCEkaValidItem::RaiseParameterFault(const char* szFunction, const char* szFile, long lLine)
{
    RaiseFault(szFunction, "定義体パラメータ指定エラー。", szFile, lLine);
}
