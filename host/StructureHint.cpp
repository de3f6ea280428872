#include "StructureHint.h"

#include "SafeText.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_CHARACTERS = 40;

std::string Quoted(const std::string& strText)
{
    return "\"" + MakeSafeAndShort(strText, SHOWN_CHARACTERS) + "\"";
}

std::string ColumnCountHint(const CsvCells& cells, const ProcedureDefinition& procedure)
{
    for (std::size_t n = 1; n <= cells.RecordCount(); ++n)
        if (!cells.IsBlank(n) &&
            static_cast<long>(cells.ColumnCount(n)) != procedure.vecForm.front().lColumnNum)
            return "Record " + std::to_string(n) + " has " + std::to_string(cells.ColumnCount(n)) +
                   " columns, a record of type " + procedure.strTypeId + " has " +
                   std::to_string(procedure.vecForm.front().lColumnNum) + ".";
    return {};
}

std::string TypeIds(const Definitions& definitions)
{
    std::string strIds;
    for (const std::string& strTypeId : definitions.TypeIds(Family::Base))
        strIds += (strIds.empty() ? "" : ", ") + strTypeId;
    return strIds;
}

std::string TypeIdHint(const CsvCells& cells, const Definitions& definitions)
{
    const std::string strTypeId = cells.TypeId();
    if (definitions.Find(strTypeId) == nullptr)
        return "Record " + std::to_string(cells.FirstRecord().value_or(1)) + " begins with " +
               Quoted(strTypeId) + "; the definitions know " + TypeIds(definitions) + ".";
    for (std::size_t n = 1; n <= cells.RecordCount(); ++n)
        if (!cells.IsBlank(n) && cells.Cell(n, 1) != strTypeId)
            return "Record " + std::to_string(n) + " begins with " + Quoted(cells.Cell(n, 1)) +
                   ", the file with " + Quoted(strTypeId) + ".";
    return {};
}

}  // namespace

std::string StructureHint(KZCEkaMessage_t eMessage,
                          const CsvCells& cells,
                          const Definitions& definitions)
{
    if (eMessage == HE70020E)
        return "It has " + std::to_string(cells.RecordCount()) + " lines.";
    if (!definitions.HasBase())
        return {};
    if (eMessage == HE70021E)
        return TypeIdHint(cells, definitions);
    const ProcedureDefinition* pProcedure = definitions.Find(cells.TypeId());
    return eMessage == HE70019E && pProcedure != nullptr ? ColumnCountHint(cells, *pProcedure)
                                                         : std::string();
}

}  // namespace host
