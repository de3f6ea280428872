#include "request/FamilyOperations.h"

#include <cstdint>
#include <utility>

namespace host {
namespace {

using Result = FamilyOperations::Result;

constexpr std::int64_t KEPT_KEY = 1;
/// In the base family a conversion in memory doesn't take the last field, the software's name.
constexpr std::size_t KEPT_BASE_ARGUMENTS = BASE_ARGUMENTS.size() - 1;

/// Calls an operation with its first arguments, then with nCount fields in the order of the table.
template <std::size_t nCount, class Operation, std::size_t nFields, class... First>
Result Call(KZICsvConvMokEka& library,
            Operation pOperation,
            const std::array<FilerField, nFields>& order,
            const FilerFields& fields,
            First... first)
{
    static_assert(nCount <= nFields);
    return [&]<std::size_t... n>(std::index_sequence<n...>)
    {
        return (library.*pOperation)(first..., fields[order[n]].c_str()...);
    }
    (std::make_index_sequence<nCount>());
}

}  // namespace

Result FamilyOperations::Check(const std::string& strCsvPath) const
{
    switch (m_eFamily) {
        case Family::Base:
            return m_library.CsvCheck(strCsvPath.c_str());
        case Family::Finance:
            return m_library.CsvCheckFinance(strCsvPath.c_str());
        case Family::CrossBorder:
            return m_library.CsvCheckCrossBorder(strCsvPath.c_str());
    }
    return nullptr;
}

Result FamilyOperations::Convert(const std::string& strCsvPath,
                                 const std::string& strMokPath,
                                 const FilerFields& fields) const
{
    const char* szCsv = strCsvPath.c_str();
    const char* szMok = strMokPath.c_str();
    switch (m_eFamily) {
        case Family::Base:
            return Call<BASE_ARGUMENTS.size()>(m_library, &KZICsvConvMokEka::CsvConvMok,
                                               BASE_ARGUMENTS, fields, szCsv, szMok);
        case Family::Finance:
            return Call<FILER_FIELD_COUNT>(m_library, &KZICsvConvMokEka::CsvConvMokFinance,
                                           FINANCE_ARGUMENTS, fields, szCsv, szMok);
        case Family::CrossBorder:
            return Call<FILER_FIELD_COUNT>(m_library, &KZICsvConvMokEka::CsvConvMokCrossBorder,
                                           CROSSBORDER_ARGUMENTS, fields, szCsv, szMok);
    }
    return nullptr;
}

bool FamilyOperations::CanMakeDocument(const std::string& strCsvPath,
                                       const FilerFields& fields) const
{
    const bool bMade = Passed(CheckAndKeep(strCsvPath)) && Passed(ConvertKept(fields));
    m_library.Terminate();
    return bMade;
}

Result FamilyOperations::CheckAndKeep(const std::string& strCsvPath) const
{
    switch (m_eFamily) {
        case Family::Base:
            return m_library.ELCsvCheck(strCsvPath.c_str(), KEPT_KEY);
        case Family::Finance:
            return m_library.ELCsvCheckFinance(strCsvPath.c_str(), KEPT_KEY);
        case Family::CrossBorder:
            return m_library.ELCsvCheckCrossBorder(strCsvPath.c_str(), KEPT_KEY);
    }
    return nullptr;
}

Result FamilyOperations::ConvertKept(const FilerFields& fields) const
{
    switch (m_eFamily) {
        case Family::Base:
            return Call<KEPT_BASE_ARGUMENTS>(m_library, &KZICsvConvMokEka::ELCsvConvMok,
                                             BASE_ARGUMENTS, fields, KEPT_KEY);
        case Family::Finance:
            return Call<FILER_FIELD_COUNT>(m_library, &KZICsvConvMokEka::ELCsvConvMokFinance,
                                           FINANCE_ARGUMENTS, fields, KEPT_KEY);
        case Family::CrossBorder:
            return Call<FILER_FIELD_COUNT>(m_library, &KZICsvConvMokEka::ELCsvConvMokCrossBorder,
                                           CROSSBORDER_ARGUMENTS, fields, KEPT_KEY);
    }
    return nullptr;
}

bool Passed(const FamilyOperations::Result& pResult)
{
    return pResult && pResult->GetResult() == PROCESS_OK;
}

}  // namespace host
