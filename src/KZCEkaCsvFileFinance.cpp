#include "KZCEkaCsvFileFinance.h"

#include <algorithm>

#include "KZCDebugDump.h"
#include "KZCEkaXDOM.h"
#include "KZCValidResult.h"
#include "family/FamilyFolder.h"
#include "family/FormRange.h"
#include "family/SpreadProcedure.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

/// What ValidateRecordFinance tells the reader.
constexpr int STORE_RECORD = 1;
constexpr int STOP_READING = 0;
constexpr int DROP_RECORD = -1;

constexpr const char* VALIDATE_RECORD = "KZCEkaCsvFileFinance::ValidateRecordFinance";
constexpr const char* CHECK_MAX_RECORD = "KZCEkaCsvFileFinance::checkMaxRecord";

/// The one procedure whose records may begin with an empty column.

std::int64_t ReadNumber(const KZCEkaXDOM& dom, const char* szAttribute)
{
    return CText::ReadLong(dom.GetAttribute(szAttribute).c_str());
}

}  // namespace

std::int64_t KZCEkaCsvFileFinance::GetNonCRLFRecordCount() const
{
    if (m_eEmptyCheckMode == EMPTYCHECK_FIRST_COLUMN)
        return m_table.FilledCount();
    std::int64_t nCount = 0;
    for (long lRecord = 0; lRecord < GetRecordCount(); ++lRecord)
        if (!isEmptyRecord(lRecord))
            ++nCount;
    return nCount;
}

int KZCEkaCsvFileFinance::ReadFile(const std::string& strPath)
{
    constexpr const char* FUNCTION = "KZCEkaCsvFileFinance::ReadFile";
    try {
        return ReadAndParse(strPath, false, FUNCTION);
    } catch (...) {
        RaiseFault(FUNCTION, UNEXPECTED_ERROR);
    }
}

bool KZCEkaCsvFileFinance::IsValidRecord(long lRecord) const
{
    return m_eEmptyCheckMode == EMPTYCHECK_COLUMN_COUNT ? m_table.ColumnCount(lRecord) > 0
                                                        : m_table.HasText(lRecord);
}

void KZCEkaCsvFileFinance::DeleteEmptyRecord()
{
    if (m_eEmptyCheckMode == EMPTYCHECK_COLUMN_COUNT)
        m_table.Remove([](bool /*bFilled*/, std::int64_t nColumns) { return nColumns == 0; });
    else
        m_table.Remove([](bool bFilled, std::int64_t /*nColumns*/) { return !bFilled; });
}

void KZCEkaCsvFileFinance::Clear()
{
    KZCEkaCsvFile::Clear();
    m_vecColInfo.clear();
}

int KZCEkaCsvFileFinance::ColumnTerm(std::string& strBuffer, Record& record, bool bEndOfRecord)
{
    TakeColumn(strBuffer, record);
    if (!bEndOfRecord)
        return STATUS_OK;
    switch (ValidateRecordFinance(record)) {
        case STORE_RECORD:
            StoreRecord(record, HasTooManyRecords());
            return STATUS_OK;
        case DROP_RECORD:
            record.clear();
            return STATUS_OK;
        default:
            return STATUS_NG;
    }
}

int KZCEkaCsvFileFinance::ValidateRecordFinance(const Record& record)
{
    const std::string& strFirst = record.front();
    if (strFirst.empty() && ColumnsOf(record) == 1)
        return DROP_RECORD;
    if (m_strTypeId.empty() && !ReadReports(record))
        return STOP_READING;
    // With several reports only the first record of the file begins with the type id.
    if (m_vecColInfo.size() != 1 || GetRecordCount() == 0 || strFirst == m_strTypeId)
        return STORE_RECORD;
    Refuse(HE70021E, 0, 1, VALIDATE_RECORD, "CSV内で申請番号が統一されていません。（HE70021E）",
           strFirst.c_str());
    return STOP_READING;
}

/// Takes the type id of the first record and the reports of its procedure. False if there are none;
/// the reason is in the result store.
bool KZCEkaCsvFileFinance::ReadReports(const Record& record)
{
    const std::string& strTypeId = record.front();
    PROC_INFO info;
    if (!KZCDefinitionManager::getProcInfo(strTypeId, info, m_eCallType)) {
        Refuse(HE70021E, 0, 1, VALIDATE_RECORD, "手続情報が見つかりません。（HE70021E）", "");
        return false;
    }
    m_nMaxRecord = info.lMaxRecord;
    LoadReports(strTypeId, info.procId);
    if (!m_strTypeId.empty())
        return true;
    Refuse(HE70021E, 0, 1, VALIDATE_RECORD,
           "定義体から対応する申請番号種別が見つかりません（HE70021E）", strTypeId.c_str());
    return false;
}

void KZCEkaCsvFileFinance::LoadReports(const std::string& strTypeId, const std::string& strProcId)
{
    const std::string strPath = FamilyFolder::FindDefinition(
        m_eCallType, strProcId, FamilyFolder::VALIDATION_FILE, VALIDATE_RECORD);
    KZCEkaXDOM dom;
    if (!dom.Initialize() || !dom.Parse(strPath.c_str()))
        RaiseFault(VALIDATE_RECORD, "定義体の読み込みでエラーが発生しました。");
    for (long lMove = dom.MoveFirstChild(); lMove == STATUS_OK; lMove = dom.MoveNextSibling()) {
        if (dom.GetNodeName() != "report")
            continue;
        m_strTypeId = strTypeId;
        setEmptyCheckMode(strTypeId);
        m_vecColInfo.push_back({ReadNumber(dom, "startRow"), ReadNumber(dom, "endRow"),
                                ReadNumber(dom, "columnNum"), ReadNumber(dom, "lastRecord")});
    }
}

int KZCEkaCsvFileFinance::checkMaxRecord() const
{
    if (m_strTypeId.empty())
        return Refuse(HE70024E, 0, 0, CHECK_MAX_RECORD,
                      "CSVデータに有効なレコードが存在しません。（HE70024E）", "");
    PROC_INFO info;
    if (!KZCDefinitionManager::getProcInfo(m_strTypeId, info, m_eCallType))
        return Refuse(HE70021E, 0, 1, CHECK_MAX_RECORD, "手続情報が見つかりません。（HE70021E）",
                      "");
    if (const std::int64_t nCount = GetNonCRLFRecordCount(); nCount > info.lMaxRecord)
        return Refuse(HE70029E, 0, 0, CHECK_MAX_RECORD,
                      "CSVレコードの総件数エラーです。（HE70029E）", nCount);
    return CheckReportRecords();
}

/// Every record has the columns of its report.
int KZCEkaCsvFileFinance::CheckReportRecords() const
{
    if (m_vecColInfo.size() == 1) {
        for (int nIndex = 0; nIndex < GetRecordCount(); ++nIndex)
            if (IsValidRecord(nIndex) &&
                checkColumnCount(nIndex, m_vecColInfo.front().nColumnNum) != STATUS_OK)
                return STATUS_NG;
        return STATUS_OK;
    }
    const std::int64_t nValid = CountValidRecords();
    if (static_cast<std::int64_t>(m_vecColInfo.size()) > nValid)
        return Refuse(HE70033E, 2, 0, CHECK_MAX_RECORD,
                      "2レコード目以降の入力が必要です。（HE70033E）", nValid);
    const bool bPassed = std::ranges::all_of(
        m_vecColInfo, [this](const COL_INFO& info) { return CheckRange(info) == STATUS_OK; });
    return bPassed ? STATUS_OK : STATUS_NG;
}

/// The records of one of several reports, the empty ones too.
int KZCEkaCsvFileFinance::CheckRange(const COL_INFO& info) const
{
    const std::int64_t nCount = GetRecordCount();
    const FormRange range = {info.nStartRow, info.nEndRow, info.nLastRecord != 0};
    if (!range.bTrailer && range.nStartRow < 1) {
        KZCDebugDump::Log(CHECK_MAX_RECORD);
        return STATUS_NG;
    }
    const RecordSpan span = RecordsOf(range, m_vecColInfo.back().nLastRecord != 0, nCount);
    for (std::int64_t nNumber = span.nFirst; nNumber <= span.nLast; ++nNumber)
        if (checkColumnCount(static_cast<int>(nNumber - 1), info.nColumnNum) != STATUS_OK)
            return STATUS_NG;
    return STATUS_OK;
}

int KZCEkaCsvFileFinance::checkColumnCount(int nIndex, long lExpected) const
{
    constexpr const char* FUNCTION = "KZCEkaCsvFileFinance::checkColumnCount";
    if (lExpected < 1)
        return Refuse(HE70019E, 0, 0, FUNCTION,
                      "定義体の内容が不正です。CSVのカラム数を取得できません。（HE70019E）",
                      lExpected);
    const std::int64_t nCount = m_table.ColumnCount(nIndex);
    if (nCount == lExpected)
        return STATUS_OK;
    return Refuse(HE70019E, 0, 0, FUNCTION, "CSVのカラム数が不正です。（HE70019E）", nCount);
}

bool KZCEkaCsvFileFinance::isEmptyRecord(long lRecord) const
{
    return m_eEmptyCheckMode == EMPTYCHECK_COLUMN_COUNT ? m_table.ColumnCount(lRecord) == 0
                                                        : !m_table.IsFilled(lRecord);
}

void KZCEkaCsvFileFinance::setEmptyCheckMode(const std::string& strTypeId)
{
    m_eEmptyCheckMode =
        strTypeId == SpreadProcedure::TYPE_ID ? EMPTYCHECK_COLUMN_COUNT : EMPTYCHECK_FIRST_COLUMN;
}

std::int64_t KZCEkaCsvFileFinance::CountValidRecords() const
{
    std::int64_t nValid = 0;
    for (long lRecord = 0; lRecord < GetRecordCount(); ++lRecord)
        if (IsValidRecord(lRecord))
            ++nValid;
    return nValid;
}

/// Whatever follows, checkMaxRecord refuses the file for its number of records.
bool KZCEkaCsvFileFinance::HasTooManyRecords() const
{
    // Every record that is read has columns.
    const std::int64_t nCount =
        m_eEmptyCheckMode == EMPTYCHECK_COLUMN_COUNT ? GetRecordCount() : m_table.FilledCount();
    return nCount > m_nMaxRecord;
}
