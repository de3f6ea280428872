// The shape of a check item: what its attributes hold, what it looks at and where its errors stand.
// Words for people, lint, made-up records and their spoiling are derived from it, so that none of
// them knows keywords. Who adds an enumerator is told by the compiler where it needs a case.
#pragma once

#include <string_view>

/// What an attribute of a check item holds. Attributes of one kind belong together, such as the two
/// limits of a range.
enum class AttributeKind
{
    None,  ///< it isn't read

    // texts
    Texts,           ///< the cell has to be one of them
    ForbiddenTexts,  ///< the cell may be none of them
    Extensions,      ///< of which a path has one
    Positions,       ///< places of single characters, from 1
    Characters,      ///< at Positions: in max those that may stand there, in min those that may not
    PathKind,        ///< a word for what a path has to be
    NumberKind,      ///< a word for how the check digit is reckoned
    LineFeeds,       ///< a word that allows line feeds
    LimitsIncluded,  ///< a word that lets the limits themselves pass

    // numbers
    ByteCount,       ///< in value the exact length, in max the greatest
    CharacterCount,  ///< the same
    Limit,           ///< in min and max the limits of a number
    AgeLimit,        ///< in min and max the limits of an age in years
    Offset,          ///< min is taken from the number or year, max is added
    Years,           ///< Western years, one of which the year has to be
    Record,          ///< the record of ErrorColumns, from 1; without it the one that is checked

    // columns of the record, from 1
    EqualColumn,         ///< the cell equals it
    UnequalColumn,       ///< the cell differs from it
    AnyColumn,           ///< columns, one of which has to pass
    ErrorColumns,        ///< columns of which no error was found so far
    WesternDateColumns,  ///< three columns: year, month, day
    EqualYearColumn,     ///< the first of era and year; the year equals it
    FiscalYearColumn,    ///< the same; the date lies in the year that ends in its September
    AgeColumns,          ///< the words of AgeWord.h
    DateCell,            ///< "row_col" of a date's era in another record, which is checked instead
    BaseDate,            ///< in min and max the first of a date's four columns; beside a DateCell
                         ///< that is given a Western date with slashes
    BaseDateOrCell,      ///< the same column, or "row_col" of it in another record

    // dates YYYYMMDD
    FirstDay,     ///< on which a date may lie
    ComparedDay,  ///< value: the date itself, min: or later, max: or earlier; the first that is
                  ///< given
    Periods,      ///< in min and max the ends of periods, pair by pair; the year may be ****
    Period,       ///< in min and max the ends of one period
};

/// What a check does without an attribute that it reads, or without all of that kind.
enum class Absence
{
    Fine,  ///< what it says of itself
    Fault,
    RefusesAll,
    PassesAll,
    CountsAsZero,
};

struct AttributeShape
{
    AttributeKind eKind = AttributeKind::None;
    Absence eAbsence = Absence::Fine;
    std::string_view strWords = {};  ///< that a word may be, with blanks between them

    constexpr bool IsRead() const { return eKind != AttributeKind::None; }
};

/// The cells from a check's column on that it looks at.
enum class OwnCells
{
    None,  ///< its attributes name them all
    Cell,
    Year,         ///< two: era, year
    Date,         ///< four: era, year, month, day
    GroupOfKind,  ///< two or four, by the kind of the record: DateGroup.h
    OfficeName,   ///< two: name and code of a tax office
};

/// What the one cell has to hold, whatever the attributes say. Sets of characters stand first, the
/// narrowest before the wider ones.
enum class CellContent
{
    Digits,
    Letters,
    LettersAndDigits,
    Katakana,
    JisCharacters,
    FullWidth,
    KatakanaAndAscii,
    AsciiAndLineFeeds,
    FilingCharacters,
    Filled,
    Empty,
    OfficeCode,
    Any,
};

constexpr bool IsCharacterSet(CellContent eContent)
{
    return eContent <= CellContent::FilingCharacters;
}

/// Which columns an error of a check item covers.
enum class ErrorPlace
{
    None,           ///< it records no error
    Cell,           ///< the item's column
    Pair,           ///< that and the next one: era and year, or name and code
    Date,           ///< four columns from the item's: era, year, month, day
    PairOrColumn,   ///< as Pair, or four columns from errcolumn if it is given
    DateOrColumn,   ///< as Date, or four columns from errcolumn if it is given
    DateOrCell,     ///< the same, in the record of errrow if it is given
    GroupOfKind,    ///< four or two columns from the item's, by the kind of the record; the
                    ///< attribute message isn't read
    CellOrDate,     ///< as Date if value has "days" for its sixth word, otherwise as Cell
    YearOfMax,      ///< two columns from the column in max
    ColumnsOfValue  ///< from the first to the last column in value
};

struct ItemShape
{
    OwnCells eCells = OwnCells::Cell;
    CellContent eContent = CellContent::Any;
    AttributeShape value = {};
    AttributeShape min = {};
    AttributeShape max = {};
    ErrorPlace ePlace = ErrorPlace::Cell;
};
