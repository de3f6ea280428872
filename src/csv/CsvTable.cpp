#include "csv/CsvTable.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr std::size_t BLOCK_BYTES = 65'536;

bool HasTextIn(const CsvTable::Record& record)
{
    return std::ranges::any_of(record, [](const std::string& strCell) { return !strCell.empty(); });
}

}  // namespace

void CsvTable::Append(const Record& record, std::int64_t nColumns)
{
    const bool bText = HasTextIn(record);
    if (bText || m_listRun.empty() || m_listRun.back().szCells != nullptr ||
        m_listRun.back().nColumns != nColumns)
        m_listRun.push_back(Hold(record, nColumns));
    ++m_nHeld;
    if (!record.empty() && !record.front().empty())
        ++m_nHeldFilled;
}

void CsvTable::Count(const Record& record)
{
    ++m_nCounted;
    if (!record.empty() && !record.front().empty())
        ++m_nCountedFilled;
}

void CsvTable::Replace(std::int64_t nRecord, const Record& record)
{
    Run run = Hold(record, static_cast<std::int64_t>(record.size()));
    run.nFirst = nRecord;
    const bool bWasFilled = IsFilled(nRecord);
    auto pRun = Find(nRecord);
    const Run before = *pRun;
    if (before.nFirst < nRecord)
        pRun = m_listRun.insert(pRun + 1, run);
    *pRun = run;
    const auto pNext = pRun + 1;
    const std::int64_t nEnd = pNext == m_listRun.end() ? m_nHeld : pNext->nFirst;
    if (nRecord + 1 < nEnd)
        m_listRun.insert(pNext, {nRecord + 1, before.szCells, before.nColumns});
    m_nHeldFilled += (IsFilled(nRecord) ? 1 : 0) - (bWasFilled ? 1 : 0);
    m_nOpen = -1;
}

void CsvTable::Assign(const std::vector<Record>& vecRecord)
{
    Clear();
    for (const Record& record : vecRecord)
        Append(record);
}

void CsvTable::Remove(IsEmpty isEmpty)
{
    std::int64_t nKept = 0;
    m_nHeldFilled = 0;
    auto pKept = m_listRun.begin();
    for (auto pRun = m_listRun.begin(); pRun != m_listRun.end(); ++pRun) {
        const auto pNext = pRun + 1;
        const std::int64_t nEnd = pNext == m_listRun.end() ? m_nHeld : pNext->nFirst;
        const std::int64_t nLength = nEnd - pRun->nFirst;
        const bool bFilled = BeginsFilled(*pRun);
        if (isEmpty(bFilled, pRun->nColumns))
            continue;
        *pKept++ = {nKept, pRun->szCells, pRun->nColumns};
        nKept += nLength;
        m_nHeldFilled += bFilled ? nLength : 0;
    }
    m_listRun.erase(pKept, m_listRun.end());
    m_nHeld = nKept;
    if (isEmpty(false, 1))
        m_nCounted = m_nCountedFilled;
    m_nOpen = -1;
}

void CsvTable::Clear()
{
    m_listRun.clear();
    m_listBlock.clear();
    m_pFree = nullptr;
    m_nFree = m_nBlockBytes = 0;
    m_nHeld = m_nHeldFilled = m_nCounted = m_nCountedFilled = 0;
    m_vecOpen = {};
    m_nOpen = -1;
}

std::int64_t CsvTable::ColumnCount(std::int64_t nRecord) const
{
    const Run* pRun = Find(nRecord);
    if (pRun != nullptr)
        return pRun->nColumns;
    return nRecord >= m_nHeld && nRecord < RecordCount() ? -1 : 0;
}

const char* CsvTable::Cell(std::int64_t nRecord, std::int64_t nColumn) const
{
    if (nRecord != m_nOpen) {
        const Run* pRun = Find(nRecord);
        if (pRun == nullptr)
            return "";
        Open(nRecord, *pRun);
    }
    return nColumn >= 0 && nColumn < static_cast<std::int64_t>(m_vecOpen.size())
               ? m_vecOpen[static_cast<std::size_t>(nColumn)]
               : "";
}

bool CsvTable::IsFilled(std::int64_t nRecord) const
{
    const Run* pRun = Find(nRecord);
    return pRun != nullptr && BeginsFilled(*pRun);
}

bool CsvTable::HasText(std::int64_t nRecord) const
{
    const Run* pRun = Find(nRecord);
    return pRun != nullptr && pRun->szCells != nullptr;
}

std::size_t CsvTable::HeldBytes() const
{
    return m_nBlockBytes + m_listRun.size() * sizeof(Run);
}

std::vector<CsvTable::Record> CsvTable::Records() const
{
    std::vector<Record> vecRecord;
    for (std::int64_t nRecord = 0; nRecord < m_nHeld; ++nRecord) {
        const auto nColumns = static_cast<std::size_t>(ColumnCount(nRecord));
        Record record(std::min(nColumns, MAX_HELD_COLUMNS));
        for (std::size_t nColumn = 0; nColumn < record.size(); ++nColumn)
            record[nColumn] = Cell(nRecord, static_cast<std::int64_t>(nColumn));
        vecRecord.push_back(std::move(record));
    }
    return vecRecord;
}

/// A record with an empty first column begins with that cell's terminator.
bool CsvTable::BeginsFilled(const Run& run)
{
    return run.szCells != nullptr && *run.szCells != '\0';
}

/// Copies the cells, unless all are empty, and takes the memory that looking at them needs.
CsvTable::Run CsvTable::Hold(const Record& record, std::int64_t nColumns)
{
    Run run = {m_nHeld, nullptr, nColumns};
    if (!HasTextIn(record))
        return run;
    m_vecOpen.reserve(record.size());
    std::size_t nBytes = 0;
    for (const std::string& strCell : record)
        nBytes += strCell.size() + 1;
    char* pOut = Reserve(nBytes);
    run.szCells = pOut;
    for (const std::string& strCell : record) {
        std::memcpy(pOut, strCell.c_str(), strCell.size() + 1);
        pOut += strCell.size() + 1;
    }
    return run;
}

char* CsvTable::Reserve(std::size_t nBytes)
{
    if (nBytes > m_nFree) {
        const std::size_t nBlock = std::max(nBytes, BLOCK_BYTES);
        m_listBlock.push_back(std::make_unique_for_overwrite<char[]>(nBlock));
        m_pFree = m_listBlock.back().get();
        m_nFree = nBlock;
        m_nBlockBytes += nBlock;
    }
    m_nFree -= nBytes;
    return std::exchange(m_pFree, m_pFree + nBytes);
}

CsvTable::Runs::iterator CsvTable::Find(std::int64_t nRecord)
{
    return std::ranges::upper_bound(m_listRun, nRecord, {}, &Run::nFirst) - 1;
}

const CsvTable::Run* CsvTable::Find(std::int64_t nRecord) const
{
    if (nRecord < 0 || nRecord >= m_nHeld)
        return nullptr;
    return &*(std::ranges::upper_bound(m_listRun, nRecord, {}, &Run::nFirst) - 1);
}

void CsvTable::Open(std::int64_t nRecord, const Run& run) const
{
    m_vecOpen.clear();
    m_nOpen = nRecord;
    if (run.szCells == nullptr)
        return;  // all its cells are what a cell out of range is
    const char* szCell = run.szCells;
    const auto nHeld = std::min(run.nColumns, static_cast<std::int64_t>(MAX_HELD_COLUMNS));
    for (std::int64_t nColumn = 0; nColumn < nHeld; ++nColumn) {
        m_vecOpen.push_back(szCell);
        szCell += std::strlen(szCell) + 1;
    }
}
