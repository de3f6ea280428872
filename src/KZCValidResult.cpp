#include "KZCValidResult.h"

#include <functional>
#include <random>
#include <unordered_set>

#include "text/CText.h"

namespace {

constexpr std::size_t MAX_ENTRIES = 100000;
/// Sizes of the buffers in which a position and an entry are printed; longer texts are cut.
constexpr std::size_t COLUMN_BUFFER_SIZE = 10;
constexpr std::size_t ENTRY_BUFFER_SIZE = 100;
constexpr int RECORD_WIDTH = 4;
constexpr int COLUMN_WIDTH = 5;
constexpr int RANGE_WIDTH = 2;
/// An entry such as "0003-00012-HE70001E," in most cases.
constexpr std::size_t USUAL_ENTRY_SIZE = 20;

constexpr _ResultTable WholeFile(KZCEkaMessage_t eMessage)
{
    return {0, 0, SINGLE_COLUMN, eMessage};
}

void AppendNumber(std::string& strOut, std::int64_t nNumber, int nWidth)
{
    CText::AppendNumber(strOut, static_cast<std::int32_t>(nNumber), nWidth);
}

std::string RenderEntry(const _ResultTable& entry)
{
    std::string strColumn;
    if (entry.nColumnEnd == SINGLE_COLUMN) {
        AppendNumber(strColumn, entry.nColumn, COLUMN_WIDTH);
    } else {
        AppendNumber(strColumn, entry.nColumn, RANGE_WIDTH);
        strColumn += ':';
        AppendNumber(strColumn, entry.nColumnEnd, RANGE_WIDTH);
    }
    std::string strEntry;
    AppendNumber(strEntry, entry.nRecord, RECORD_WIDTH);
    strEntry += '-';
    strEntry += CText::CutToBuffer(std::move(strColumn), COLUMN_BUFFER_SIZE);
    strEntry += '-';
    strEntry += EkaMsgTable[entry.eMessage].szCode;
    return CText::CutToBuffer(std::move(strEntry), ENTRY_BUFFER_SIZE);
}

struct EntryHash
{
    std::size_t operator()(const _ResultTable& entry) const
    {
        constexpr std::size_t FACTOR = 1000003;
        std::size_t nHash = 0;
        for (const std::int64_t nField :
             {entry.nRecord, entry.nColumn, entry.nColumnEnd, std::int64_t{entry.eMessage}})
            nHash = nHash * FACTOR + std::hash<std::int64_t>{}(nField);
        return nHash;
    }
};

/// A number from 0 to nLargest with the bits that the range needs, redrawn while it lies beyond.
std::uint32_t DrawUniform(std::mt19937& generator, std::uint32_t nLargest)
{
    std::uint32_t nMask = nLargest;
    for (const unsigned nShift : {1U, 2U, 4U, 8U, 16U})
        nMask |= nMask >> nShift;
    std::uint32_t nDraw = 0;
    do
        nDraw = static_cast<std::uint32_t>(generator()) & nMask;
    while (nDraw > nLargest);
    return nDraw;
}

}  // namespace

KZCValidResult* KZCValidResult::instance()
{
    if (!m_pInstance)
        m_pInstance = std::make_unique<KZCValidResult>();
    return m_pInstance.get();
}

void KZCValidResult::destroy()
{
    m_pInstance.reset();
}

void KZCValidResult::ClearResult()
{
    m_vecResult.clear();
    m_errorIndex.Clear();
    m_nIndexed = 0;
}

void KZCValidResult::SetResult(KZCEkaMessage_t eMessage,
                               long lRecord,
                               long lColumn,
                               long lColumnEnd)
{
    m_vecResult.push_back({lRecord, lColumn, lColumnEnd, eMessage});
}

void KZCValidResult::SetFatalError()
{
    ClearResult();
    m_vecResult.push_back(WholeFile(HE70018E));
}

bool KZCValidResult::IsExistErr(long lRecord, long lColumn)
{
    // Most definitions never ask: the index is only brought up to date here.
    for (; m_nIndexed < m_vecResult.size(); ++m_nIndexed) {
        const _ResultTable& entry = m_vecResult[m_nIndexed];
        m_errorIndex.Add(entry.nRecord, entry.nColumn, entry.nColumnEnd);
    }
    return m_errorIndex.Covers(lRecord, lColumn);
}

void KZCValidResult::AlignErrCode()
{
    std::unordered_set<_ResultTable, EntryHash> kept(m_vecResult.size());
    std::erase_if(m_vecResult,
                  [&](const _ResultTable& entry) { return !kept.insert(entry).second; });
    m_nIndexed = 0;  // the index knows a set of places, which is the same as before
}

std::string KZCValidResult::MakeResult()
{
    if (m_vecResult.empty()) {
        m_vecResult.push_back(WholeFile(HE70017E));
    } else if (m_vecResult.size() > MAX_ENTRIES) {
        m_vecResult.resize(MAX_ENTRIES);
        m_vecResult.push_back(WholeFile(HE70022E));
    }
    std::string strTable;
    strTable.reserve(m_vecResult.size() * USUAL_ENTRY_SIZE);
    for (const _ResultTable& entry : m_vecResult) {
        if (!strTable.empty())
            strTable += ',';
        strTable += RenderEntry(entry);
    }
    ClearResult();
    return strTable;
}

bool KZCValidResult::ExistID(const std::string& strId) const
{
    return m_strITData.find("<" + strId + " ID=\"" + strId + "\">") != std::string::npos;
}

void KZCValidResult::ResetRundomNumber(long lCount)
{
    m_vecRandom.clear();
    for (long lNumber = 0; lNumber < lCount; ++lNumber)
        m_vecRandom.push_back(lNumber);
    std::mt19937 generator;  // the standard seed: the same order in every process
    for (std::size_t nAt = 0; nAt + 1 < m_vecRandom.size(); ++nAt) {
        const auto nBehind = static_cast<std::uint32_t>(m_vecRandom.size() - 1 - nAt);
        if (const std::uint32_t nStep = DrawUniform(generator, nBehind); nStep != 0)
            std::swap(m_vecRandom[nAt], m_vecRandom[nAt + nStep]);
    }
    m_vecRandom = {m_vecRandom.rbegin(), m_vecRandom.rend()};
}

long KZCValidResult::PopFrontRandomNumber()
{
    if (m_vecRandom.empty())
        return 0;
    const long lNumber = m_vecRandom.back();
    m_vecRandom.pop_back();
    return lNumber;
}
