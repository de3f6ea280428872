#include "KZCEkaCsvFile.h"

#include <string_view>
#include <utility>

#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaXDOM.h"
#include "KZCMacOSNative.h"
#include "KZCValidResult.h"
#include "csv/CsvSplitter.h"
#include "family/RecordLimit.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

constexpr unsigned short DEFINITION_INDEX_ID = 202;

/// Held of the records beyond the limit, in bytes. A document may have 10 MiB; a file of more could
/// not be filed even if it had fewer records.
constexpr std::size_t HELD_BEYOND_LIMIT = 10'485'760;

/// Memory that the column being read keeps between columns, in bytes.
constexpr std::size_t KEPT_BUFFER = 65'536;

}  // namespace

std::int64_t KZCEkaCsvFile::GetNonCRLFRecordCount() const
{
    return m_table.FilledCount();
}

int KZCEkaCsvFile::ReadFile(const std::string& strPath)
{
    constexpr const char* FUNCTION = "KZCEkaCsvFile::ReadFile";
    try {
        if (ReadAndParse(strPath, false, FUNCTION) != STATUS_OK || CheckRecordCount() != STATUS_OK)
            return STATUS_NG;
        if (m_strTypeId.empty())
            return Refuse(HE70024E, 0, 0, FUNCTION,
                          "CSVデータに有効なレコードが存在しません。（HE70024E）", "");
        for (std::int64_t nRecord = 0; nRecord < GetRecordCount(); ++nRecord)
            checkGeneration(nRecord);
        return STATUS_OK;
    } catch (...) {
        RaiseFault(FUNCTION, UNEXPECTED_ERROR);
    }
}

/// The one blank record that a closing line end leaves doesn't count against the limit.
int KZCEkaCsvFile::CheckRecordCount() const
{
    const std::int64_t nCount = GetRecordCount();
    const bool bOnlyClosingBlank = nCount == BASE_RECORDS_MAX + 1 && !m_table.IsFilled(nCount - 1);
    if (nCount <= BASE_RECORDS_MAX || bOnlyClosingBlank)
        return STATUS_OK;
    return Refuse(HE70020E, 0, 0, "KZCEkaCsvFile::ReadFile",
                  "CSVレコードの総件数エラーです。（HE70020E）", nCount);
}

bool KZCEkaCsvFile::IsValidRecord(long lRecord) const
{
    return m_table.IsFilled(lRecord) && m_table.ColumnCount(lRecord) >= 2;
}

void KZCEkaCsvFile::DeleteEmptyRecord()
{
    // All memory is taken before the first record goes: a fault leaves the file as it was.
    std::map<std::int64_t, std::string> mapKept;
    auto pGeneration = m_mapGeneration.begin();
    // By position, not by the old number: wanted.
    for (std::int64_t nKept = 0;
         nKept < m_table.FilledCount() && pGeneration != m_mapGeneration.end(); ++nKept)
        mapKept.emplace(nKept, (pGeneration++)->second);
    m_table.Remove([](bool bFilled, std::int64_t /*nColumns*/) { return !bFilled; });
    m_mapGeneration = std::move(mapKept);
}

void KZCEkaCsvFile::Clear()
{
    m_mapGeneration.clear();
    m_strTypeId.clear();
    m_nColumnNum = 0;
    m_table.Clear();
    m_nSurplusColumns = 0;
    m_bCountOnly = false;
}

int KZCEkaCsvFile::ColumnTerm(std::string& strBuffer, Record& record, bool bEndOfRecord)
{
    TakeColumn(strBuffer, record);
    if (!bEndOfRecord)
        return STATUS_OK;
    if (!ValidateRecord(record))
        return STATUS_NG;
    // The last record that can count is held whatever it is: it may be the forgiven blank one.
    StoreRecord(record, GetRecordCount() > BASE_RECORDS_MAX);
    return STATUS_OK;
}

void KZCEkaCsvFile::TakeColumn(std::string& strBuffer, Record& record)
{
    if (record.empty())
        m_nSurplusColumns = 0;
    if (record.size() < (m_bCountOnly ? 1 : CsvTable::MAX_HELD_COLUMNS))
        record.push_back(KZCEkaCommon::StringTrim(strBuffer));
    else
        ++m_nSurplusColumns;
    strBuffer.clear();
    if (strBuffer.capacity() > KEPT_BUFFER)
        strBuffer.shrink_to_fit();
}

std::int64_t KZCEkaCsvFile::ColumnsOf(const Record& record) const
{
    return static_cast<std::int64_t>(record.size()) + m_nSurplusColumns;
}

void KZCEkaCsvFile::StoreRecord(Record& record, bool bBeyondLimit)
{
    m_bCountOnly = m_bCountOnly || (bBeyondLimit && m_table.HeldBytes() > HELD_BEYOND_LIMIT);
    if (m_bCountOnly)
        m_table.Count(record);
    else
        m_table.Append(record, ColumnsOf(record));
    record.clear();
    m_nSurplusColumns = 0;
}

int KZCEkaCsvFile::Refuse(KZCEkaMessage_t eMessage,
                          long lRecord,
                          long lColumn,
                          const char* szFunction,
                          const char* szLog,
                          const char* szValue)
{
    KZCValidResult::instance()->SetResult(eMessage, lRecord, lColumn, SINGLE_COLUMN);
    KZCDebugDump::Log(szFunction, szLog);
    KZCDebugDump::OutputValid(eMessage, lRecord, lColumn, szValue,
                              !KZCEkaCommon::GetCsvCheckFlag());
    return STATUS_NG;
}

int KZCEkaCsvFile::Refuse(KZCEkaMessage_t eMessage,
                          long lRecord,
                          long lColumn,
                          const char* szFunction,
                          const char* szLog,
                          long lValue)
{
    KZCValidResult::instance()->SetResult(eMessage, lRecord, lColumn, SINGLE_COLUMN);
    KZCDebugDump::Log(szFunction, szLog);
    KZCDebugDump::OutputValid(eMessage, lRecord, lColumn, lValue);
    return STATUS_NG;
}

bool KZCEkaCsvFile::ValidateRecord(const Record& record)
{
    constexpr const char* FUNCTION = "KZCEkaCsvFile::ValidateRecord";
    const std::string& strTypeId = record.front();
    if (strTypeId.empty() && ColumnsOf(record) == 1)
        return true;
    if (m_strTypeId.empty()) {
        if (!FindTypeId(strTypeId))
            return Refuse(HE70021E, 0, 1, FUNCTION,
                          "定義体から対応する申請番号種別が見つかりません（HE70021E）",
                          strTypeId.c_str()) == STATUS_OK;
    } else if (strTypeId != m_strTypeId) {
        return Refuse(HE70021E, 0, 1, FUNCTION, "CSV内で申請番号が統一されていません。（HE70021E）",
                      strTypeId.c_str()) == STATUS_OK;
    }
    const std::int64_t nColumns = ColumnsOf(record);
    if (nColumns == m_nColumnNum)
        return true;
    return Refuse(HE70019E, 0, 0, FUNCTION, "CSVのカラム数が不正です。（HE70019E）", nColumns) ==
           STATUS_OK;
}

/// Takes the type id and its column count from the definition index. False if it isn't there.
bool KZCEkaCsvFile::FindTypeId(const std::string& strTypeId)
{
    const std::string strPath = KZCEkaCommon::LoadResoucePath(DEFINITION_INDEX_ID, "XML_DAT");
    KZCEkaXDOM dom;
    if (!dom.Initialize() || !dom.Parse(strPath.c_str()))
        RaiseFault("KZCEkaCsvFile::ValidateRecord", "定義体の読み込みでエラーが発生しました。");
    for (long lMove = dom.MoveFirstChild(); lMove == STATUS_OK; lMove = dom.MoveNextSibling()) {
        if (dom.GetNodeName() != "report" || dom.GetAttribute("id") != strTypeId)
            continue;
        m_strTypeId = strTypeId;
        m_nColumnNum = CText::ReadLong(dom.GetAttribute("columnNum").c_str());
        return true;
    }
    return false;
}

int KZCEkaCsvFile::ReadAndParse(const std::string& strPath, bool bQuote, const char* szFunction)
{
    Clear();
    CsvSplitter splitter(*this, bQuote);
    int nStatus = STATUS_OK;
    const bool bRead = KZCMacOSNative::readSJISPieces(
        strPath.c_str(), !KZCEkaCommon::GetCsvCheckFlag(), [&](std::string_view strPiece) {
            nStatus = splitter.Take(strPiece);
            return nStatus == STATUS_OK;
        });
    if (!bRead) {
        Clear();
        RaiseFault(szFunction, "CSVファイルリードエラーが発生しました。");
    }
    return nStatus == STATUS_OK ? splitter.Finish() : nStatus;
}

int KZCEkaCsvFile::Parse(const char* szText, bool bQuote)
{
    if (szText == nullptr)
        RaiseFault("KZCEkaCsvFile::Parse", "引数のポインタが不正です。");
    CsvSplitter splitter(*this, bQuote);
    return splitter.Take(szText) == STATUS_OK ? splitter.Finish() : STATUS_NG;
}

std::string KZCEkaCsvFile::GetRecordGeneration(long lRecord) const
{
    const auto pGeneration = m_mapGeneration.find(lRecord);
    return pGeneration != m_mapGeneration.end() ? pGeneration->second : std::string();
}

bool KZCEkaCsvFile::checkEmpty(long lRecord, long lColumn) const
{
    return *GetItem(lRecord, lColumn - 1) == '\0';
}
