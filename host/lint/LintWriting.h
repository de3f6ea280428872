// What a template writes at which record, worked out without a CSV file: every cell counts as
// filled and every reference as found.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "lint/LintBundle.h"

namespace host {

/// Writes the items of one form at one record after the other.
class LintWriter
{
public:
    /// \param strGeneration  Of the records; empty for none. \param lCount  Records of the file.
    LintWriter(const LintForm& form, std::string strGeneration, long lCount);

    /// The items below the report at a record (from 1).
    void WriteRecord(long lRecord);
    /// The items that every page repeats at its head.
    void WriteHead();

    /// Items that wrote something in the last call, in the order of their ends.
    const std::vector<std::size_t>& Written() const { return m_vecWritten; }
    /// Groups that the last call left open.
    const std::vector<std::size_t>& Open() const { return m_vecOpen; }

private:
    bool Write(std::size_t nItem, long lRecord, bool bDescend = false);
    bool WriteTag(std::size_t nItem, long lRecord, bool bDescend);
    bool WriteTagChildren(std::size_t nItem, long lRecord);
    bool WritePlain(std::size_t nItem, long lRecord);
    bool WriteAllChildren(std::size_t nItem, long lRecord, bool bFilter);
    bool IsWithin(const LintItem& item, long lRecord) const;
    bool Mark(std::size_t nItem, bool bWrote);
    void Begin();

    const LintForm& m_form;
    std::string m_strGeneration;
    long m_lCount;
    long m_lSteps = 0;
    std::vector<std::size_t> m_vecWritten;
    std::vector<std::size_t> m_vecOpen;
};

/// Calls use(form, record) for each record of a file of so many that a template's form writes, in
/// order. \return false if the forms run out before the records.
bool ForEachWrittenRecord(const LintFile& document,
                          long lCount,
                          const std::function<void(const LintForm&, long lRecord)>& use);

/// Numbers of records with which every range of the file shows what it does.
/// \param lLeast  Fewer records are refused before anything is written.
std::vector<long> SampleCounts(const LintFile& document, long lLeast);
/// The same of records: those near both ends and near every row that the file names.
bool IsSampleRecord(const LintFile& document, long lRecord, long lCount);

/// A row that may count from the end (-1 is the last) as a number from 1.
inline long RowFromFront(long lRow, long lCount)
{
    return lRow < 0 ? lRow + lCount + 1 : lRow;
}

}  // namespace host
