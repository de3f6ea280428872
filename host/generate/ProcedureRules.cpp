#include "generate/ProcedureRules.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "rules/CheckShape.h"

namespace host {

long ReferredRecord(const CheckRule& rule)
{
    long lRecord = 0;
    for (const CellSpan& span : NamedCells(*rule.pRow, rule))
        lRecord = std::max(lRecord, span.lRecord);
    return lRecord;
}

std::size_t ProcedureRules::FormAt(std::size_t nRow, std::size_t nCount) const
{
    const auto nForm = FormOfRecord(vecForm, static_cast<std::int64_t>(nRow) + 1,
                                    static_cast<std::int64_t>(nCount));
    if (!nForm)
        throw std::runtime_error(strProcId + ": no form for record " + std::to_string(nRow + 1));
    return *nForm;
}

std::size_t ProcedureRules::ShortestFile() const
{
    long lCount = 1;
    for (const FormRules& form : vecForm) {
        lCount = std::max(lCount, form.lStartRow);
        if (nMaxRecords > 1)
            for (const CheckRule& rule : form.vecCheck)
                lCount = std::max(lCount, ReferredRecord(rule) + 1);
    }
    const auto nCount = static_cast<std::size_t>(lCount);
    return nCount + (vecForm.back().bLastRecord ? 1 : 0);
}

ProcedureRules MakeProcedureRules(const ProcedureDefinition& definition)
{
    ProcedureRules procedure;
    procedure.eFamily = definition.eFamily;
    procedure.strTypeId = definition.strTypeId;
    procedure.strProcId = definition.strProcId;
    procedure.nMaxRecords = static_cast<std::size_t>(definition.lMaxRecord);
    for (const FormDefinition& form : definition.vecForm) {
        if (form.lColumnNum < 1)
            throw std::runtime_error(definition.strProcId + ": a form has no columns");
        FormRules rules = MakeFormRules(definition, form);
        rules.bHasGenerations = definition.eFamily == Family::Base;
        rules.bQuoted = definition.eFamily == Family::CrossBorder;
        // Where there are several forms the type id heads the file alone.
        rules.bTypeIdFirst = procedure.vecForm.empty();
        procedure.vecForm.push_back(std::move(rules));
    }
    return procedure;
}

}  // namespace host
