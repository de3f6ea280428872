// Two cells of a record that are compared with each other.
#pragma once

#include <string>

class KZCEkaCsvFile;

/// The item's cell and another one of the record: compared as numbers with an offset of max less
/// min if either is given, otherwise as texts.
class ColumnPair
{
public:
    /// \param szValue  The other column, from 1.
    void Set(const char* szValue, const char* szMin, const char* szMax);

    /// The other column is named; otherwise the definition is at fault.
    bool HasOtherColumn() const { return m_lOtherColumn > 0; }
    /// \param lRow, lColumn  The item's cell, from 0.
    bool Agrees(const KZCEkaCsvFile& csv, long lRow, long lColumn) const;

private:
    std::string m_strValue;
    std::string m_strMin;
    std::string m_strMax;
    long m_lOtherColumn = 0;  ///< from 1
    long m_lOffset = 0;       ///< max less min
};
