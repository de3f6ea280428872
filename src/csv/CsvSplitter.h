// Splits a CSV text that comes in pieces.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "csv/CsvTable.h"

/// Tells a file of the end of every column and record. Commas, quotes and line ends are the same
/// bytes in UTF-8 and in Shift_JIS, and never part of another character.
class CsvSplitter
{
public:
    /// \param file    Its ColumnTerm is told of each end. Must outlive this.
    /// \param bQuote  Double quotes may hold commas and line ends.
    template <class File>
    CsvSplitter(File& file, bool bQuote)
        : m_columnTerm(
              [&file](std::string& strBuffer, CsvTable::Record& record, bool bEndOfRecord) {
                  return file.ColumnTerm(strBuffer, record, bEndOfRecord);
              }),
          m_bQuote(bQuote)
    {
    }

    /// The next piece of the text; it may end anywhere. \return STATUS_NG when a record was
    /// refused.
    int Take(std::string_view strPiece);
    /// The text's end, which ends a record as a line end does.
    int Finish();

private:
    enum class State
    {
        COLUMN_START,
        IN_COLUMN,
        IN_QUOTES,
        QUOTE_IN_QUOTES,  ///< the next byte tells whether it stands for itself or closes
        AFTER_RETURN,     ///< a line feed here belongs to the line end before it
    };

    int EndRecord(State eNext);
    std::size_t TakeQuoted(std::string_view strPiece, std::size_t nAt);
    std::size_t TakePlain(std::string_view strPiece, std::size_t nAt);

    std::function<int(std::string&, CsvTable::Record&, bool)> m_columnTerm;
    bool m_bQuote;
    State m_eState = State::COLUMN_START;
    std::string m_strBuffer;
    CsvTable::Record m_record;
};
