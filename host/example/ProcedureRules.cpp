#include "ProcedureRules.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "CheckShape.h"

namespace host {

namespace {

/// The greatest record number (from 1) to which a rule refers, or 0.
long ReferredRecord(const CheckRule& rule)
{
    long lRecord = 0;
    for (const CellSpan& span : NamedCells(*rule.pRow, rule))
        lRecord = std::max(lRecord, span.lRecord);
    return lRecord;
}

}  // namespace

std::size_t ProcedureRules::FormAt(std::size_t nRow, std::size_t nCount) const
{
    if (vecForm.back().bLastRecord && nRow + 1 == nCount)
        return vecForm.size() - 1;
    for (std::size_t n = vecForm.size(); n-- > 0;)
        if (!vecForm[n].bLastRecord && vecForm[n].lStartRow <= static_cast<long>(nRow) + 1)
            return n;
    throw std::runtime_error(strProcId + ": no form for record " + std::to_string(nRow + 1));
}

std::size_t ProcedureRules::FirstRow(std::size_t nForm, std::size_t nCount) const
{
    std::size_t nRow = 0;
    while (FormAt(nRow, nCount) != nForm)
        ++nRow;
    return nRow;
}

bool ProcedureRules::IsRepeated(std::size_t nForm) const
{
    const FormRules& form = vecForm.at(nForm);
    return nMaxRecords > 1 && !form.bLastRecord && form.lEndRow <= 0;
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

bool ProcedureRules::IsReferredTo(std::size_t nRow) const
{
    return std::ranges::any_of(vecForm, [nRow](const FormRules& form) {
        return std::ranges::any_of(form.vecCheck, [nRow](const CheckRule& rule) {
            return ReferredRecord(rule) == static_cast<long>(nRow) + 1;
        });
    });
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
