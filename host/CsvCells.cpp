#include "CsvCells.h"

#include <algorithm>

#include "KZCMacOSNative.h"

namespace host {
namespace {

std::string Trim(std::string_view strText)
{
    return KZCMacOSNative::stringByTrimming(std::string(strText), /*bUtf8=*/true);
}

}  // namespace

CsvCells::CsvCells(std::string strText) : m_strText(std::move(strText))
{
    std::string_view strRest = m_strText;
    for (;;) {
        const std::size_t nEnd = strRest.find_first_of("\r\n");
        m_vecRecord.push_back(strRest.substr(0, nEnd));
        if (nEnd == std::string_view::npos)
            return;
        const bool bPair = strRest.substr(nEnd, 2) == "\r\n";
        strRest.remove_prefix(nEnd + (bPair ? 2 : 1));
    }
}

std::size_t CsvCells::FilledRecordCount() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(m_vecRecord, [](std::string_view strRecord) {
            return !Trim(strRecord.substr(0, strRecord.find(','))).empty();
        }));
}

std::size_t CsvCells::ColumnCount(std::size_t nRecord) const
{
    if (nRecord < 1 || nRecord > m_vecRecord.size())
        return 0;
    return 1 + static_cast<std::size_t>(std::ranges::count(m_vecRecord[nRecord - 1], ','));
}

bool CsvCells::IsBlank(std::size_t nRecord) const
{
    return ColumnCount(nRecord) <= 1 && Cell(nRecord, 1).empty();
}

std::string CsvCells::Cell(std::size_t nRecord, std::size_t nColumn) const
{
    return Cells(nRecord, nColumn, nColumn);
}

std::string CsvCells::Cells(std::size_t nRecord, std::size_t nColumn, std::size_t nColumnEnd) const
{
    const auto vecCell = Split(nRecord);
    std::string strJoined;
    for (std::size_t n = std::max<std::size_t>(nColumn, 1);
         n <= std::min(nColumnEnd, vecCell.size()); ++n) {
        if (n > nColumn)
            strJoined += ',';
        strJoined += Trim(vecCell[n - 1]);
    }
    return strJoined;
}

std::optional<std::size_t> CsvCells::FirstRecord() const
{
    for (std::size_t n = 1; n <= m_vecRecord.size(); ++n)
        if (!IsBlank(n))
            return n;
    return std::nullopt;
}

std::string CsvCells::TypeId() const
{
    return Cell(FirstRecord().value_or(0), 1);
}

std::vector<std::string_view> CsvCells::Split(std::size_t nRecord) const
{
    std::vector<std::string_view> vecCell;
    if (nRecord < 1 || nRecord > m_vecRecord.size())
        return vecCell;
    std::string_view strRest = m_vecRecord[nRecord - 1];
    for (;;) {
        const std::size_t nEnd = strRest.find(',');
        vecCell.push_back(strRest.substr(0, nEnd));
        if (nEnd == std::string_view::npos)
            return vecCell;
        strRest.remove_prefix(nEnd + 1);
    }
}

std::string UnquotedTypeId(const CsvCells& cells)
{
    std::string strTypeId = cells.TypeId();
    if (strTypeId.size() >= 2 && strTypeId.front() == '"' && strTypeId.back() == '"')
        return strTypeId.substr(1, strTypeId.size() - 2);
    return strTypeId;
}

}  // namespace host
