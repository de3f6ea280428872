// Reads the detail table in which the library tells the errors of a request.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "EkaMsgTable.h"

namespace host {

inline constexpr long FILE_RECORD = 0;         ///< record number of an error of the file as a whole
inline constexpr long ARGUMENT_RECORD = 9999;  ///< record number of an error of an argument
inline constexpr long SINGLE_COLUMN = -1;      ///< end column of an error of one column

struct DetailEntry
{
    long lRecord = FILE_RECORD;
    long lColumn = 0;                     ///< from 1; an argument's number for an argument's error
    long lColumnEnd = SINGLE_COLUMN;      ///< last column of a range
    std::string strCode;                  ///< the whole entry if it doesn't have an entry's form
    KZCEkaMessage_t eMessage = MSG_NONE;  ///< MSG_NONE for a code that the catalogue doesn't hold

    bool operator==(const DetailEntry&) const = default;
};

/// The entries of a text such as "0003-00012-HE70001E,0003-14:17-HE70025E", in their order. Empty
/// for the empty text. An entry of another form isn't lost: it becomes an error of the file.
std::vector<DetailEntry> ParseDetailTable(std::string_view strTable);

}  // namespace host
