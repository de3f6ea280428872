#include "generate/CsvText.h"

namespace host {
namespace {

/// No byte of a Shift_JIS character looks like one of these.
bool NeedsQuotes(const std::string& strCell)
{
    return strCell.find_first_of(",\"\r\n") != std::string::npos;
}

std::string Quoted(const std::string& strCell)
{
    std::string strQuoted = "\"";
    for (const char c : strCell) {
        if (c == '"')
            strQuoted += '"';
        strQuoted += c;
    }
    return strQuoted + '"';
}

}  // namespace

std::string CsvText(const std::vector<std::vector<std::string>>& vecRecord, bool bQuoted)
{
    std::string strText;
    for (const std::vector<std::string>& record : vecRecord) {
        for (std::size_t n = 0; n < record.size(); ++n) {
            if (n > 0)
                strText += ',';
            strText += bQuoted && NeedsQuotes(record[n]) ? Quoted(record[n]) : record[n];
        }
        strText += "\r\n";
    }
    return strText;
}

}  // namespace host
