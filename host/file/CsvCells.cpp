#include "file/CsvCells.h"

#include <algorithm>
#include <utility>

#include "KZCMacOSNative.h"
#include "family/SpreadProcedure.h"

namespace host {
namespace {

/// Columns of a record that are held, as in the library: those behind are counted, and read as
/// empty. A record of commas alone would take many times its size.
constexpr std::size_t MAX_SPLIT = 262'144;

std::string Trim(std::string_view strText)
{
    return KZCMacOSNative::stringByTrimming(std::string(strText), /*bUtf8=*/true);
}

bool HasQuotes(Family eFamily)
{
    return eFamily == Family::CrossBorder;
}

/// Takes the cells of a text one by one, as the library's reader does.
class CellReader
{
public:
    CellReader(std::string_view strText, bool bQuotes) : m_strText(strText), m_bQuotes(bQuotes) {}

    /// Reads up to the end of a column. \return The value without its quotes, not trimmed.
    std::string TakeCell()
    {
        std::string strCell;
        if (m_bQuotes && ByteAt(m_nPosition) == '"')
            TakeQuoted(strCell);
        const std::size_t nEnd =
            std::min(m_strText.find_first_of(",\r\n", m_nPosition), m_strText.size());
        strCell.append(m_strText, m_nPosition, nEnd - m_nPosition);
        m_nPosition = nEnd;
        return strCell;
    }

    /// Passes over a comma, behind which the record goes on. \return false at the record's end.
    bool TakeComma()
    {
        if (ByteAt(m_nPosition) != ',')
            return false;
        ++m_nPosition;
        return true;
    }

    /// Passes over a line end. \return false at the end of the text.
    bool TakeLineEnd()
    {
        if (m_nPosition >= m_strText.size())
            return false;
        m_nPosition += m_strText.substr(m_nPosition, 2) == "\r\n" ? 2U : 1U;
        return true;
    }

    std::size_t Position() const { return m_nPosition; }

private:
    char ByteAt(std::size_t nPosition) const
    {
        return nPosition < m_strText.size() ? m_strText[nPosition] : '\0';
    }

    /// A quote that is never closed takes the rest of the text.
    void TakeQuoted(std::string& strCell)
    {
        for (;;) {
            const std::size_t nStart = m_nPosition + 1;
            const std::size_t nQuote = std::min(m_strText.find('"', nStart), m_strText.size());
            strCell.append(m_strText, nStart, nQuote - nStart);
            m_nPosition = std::min(nQuote + 1, m_strText.size());
            if (ByteAt(m_nPosition) != '"')
                return;
            strCell += '"';
        }
    }

    std::string_view m_strText;
    bool m_bQuotes;
    std::size_t m_nPosition = 0;
};

std::size_t CountLineEnds(std::string_view strText)
{
    std::size_t nCount = 0;
    for (std::size_t n = 0; n < strText.size(); ++n)
        if (strText[n] == '\n' ? n == 0 || strText[n - 1] != '\r' : strText[n] == '\r')
            ++nCount;
    return nCount;
}

/// The first column of the first record that isn't blank.
std::string FirstTypeId(std::string_view strText, bool bQuotes)
{
    CellReader reader(strText, bQuotes);
    do {
        std::string strFirst = Trim(reader.TakeCell());
        if (!strFirst.empty() || reader.TakeComma())
            return strFirst;
    } while (reader.TakeLineEnd());
    return {};
}

}  // namespace

CsvCells::CsvCells(std::string strText, Family eFamily)
    : m_eFamily(eFamily), m_strText(std::move(strText))
{
    const std::string_view strAll = m_strText;
    CellReader reader(strAll, HasQuotes(eFamily));
    std::size_t nLine = 1;
    std::size_t nStart = 0;
    do {
        const std::string strFirst = reader.TakeCell();
        const bool bSingle = !reader.TakeComma();
        if (!bSingle)
            do
                reader.TakeCell();
            while (reader.TakeComma());
        const std::string_view strRecord = strAll.substr(nStart, reader.Position() - nStart);
        if (eFamily == Family::Base || !bSingle || !Trim(strFirst).empty())
            m_vecRecord.push_back({strRecord, nLine});
        nLine += 1 + CountLineEnds(strRecord);
        nStart = reader.TakeLineEnd() ? reader.Position() : std::string_view::npos;
    } while (nStart != std::string_view::npos);
}

std::size_t CsvCells::FilledRecordCount() const
{
    if (m_eFamily != Family::Base)
        return m_vecRecord.size();
    std::size_t nCount = 0;
    for (std::size_t n = 1; n <= m_vecRecord.size(); ++n)
        nCount += HasFilledFirstColumn(n) ? 1U : 0U;
    return nCount;
}

std::size_t CsvCells::LimitedRecordCount() const
{
    if (m_eFamily == Family::Base || TypeId() == SpreadProcedure::TYPE_ID)
        return m_vecRecord.size();
    std::size_t nCount = 0;
    for (std::size_t n = 1; n <= m_vecRecord.size(); ++n)
        nCount += HasFilledFirstColumn(n) ? 1U : 0U;
    return nCount;
}

std::size_t CsvCells::ColumnCount(std::size_t nRecord) const
{
    const std::size_t nHeld = Split(nRecord).size();
    return nHeld < MAX_SPLIT ? nHeld : nHeld + m_nSurplus;
}

bool CsvCells::IsBlank(std::size_t nRecord) const
{
    const auto& vecCell = Split(nRecord);
    return vecCell.empty() || (vecCell.size() == 1 && vecCell.front().empty());
}

std::string CsvCells::Cell(std::size_t nRecord, std::size_t nColumn) const
{
    const auto& vecCell = Split(nRecord);
    return nColumn >= 1 && nColumn <= vecCell.size() ? vecCell[nColumn - 1] : std::string();
}

std::string CsvCells::Cells(std::size_t nRecord, std::size_t nColumn, std::size_t nColumnEnd) const
{
    const auto& vecCell = Split(nRecord);
    std::string strJoined;
    for (std::size_t n = std::max<std::size_t>(nColumn, 1);
         n <= std::min(nColumnEnd, vecCell.size()); ++n) {
        if (n > nColumn)
            strJoined += ',';
        strJoined += vecCell[n - 1];
    }
    return strJoined;
}

std::size_t CsvCells::Line(std::size_t nRecord) const
{
    return nRecord >= 1 && nRecord <= m_vecRecord.size() ? m_vecRecord[nRecord - 1].nLine : 0;
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

/// Without splitting the record.
bool CsvCells::HasFilledFirstColumn(std::size_t nRecord) const
{
    return !Trim(CellReader(m_vecRecord[nRecord - 1].strText, HasQuotes(m_eFamily)).TakeCell())
                .empty();
}

const std::vector<std::string>& CsvCells::Split(std::size_t nRecord) const
{
    if (nRecord == m_nSplit)
        return m_vecCell;
    m_vecCell.clear();
    m_nSplit = 0;
    if (nRecord < 1 || nRecord > m_vecRecord.size())
        return m_vecCell;
    CellReader reader(m_vecRecord[nRecord - 1].strText, HasQuotes(m_eFamily));
    m_nSurplus = 0;
    do {
        std::string strCell = reader.TakeCell();
        if (m_vecCell.size() < MAX_SPLIT)
            m_vecCell.push_back(Trim(strCell));
        else
            ++m_nSurplus;
    } while (reader.TakeComma());
    m_nSplit = nRecord;
    return m_vecCell;
}

Family FamilyOfText(std::string_view strText)
{
    if (FamilyOfTypeId(FirstTypeId(strText, /*bQuotes=*/true)) == Family::CrossBorder)
        return Family::CrossBorder;
    const Family eFamily = FamilyOfTypeId(FirstTypeId(strText, /*bQuotes=*/false));
    return eFamily == Family::CrossBorder ? Family::Base : eFamily;
}

}  // namespace host
