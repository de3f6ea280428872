#include "ProcedureRules.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::size_t BASE_MAX_RECORDS = 5000;

/// Files of the families whose type ids don't stand in their definitions.
struct CatalogueRow
{
    FamilyKind eFamily;
    const char* szTypeId;
    const char* szProcId;
    std::size_t nMaxRecords;
};
constexpr CatalogueRow CATALOGUE[] = {
    {FamilyKind::FINANCE, "101", "PGE2015", 1000},
    {FamilyKind::FINANCE, "102", "PGE2025", 1000},
    {FamilyKind::FINANCE, "103", "PGE2030", 1000},
    {FamilyKind::FINANCE, "104", "PGE2040", 1000},
    {FamilyKind::FINANCE, "105", "PGE2055", 1000},
    {FamilyKind::FINANCE, "106", "PGE2065", 1000},
    {FamilyKind::FINANCE, "107", "PGE2070", 1000},
    {FamilyKind::FINANCE, "108", "PGE2080", 1},
    {FamilyKind::FINANCE, "109", "PGE2095", 1000},
    {FamilyKind::FINANCE, "110", "PGE2105", 1000},
    {FamilyKind::FINANCE, "111", "PGE2115", 1000},
    {FamilyKind::FINANCE, "112", "PGE2125", 1000},
    {FamilyKind::FINANCE, "113", "PGE2135", 1000},
    {FamilyKind::FINANCE, "114", "PGE2140", 1000},
    {FamilyKind::FINANCE, "115", "PGE2150", 1000},
    {FamilyKind::FINANCE, "116", "PGE2160", 1},
    {FamilyKind::FINANCE, "201", "PGE1630", 1},
    {FamilyKind::FINANCE, "202", "PGE1640", 1000},
    {FamilyKind::CROSSBORDER, "301", "PGE1650", 1000},
    {FamilyKind::CROSSBORDER, "302", "PGE1660", 1000},
};

ProcedureRules ReadProcedure(const std::string& strBundle, const CatalogueRow& row)
{
    const char* szFolder = row.eFamily == FamilyKind::FINANCE ? "/Finance/" : "/CrossBorder/";
    ProcedureRules procedure{row.eFamily, row.szTypeId, row.szProcId, row.nMaxRecords, {}};
    procedure.vecForm = ReadForms(strBundle + szFolder + row.szProcId + "_vld.xml");
    if (procedure.vecForm.empty())
        throw std::runtime_error(procedure.strProcId + ": no form");
    for (FormRules& form : procedure.vecForm) {
        form.strTypeId = row.szTypeId;
        form.bHasGenerations = false;
        form.bQuoted = row.eFamily == FamilyKind::CROSSBORDER;
        // Where there are several forms the type id heads the file alone.
        form.bTypeIdFirst = &form == &procedure.vecForm.front();
    }
    return procedure;
}

/// The greatest record number (from 1) to which a rule refers, or 0.
long ReferredRecord(const CheckRule& rule)
{
    long lRecord = 0;
    if (rule.strKeyword == "rangebasedate" || rule.strKeyword == "rangebasedate_2")
        for (const std::string* pText : {&rule.strValue, &rule.strMin, &rule.strMax})
            lRecord = std::max(lRecord, ReferenceOf(*pText).first);
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

std::vector<ProcedureRules> ReadProcedures(const std::string& strBundle,
                                           const std::string& strProcId)
{
    const auto isWanted = [&strProcId](const std::string& strOther) {
        return strProcId.empty() || strProcId == strOther;
    };
    std::vector<ProcedureRules> vecProcedure;
    for (const CatalogueRow& row : CATALOGUE)
        if (isWanted(row.szProcId))
            vecProcedure.push_back(ReadProcedure(strBundle, row));
    if (!strProcId.empty() && !vecProcedure.empty())
        return vecProcedure;
    for (FormRules& form : ReadForms(strBundle + "/KZEkaDefine.xml")) {
        if (!isWanted(form.strProcId))
            continue;
        ProcedureRules procedure{
            FamilyKind::BASE, form.strTypeId, form.strProcId, BASE_MAX_RECORDS, {}};
        procedure.vecForm.push_back(std::move(form));
        vecProcedure.push_back(std::move(procedure));
    }
    return vecProcedure;
}
