#include "lint/LintWriting.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

namespace host {
namespace {

/// Steps of one record: a tree whose items have several parents has more ways than can be walked.
constexpr long MAX_STEPS = 200000;
/// Records around a row at which something can change.
constexpr long NEAR = 8;

struct Range
{
    long lStart;
    long lEnd;
};

Range RangeOf(const LintForm& form, long lCount, bool bMulti)
{
    if (form.lStartRow == 0 && form.lEndRow == 0)
        return {1, lCount};
    if (bMulti)
        return {RowFromFront(form.lStartRow, lCount), RowFromFront(form.lEndRow, lCount)};
    if (form.lEndRow == -1)
        return {1, lCount};
    return {form.lStartRow, form.lEndRow};
}

/// All row numbers of a file, without their signs.
std::set<long> RowsOf(const LintFile& document)
{
    std::set<long> setRow;
    const auto add = [&setRow](long lRow) {
        if (lRow != 0 && lRow > -1'000'000 && lRow < 1'000'000)
            setRow.insert(std::abs(lRow));
    };
    for (const LintForm& form : document.vecForm) {
        add(form.lStartRow);
        add(form.lEndRow);
        add(form.lStepRow);
        for (const LintItem& item : form.vecItem) {
            add(item.lStartRow);
            add(item.lEndRow);
        }
    }
    return setRow;
}

}  // namespace

LintWriter::LintWriter(const LintForm& form, std::string strGeneration, long lCount)
    : m_form(form), m_strGeneration(std::move(strGeneration)), m_lCount(lCount)
{
}

void LintWriter::WriteRecord(long lRecord)
{
    Begin();
    for (const std::size_t nItem : m_form.vecTop)
        Write(nItem, lRecord);
}

void LintWriter::WriteHead()
{
    Begin();
    for (const std::size_t nItem : m_form.vecTop) {
        const LintItem& item = m_form.vecItem[nItem];
        if (item.pElement->Attribute("repeatTopTag") != "1")
            continue;
        const long lEnd = std::min(item.lEndRow, m_lCount);
        for (long lRecord = std::max(item.lStartRow, 1L); lRecord <= lEnd; ++lRecord)
            Write(nItem, lRecord);
    }
}

bool LintWriter::Write(std::size_t nItem, long lRecord, bool bDescend)
{
    if (++m_lSteps > MAX_STEPS)
        return false;
    const LintItem& item = m_form.vecItem[nItem];
    if (item.strType == "TAG")
        return WriteTag(nItem, lRecord, bDescend);
    if (bDescend)
        return false;
    if (item.strType == "Zeimusho")
        return Mark(nItem, WriteAllChildren(nItem, lRecord, false));
    if (item.strType == "Zip" || item.strType == "Bango")
        return Mark(nItem, item.lColumn > 0);
    if (item.strType == "IdRef")
        return Mark(nItem, true);
    return Mark(nItem, WritePlain(nItem, lRecord));
}

bool LintWriter::WriteTag(std::size_t nItem, long lRecord, bool bDescend)
{
    const LintItem& item = m_form.vecItem[nItem];
    if (item.lLastRecord == 1 && lRecord != m_lCount)
        return false;
    if (item.HasRange() ? IsWithin(item, lRecord) : !bDescend)
        return WriteTagChildren(nItem, lRecord);
    // Only groups are looked for below a group that isn't to open.
    bool bWrote = false;
    for (const std::size_t nChild : item.vecChild)
        if (m_form.vecItem[nChild].strType == "TAG")
            bWrote |= Write(nChild, lRecord, true);
    return bWrote;
}

bool LintWriter::WriteTagChildren(std::size_t nItem, long lRecord)
{
    bool bWrote = false;
    bool bClose = true;
    for (const std::size_t nChild : m_form.vecItem[nItem].vecChild) {
        bWrote |= Write(nChild, lRecord);
        bClose = IsWithin(m_form.vecItem[nChild], lRecord);
        if (!bClose)
            break;
    }
    if (bWrote && !bClose)
        m_vecOpen.push_back(nItem);
    return Mark(nItem, bWrote);
}

bool LintWriter::WritePlain(std::size_t nItem, long lRecord)
{
    const LintItem& item = m_form.vecItem[nItem];
    if (item.HasRange() && (item.lStartRow > lRecord || item.lEndRow < lRecord))
        return false;
    const bool bBody = WriteAllChildren(nItem, lRecord, true);
    return bBody || item.lColumn > 0;
}

bool LintWriter::WriteAllChildren(std::size_t nItem, long lRecord, bool bFilter)
{
    bool bWrote = false;
    for (const std::size_t nChild : m_form.vecItem[nItem].vecChild) {
        const std::string& strGeneration = m_form.vecItem[nChild].strGeneration;
        if (!bFilter || strGeneration.empty() || strGeneration == m_strGeneration)
            bWrote |= Write(nChild, lRecord);
    }
    return bWrote;
}

bool LintWriter::IsWithin(const LintItem& item, long lRecord) const
{
    return !item.HasRange() || (RowFromFront(item.lStartRow, m_lCount) <= lRecord &&
                                lRecord <= RowFromFront(item.lEndRow, m_lCount));
}

bool LintWriter::Mark(std::size_t nItem, bool bWrote)
{
    if (bWrote)
        m_vecWritten.push_back(nItem);
    return bWrote;
}

void LintWriter::Begin()
{
    m_lSteps = 0;
    m_vecWritten.clear();
    m_vecOpen.clear();
}

bool ForEachWrittenRecord(const LintFile& document,
                          long lCount,
                          const std::function<void(const LintForm&, long lRecord)>& use)
{
    constexpr long LEAST_HANDOVER_ROW = 2;
    if (document.vecForm.empty())
        return true;
    std::size_t nForm = 0;
    Range range = RangeOf(document.vecForm[nForm], lCount, document.IsMulti());
    for (long lRecord = 1; lRecord <= lCount; ++lRecord) {
        if (!document.IsMulti() && range.lEnd >= LEAST_HANDOVER_ROW && lRecord > range.lEnd) {
            if (++nForm == document.vecForm.size())
                return false;
            range = RangeOf(document.vecForm[nForm], lCount, false);
        }
        if (range.lStart <= lRecord && lRecord <= range.lEnd)
            use(document.vecForm[nForm], lRecord);
    }
    return true;
}

std::vector<long> SampleCounts(const LintFile& document, long lLeast)
{
    std::set<long> setCount;
    const auto add = [&](long lFrom) {
        for (long lCount = lFrom; lCount <= lFrom + NEAR; ++lCount)
            if (lCount >= std::max(lLeast, 1L) && lCount <= document.MaxRecord())
                setCount.insert(lCount);
    };
    add(lLeast);
    for (const long lRow : RowsOf(document))
        add(lRow);
    return {setCount.begin(), setCount.end()};
}

bool IsSampleRecord(const LintFile& document, long lRecord, long lCount)
{
    if (lRecord <= NEAR || lRecord > lCount - NEAR)
        return true;
    const std::set<long> setRow = RowsOf(document);
    return std::ranges::any_of(setRow, [&](long lRow) {
        return std::abs(lRow - lRecord) <= NEAR || std::abs(lCount - lRow - lRecord) <= NEAR;
    });
}

}  // namespace host
