#include "form/DetailTable.h"

#include <charconv>
#include <optional>

namespace host {
namespace {

/// Takes a decimal number, with or without a minus sign, from the front of the text.
std::optional<long> TakeNumber(std::string_view& strText)
{
    long lNumber = 0;
    const auto [pEnd, error] =
        std::from_chars(strText.data(), strText.data() + strText.size(), lNumber);
    if (error != std::errc())
        return std::nullopt;
    strText.remove_prefix(static_cast<std::size_t>(pEnd - strText.data()));
    return lNumber;
}

bool TakeCharacter(std::string_view& strText, char cExpected)
{
    if (strText.empty() || strText.front() != cExpected)
        return false;
    strText.remove_prefix(1);
    return true;
}

std::optional<DetailEntry> ParseEntry(std::string_view strText)
{
    DetailEntry entry;
    const auto record = TakeNumber(strText);
    if (!record || !TakeCharacter(strText, '-'))
        return std::nullopt;
    entry.lRecord = *record;

    const auto column = TakeNumber(strText);
    if (!column)
        return std::nullopt;
    entry.lColumn = *column;

    if (TakeCharacter(strText, ':')) {
        const auto columnEnd = TakeNumber(strText);
        if (!columnEnd)
            return std::nullopt;
        entry.lColumnEnd = *columnEnd;
    }
    if (!TakeCharacter(strText, '-') || strText.empty())
        return std::nullopt;
    entry.strCode = strText;
    entry.eMessage = FindEkaMessage(strText);
    return entry;
}

}  // namespace

std::vector<DetailEntry> ParseDetailTable(std::string_view strTable)
{
    std::vector<DetailEntry> vecEntry;
    while (!strTable.empty()) {
        const std::string_view strText = strTable.substr(0, strTable.find(','));
        strTable.remove_prefix(std::min(strTable.size(), strText.size() + 1));
        auto entry = ParseEntry(strText);
        if (!entry) {
            entry.emplace();
            entry->strCode = strText;
        }
        vecEntry.push_back(std::move(*entry));
    }
    return vecEntry;
}

}  // namespace host
