// The words that the formats for people have in common, in the language of the program.
#pragma once

#include <cstdint>
#include <string>

#include "base/Language.h"
#include "report/ErrorCounts.h"
#include "request/FileReport.h"

namespace host {

/// A count of things in both languages; {1} stands for the number.
struct CountText
{
    Text one;
    Text many;
};

inline constexpr CountText ERRORS = {{"{1} error", "{1}件のエラー"},
                                     {"{1} errors", "{1}件のエラー"}};
inline constexpr CountText RECORDS = {{"{1} record", "{1}レコード"},
                                      {"{1} records", "{1}レコード"}};
inline constexpr CountText FILES = {{"{1} file", "{1}ファイル"}, {"{1} files", "{1}ファイル"}};
inline constexpr CountText BYTES = {{"{1} byte", "{1}バイト"}, {"{1} bytes", "{1}バイト"}};

/// Two texts that each end with a full stop, as one follows the other. Either may be empty.
std::string Sentences(const std::string& strFirst, const std::string& strSecond);

/// "2,000"
std::string Grouped(std::uintmax_t nCount);

/// "1 error", "2,000 errors"
std::string Count(std::uintmax_t nCount, const CountText& text);

/// "record 3, columns 5 to 8"; an argument's name.
std::string PlaceOf(const ReportedError& error);

/// "column 5", "columns 5 to 8"
std::string ColumnWords(long lColumn, long lColumnEnd);

/// "5", "5-8"
std::string ColumnNumbers(long lColumn, long lColumnEnd);

/// "3 errors in 2 of 20 records"
std::string ErrorSummary(const FileReport& report);

/// The errors are the file's own, so that counting them helps.
bool IsAboutContents(const FileReport& report);

}  // namespace host
