#include "StructureHint.h"

#include "SafeText.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_CHARACTERS = 40;

std::string Quoted(const std::string& strText)
{
    return "\"" + MakeSafeAndShort(strText, SHOWN_CHARACTERS) + "\"";
}

std::string ColumnCountHint(const CsvCells& cells, const FormDefinition& form)
{
    for (std::size_t n = 1; n <= cells.RecordCount(); ++n)
        if (!cells.IsBlank(n) && static_cast<long>(cells.ColumnCount(n)) != form.lColumnNum)
            return "Record " + std::to_string(n) + " has " + std::to_string(cells.ColumnCount(n)) +
                   " columns, a record of type " + form.strTypeId + " has " +
                   std::to_string(form.lColumnNum) + ".";
    return {};
}

std::string TypeIdHint(const CsvCells& cells, const FormDefinitions& forms)
{
    const std::string strTypeId = cells.TypeId();
    if (forms.Find(strTypeId) == nullptr)
        return "Record " + std::to_string(cells.FirstRecord().value_or(1)) + " begins with " +
               Quoted(strTypeId) + "; the definitions know " + forms.TypeIds() + ".";
    for (std::size_t n = 1; n <= cells.RecordCount(); ++n)
        if (!cells.IsBlank(n) && cells.Cell(n, 1) != strTypeId)
            return "Record " + std::to_string(n) + " begins with " + Quoted(cells.Cell(n, 1)) +
                   ", the file with " + Quoted(strTypeId) + ".";
    return {};
}

}  // namespace

std::string StructureHint(KZCEkaMessage_t eMessage,
                          const CsvCells& cells,
                          const FormDefinitions* pForms)
{
    if (eMessage == HE70020E)
        return "It has " + std::to_string(cells.RecordCount()) + " lines.";
    if (pForms == nullptr)
        return {};
    if (eMessage == HE70021E)
        return TypeIdHint(cells, *pForms);
    const FormDefinition* pForm = pForms->Find(cells.TypeId());
    return eMessage == HE70019E && pForm != nullptr ? ColumnCountHint(cells, *pForm)
                                                    : std::string();
}

}  // namespace host
