// Base of the date checks. The eras are in calendar/EraTable.h.
#pragma once

#include <cstdint>
#include <optional>

#include "DateLiteral.h"
#include "KZCEkaValidItem.h"

/// A Gregorian date.
struct stSYSTEMTIME
{
    std::uint16_t wYear;
    std::uint16_t wMonth;
    std::uint16_t wDay;
};

/// Reads an era date from four adjacent columns: era code (1 to 5), year in the era, month, day.
///
/// An era text is the era's name and three fields of at least two bytes, padded with blanks
/// ("平成30/ 9/ 1"); a Western text has the year in place of name and year ("2018/ 9/ 1"). The
/// empty text means that no date could be made. Rows and columns count from 0.
class KZCEkaValidDate : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

    /// The date form: _validate gets the date of the four columns from the item's column, or from
    /// lColumn if the item has none. No date refuses with HE70012E. Errors cover the four columns.
    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

    /// The date of the four columns from lColumn.
    virtual std::string GetDateString(const KZCEkaCsvFile* pCsv, long lRow, long lColumn);
    /// The same with strict checks of the four cells, without a log line for a bad one.
    virtual std::string GetDateString2(const KZCEkaCsvFile* pCsv, long lRow, long lColumn);
    /// Every byte is a half-width digit; true for null and the empty text.
    virtual bool isNumber(const char* szValue);
    /// Era name and year of the two columns from lColumn ("平成30").
    virtual std::string GetYearString(const KZCEkaCsvFile* pCsv, long lRow, long lColumn);
    /// Places a date between two bounds, both inclusive, in either form of text.
    /// \return 0 or above in range, -1 out of range, -2 no real date, -3 and -4 no real bound.
    virtual long _rangeDate(const char* szValue,
                            const char* szMin,
                            const char* szMax,
                            bool bRequired);
    /// The text, moved to the new era where its old one had ended. The rule looks at the month
    /// alone.
    virtual std::string ConvEraString(const char* szDate);
    /// The Western text of an era text; a Western text comes back as it is.
    virtual std::string WarekiToSeireki(const std::string& strDate);
    /// True unless the kind of record has an optional date and the four cells are filled.
    virtual bool CheckCalulationConfig(const KZCEkaCsvFile* pCsv,
                                       long lRow,
                                       long lColumn,
                                       const char* szKind);
    /// The kind of record has its optional date at that column.
    virtual bool CheckTargetColumn(const KZCEkaCsvFile* pCsv,
                                   long lRow,
                                   long lColumn,
                                   const char* szKind);

    /// Characters of a cell, as the character length check counts them.
    static unsigned long strcount(const char* szValue);
    /// \return false if the text is no real date; stTime stays as it was then.
    bool StringToSystemTime(const char* szValue, stSYSTEMTIME& stTime);

protected:
    /// Columns that an error covers, from 1.
    struct ErrorColumns
    {
        long lFirst;
        long lLast;
    };

    /// The last cell of a date, and of an era year, counted from its first as 0.
    static constexpr long DATE_LAST_CELL = 3;
    static constexpr long YEAR_LAST_CELL = 1;

    /// The item's column, or the fallback if it has none.
    long CheckedColumn(long lFallback) const { return m_lColumn < 0 ? lFallback : m_lColumn; }
    /// The date of a cell in another record; nothing if its day cell is empty or it is no real
    /// date.
    std::optional<std::string> ReadReferred(const KZCEkaCsvFile* pCsv,
                                            const DateLiteral::CellReference& reference);
    /// The columns from lColumn (from 0) to that + lMore, or the four of "errcolumn" if it is set.
    ErrorColumns ReportedColumns(long lColumn, long lMore) const;
    /// The columns from lColumn (from 0) to that + lMore.
    static ErrorColumns ColumnsFrom(long lColumn, long lMore);
    /// Records a refusal unless recording is off. \param lRecord  From 1. \return STATUS_NG.
    int RecordDate(KZCEkaMessage_t eRefusal,
                   long lRecord,
                   const ErrorColumns& columns,
                   const std::string& strText) const;

    bool m_bKeepEra = false;      ///< the reader gives the era text
    bool m_bKeepEraName = false;  ///< the era that the record states stands
};
