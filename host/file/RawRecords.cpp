#include "file/RawRecords.h"

#include <algorithm>
#include <cstddef>

namespace host {
namespace {

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// Where the value that begins with a quote at nStart has its closing quote, or the end of the
/// text.
std::size_t ClosingQuote(std::string_view strBytes, std::size_t nStart)
{
    for (std::size_t n = nStart + 1; n < strBytes.size(); ++n) {
        if (strBytes[n] != '"')
            continue;
        if (n + 1 == strBytes.size() || strBytes[n + 1] != '"')
            return n;
        ++n;
    }
    return strBytes.size();
}

/// Behind the line end of the record that begins the text.
std::size_t RecordSize(std::string_view strBytes, bool bQuotes)
{
    bool bValueStart = true;
    for (std::size_t n = 0; n < strBytes.size(); ++n) {
        const char c = strBytes[n];
        if (IsLineEnd(c))
            return n + (strBytes.substr(n, 2) == "\r\n" ? 2 : 1);
        if (c == '"' && bQuotes && bValueStart)
            n = ClosingQuote(strBytes, n);
        bValueStart = c == ',';
    }
    return strBytes.size();
}

bool IsBlank(std::string_view strRecord)
{
    return std::ranges::all_of(strRecord,
                               [](char c) { return IsLineEnd(c) || c == ' ' || c == '\t'; });
}

}  // namespace

std::vector<std::string_view> RawRecords(std::string_view strBytes, Family eFamily)
{
    std::vector<std::string_view> vecRecord;
    while (!strBytes.empty()) {
        const std::size_t nSize = RecordSize(strBytes, eFamily == Family::CrossBorder);
        if (!IsBlank(strBytes.substr(0, nSize)))
            vecRecord.push_back(strBytes.substr(0, nSize));
        strBytes.remove_prefix(nSize);
    }
    return vecRecord;
}

}  // namespace host
