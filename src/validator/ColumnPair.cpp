#include "ColumnPair.h"

#include <cstdint>
#include <string_view>

#include "KZCEkaCsvFile.h"
#include "text/CText.h"

void ColumnPair::Set(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    m_lOtherColumn = CText::ReadLong(szValue);
    m_lOffset = static_cast<long>(CText::ReadInt(szMax)) - CText::ReadInt(szMin);
}

bool ColumnPair::Agrees(const KZCEkaCsvFile& csv, long lRow, long lColumn) const
{
    const char* szCell = csv.GetItem(lRow, lColumn);
    const char* szOther = csv.GetItem(lRow, m_lOtherColumn - 1);
    if (m_strMin.empty() && m_strMax.empty())
        return std::string_view(szCell) == szOther;
    // In 64 bits and back to 32: the sum wraps instead of overflowing.
    return static_cast<std::int32_t>(CText::ReadInt(szCell) + m_lOffset) == CText::ReadInt(szOther);
}
