#include "report/ErrorCounts.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace host {
namespace {

int ScopeOrder(ErrorScope eScope)
{
    switch (eScope) {
        case ErrorScope::File:
            return 0;
        case ErrorScope::Argument:
            return 1;
        case ErrorScope::Record:
            return 2;
        case ErrorScope::Cell:
            return 3;
    }
    return 0;
}

}  // namespace

std::vector<CodeCount> CountByCode(const FileReport& report)
{
    std::map<std::string, std::size_t> mapCount;
    for (const ReportedError& error : report.vecError)
        ++mapCount[error.entry.strCode];
    std::vector<CodeCount> vecCount;
    vecCount.reserve(mapCount.size());
    for (const auto& [strCode, nErrors] : mapCount)
        vecCount.push_back({strCode, nErrors});
    return vecCount;
}

std::vector<ColumnCount> CountByColumn(const FileReport& report)
{
    std::map<std::tuple<long, long, std::string>, std::size_t> mapCount;
    for (const ReportedError& error : report.vecError)
        if (error.eScope == ErrorScope::Cell)
            ++mapCount[{error.entry.lColumn, error.entry.lColumnEnd, error.strName}];
    std::vector<ColumnCount> vecCount;
    vecCount.reserve(mapCount.size());
    for (const auto& [column, nErrors] : mapCount)
        vecCount.push_back(
            {std::get<0>(column), std::get<1>(column), std::get<2>(column), nErrors});
    return vecCount;
}

std::vector<ErrorGroup> GroupErrors(const FileReport& report, std::size_t nErrors)
{
    using Key = std::tuple<int, long, long, std::string, std::string, std::string>;
    std::map<Key, ErrorGroup> mapGroup;
    for (std::size_t n = 0; n < std::min(nErrors, report.vecError.size()); ++n) {
        const ReportedError& error = report.vecError[n];
        const bool bColumn = error.eScope != ErrorScope::Record;
        mapGroup[{ScopeOrder(error.eScope), bColumn ? error.entry.lColumn : 0,
                  error.entry.lColumnEnd, error.strName, error.entry.strCode, error.strRule}]
            .vecError.push_back(n);
    }
    std::vector<ErrorGroup> vecGroup;
    vecGroup.reserve(mapGroup.size());
    for (auto& [key, group] : mapGroup)
        vecGroup.push_back(std::move(group));
    return vecGroup;
}

}  // namespace host
