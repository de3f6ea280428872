#include "KZCEkaCsvFile.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "CText.h"
#include "Fault.h"
#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaXDOM.h"
#include "KZCMacOSNative.h"
#include "KZCValidResult.h"
#include "RecordLimit.h"

namespace {

constexpr unsigned short DEFINITION_INDEX_ID = 202;

bool IsBlank(const KZCEkaCsvFile::Record& record)
{
    return record.empty() || record.front().empty();
}

/// Outside quotes the byte ends a column.
constexpr bool EndsColumn(char cByte)
{
    return cByte == ',' || cByte == '\n' || cByte == '\r';
}

}  // namespace

std::int64_t KZCEkaCsvFile::GetNonCRLFRecordCount() const
{
    return std::ranges::count_if(m_vecRecord,
                                 [](const Record& record) { return !IsBlank(record); });
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
    const bool bOnlyClosingBlank = nCount == BASE_RECORDS_MAX + 1 && IsBlank(m_vecRecord.back());
    if (nCount <= BASE_RECORDS_MAX || bOnlyClosingBlank)
        return STATUS_OK;
    return Refuse(HE70020E, 0, 0, "KZCEkaCsvFile::ReadFile",
                  "CSVレコードの総件数エラーです。（HE70020E）", nCount);
}

bool KZCEkaCsvFile::IsValidRecord(long lRecord) const
{
    if (lRecord < 0 || lRecord >= GetRecordCount())
        return false;
    const Record& record = m_vecRecord[static_cast<std::size_t>(lRecord)];
    return !IsBlank(record) && record.size() >= 2;
}

void KZCEkaCsvFile::DeleteEmptyRecord()
{
    // All memory is taken before the first record moves: a fault leaves the file as it was.
    std::vector<Record> vecKept;
    vecKept.reserve(m_vecRecord.size());
    std::map<std::int64_t, std::string> mapKept;
    auto pGeneration = m_mapGeneration.begin();
    std::int64_t nKept = 0;
    for (const Record& record : m_vecRecord) {
        if (IsBlank(record))
            continue;
        // By position, not by the old number: wanted.
        if (pGeneration != m_mapGeneration.end())
            mapKept.emplace(nKept, (pGeneration++)->second);
        ++nKept;
    }
    for (Record& record : m_vecRecord)
        if (!IsBlank(record))
            vecKept.push_back(std::move(record));
    m_vecRecord = std::move(vecKept);
    m_mapGeneration = std::move(mapKept);
}

void KZCEkaCsvFile::Clear()
{
    m_mapGeneration.clear();
    m_strTypeId.clear();
    m_nColumnNum = 0;
    m_vecRecord.clear();
}

int KZCEkaCsvFile::ColumnTerm(std::string& strBuffer, Record& record, bool bEndOfRecord)
{
    TakeColumn(strBuffer, record);
    if (!bEndOfRecord)
        return STATUS_OK;
    if (!ValidateRecord(record))
        return STATUS_NG;
    StoreRecord(record);
    return STATUS_OK;
}

void KZCEkaCsvFile::TakeColumn(std::string& strBuffer, Record& record)
{
    record.push_back(KZCEkaCommon::StringTrim(strBuffer));
    strBuffer.clear();
}

void KZCEkaCsvFile::StoreRecord(Record& record)
{
    const std::size_t nColumns = record.size();
    m_vecRecord.push_back(std::move(record));
    record.clear();
    record.reserve(nColumns);
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
    if (strTypeId.empty() && record.size() == 1)
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
    if (static_cast<std::int64_t>(record.size()) == m_nColumnNum)
        return true;
    return Refuse(HE70019E, 0, 0, FUNCTION, "CSVのカラム数が不正です。（HE70019E）",
                  static_cast<long>(record.size())) == STATUS_OK;
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
    const std::string strText =
        KZCMacOSNative::readSJISFile(strPath.c_str(), !KZCEkaCommon::GetCsvCheckFlag());
    if (strText.empty())
        RaiseFault(szFunction, "CSVファイルリードエラーが発生しました。");
    return Parse(strText.c_str(), bQuote);
}

int KZCEkaCsvFile::Parse(const char* szText, bool bQuote)
{
    if (szText == nullptr)
        RaiseFault("KZCEkaCsvFile::Parse", "引数のポインタが不正です。");

    const std::string_view strText = szText;
    // The terminator counts as the text's last byte, as a line end does.
    const auto byteAt = [strText](std::size_t nIndex) {
        return nIndex < strText.size() ? strText[nIndex] : '\0';
    };
    std::string strBuffer;
    Record record;
    bool bInQuotes = false;
    std::size_t nColumnStart = 0;
    for (std::size_t nIndex = 0;; ++nIndex) {
        const char cByte = byteAt(nIndex);
        if (cByte == '\0')
            return ColumnTerm(strBuffer, record, true);
        if (bInQuotes) {
            if (cByte != '"')
                strBuffer += cByte;
            else if (byteAt(nIndex + 1) == '"')
                strBuffer += byteAt(++nIndex);
            else
                bInQuotes = false;
        } else if (cByte == '"' && bQuote && nIndex == nColumnStart) {
            bInQuotes = true;
        } else if (cByte == ',') {
            static_cast<void>(ColumnTerm(strBuffer, record, false));
            nColumnStart = nIndex + 1;
        } else if (cByte == '\n' || cByte == '\r') {
            if (ColumnTerm(strBuffer, record, true) != STATUS_OK)
                return STATUS_NG;
            if (cByte == '\r' && byteAt(nIndex + 1) == '\n')
                ++nIndex;
            nColumnStart = nIndex + 1;
        } else {
            // Nothing before the column's end has a meaning any more: one piece.
            std::size_t nEnd = nIndex + 1;
            while (nEnd < strText.size() && !EndsColumn(strText[nEnd]))
                ++nEnd;
            strBuffer.append(strText, nIndex, nEnd - nIndex);
            nIndex = nEnd - 1;
        }
    }
}

const char* KZCEkaCsvFile::GetItem(long lRecord, long lColumn) const
{
    if (lRecord < 0 || lRecord >= GetRecordCount() || lColumn < 0)
        return "";
    const Record& record = m_vecRecord[static_cast<std::size_t>(lRecord)];
    const auto nColumn = static_cast<std::size_t>(lColumn);
    return nColumn < record.size() ? record[nColumn].c_str() : "";
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
