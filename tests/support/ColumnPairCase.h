// Two cells of a record and whether they agree: what containcolumn and exceptcolumn share.
#pragma once

#include <ostream>

/// The item watches column 2 and names column 3.
struct ColumnPairCase
{
    const char* szName;
    const char* szCell;
    const char* szOther;
    const char* szMin;
    const char* szMax;
    bool bAgree;
};

inline void PrintTo(const ColumnPairCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

inline constexpr ColumnPairCase COLUMN_PAIR_CASES[] = {
    {"SameTexts", "abc", "abc", "", "", true},
    {"DifferentTexts", "abc", "abd", "", "", false},
    {"OneTextBeginsTheOther", "abc", "abcd", "", "", false},
    {"BothEmpty", "", "", "", "", true},
    {"OneEmpty", "abc", "", "", "", false},
    {"LeadingZeroAsText", "01", "1", "", "", false},
    {"LeadingZeroAsNumberByMin", "01", "1", "0", "", true},
    {"LeadingZeroAsNumberByMax", "01", "1", "", "0", true},
    {"MaxIsAdded", "5", "8", "", "3", true},
    {"MaxIsAddedToTheItemsCell", "8", "5", "", "3", false},
    {"MinIsTakenAway", "8", "5", "3", "", true},
    {"MinIsTakenAwayFromTheItemsCell", "5", "8", "3", "", false},
    {"MinAndMaxTogether", "10", "12", "1", "3", true},
    {"NegativeOffset", "5", "2", "", "-3", true},
    {"EmptyCellIsZero", "", "3", "", "3", true},
    {"BothCellsEmptyWithOffset", "", "", "", "3", false},
    {"BothCellsEmptyWithoutOffset", "", "", "0", "0", true},
    {"NoNumberIsZero", "abc", "0", "0", "", true},
    {"ParameterThatIsNoNumberIsZero", "05", "5", "x", "", true},
    {"BlankParameterIsGiven", "05", "5", " ", "", true},
    {"TrailingTextIsDropped", "5x", "5y", "0", "", true},
    {"LeadingBlankIsSkipped", " 5", "5", "0", "", true},
    {"FractionIsCutOff", "5.9", "5.1", "0", "", true},
    {"OnlyTheLow32BitsCount", "4294967297", "1", "0", "", true},
    {"OnlyTheLow32BitsOfTheOtherCellCount", "1", "4294967297", "0", "", true},
    {"OnlyTheLow32BitsOfMinCount", "8", "5", "4294967299", "", true},
    {"OnlyTheLow32BitsOfMaxCount", "5", "8", "", "4294967299", true},
    {"Beyond64BitsReadsMinusOne", "99999999999999999999", "-1", "0", "", true},
};
