// A record, the item that checks it, and what that tells.
#pragma once

#include <ostream>
#include <string>

#include "CheckItem.h"
#include "ResetState.h"
#include "TableCsv.h"

/// Column (from 0) of the items of these cases.
inline constexpr long CASE_COLUMN = 1;

/// One record and an item in column 2 of it.
struct RecordCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;
    std::string strTold;  ///< what OnRecord tells
};

inline void PrintTo(const RecordCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

/// Runs a RecordCase as a check and as a condition.
class RecordCaseTest : public ResetState, public testing::WithParamInterface<RecordCase>
{
protected:
    std::string ToldOnRecord() const
    {
        const TableCsv csv{GetParam().record};
        return OnRecord(*MakeItem(GetParam().text, CASE_COLUMN), csv);
    }
    std::string ToldAsCondition() const
    {
        const TableCsv csv{GetParam().record};
        return AsCondition(*MakeItem(GetParam().text, CASE_COLUMN), csv);
    }
    /// What a condition tells where a check tells strTold: the same without what is recorded.
    std::string ConditionTold() const
    {
        return GetParam().strTold.substr(0, GetParam().strTold.find(' '));
    }
};
