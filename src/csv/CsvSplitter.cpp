#include "csv/CsvSplitter.h"

#include <algorithm>

#include "fault/Status.h"

namespace {

/// Outside quotes the byte ends a column.
constexpr bool EndsColumn(char cByte)
{
    return cByte == ',' || cByte == '\n' || cByte == '\r';
}

/// White space that a column loses at its ends in either encoding.
constexpr bool IsAsciiWhiteSpace(char cByte)
{
    return cByte == ' ' || (cByte >= '\t' && cByte <= '\r');
}

}  // namespace

int CsvSplitter::Take(std::string_view strPiece)
{
    for (std::size_t nAt = 0; nAt < strPiece.size();) {
        const char cByte = strPiece[nAt];
        switch (m_eState) {
            case State::AFTER_RETURN:
                m_eState = State::COLUMN_START;
                nAt += cByte == '\n' ? 1 : 0;
                continue;
            case State::IN_QUOTES:
                nAt = TakeQuoted(strPiece, nAt);
                continue;
            case State::QUOTE_IN_QUOTES:
                m_eState = cByte == '"' ? State::IN_QUOTES : State::IN_COLUMN;
                if (cByte == '"') {
                    m_strBuffer += cByte;
                    ++nAt;
                }
                continue;
            case State::COLUMN_START:
                m_eState = State::IN_COLUMN;
                if (cByte == '"' && m_bQuote) {
                    m_eState = State::IN_QUOTES;
                    ++nAt;
                    continue;
                }
                break;
            case State::IN_COLUMN:
                break;
        }
        if (!EndsColumn(cByte)) {
            nAt = TakePlain(strPiece, nAt);
            continue;
        }
        ++nAt;
        if (cByte == ',') {
            static_cast<void>(m_columnTerm(m_strBuffer, m_record, false));
            m_eState = State::COLUMN_START;
        } else if (EndRecord(cByte == '\r' ? State::AFTER_RETURN : State::COLUMN_START) !=
                   STATUS_OK) {
            return STATUS_NG;
        }
    }
    return STATUS_OK;
}

int CsvSplitter::Finish()
{
    return EndRecord(State::COLUMN_START);
}

int CsvSplitter::EndRecord(State eNext)
{
    m_eState = eNext;
    return m_columnTerm(m_strBuffer, m_record, true) == STATUS_OK ? STATUS_OK : STATUS_NG;
}

/// Up to the next quote. \return Behind it, or the piece's end.
std::size_t CsvSplitter::TakeQuoted(std::string_view strPiece, std::size_t nAt)
{
    const std::size_t nQuote = std::min(strPiece.find('"', nAt), strPiece.size());
    m_strBuffer.append(strPiece, nAt, nQuote - nAt);
    if (nQuote == strPiece.size())
        return nQuote;
    m_eState = State::QUOTE_IN_QUOTES;
    return nQuote + 1;
}

/// Up to the column's end: nothing before it has a meaning any more. \return There, or the piece's
/// end.
std::size_t CsvSplitter::TakePlain(std::string_view strPiece, std::size_t nAt)
{
    std::size_t nEnd = nAt;
    while (nEnd < strPiece.size() && !EndsColumn(strPiece[nEnd]))
        ++nEnd;
    // What the column would lose anyway needn't be held: a file may be all blanks.
    if (m_strBuffer.empty())
        while (nAt < nEnd && IsAsciiWhiteSpace(strPiece[nAt]))
            ++nAt;
    m_strBuffer.append(strPiece, nAt, nEnd - nAt);
    return nEnd;
}
