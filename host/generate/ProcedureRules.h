// The validation file of a procedure: which form checks which record of a file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "generate/FormRules.h"

namespace host {

struct ProcedureRules
{
    Family eFamily = Family::Base;
    std::string strTypeId;
    std::string strProcId;
    std::size_t nMaxRecords = 0;     ///< that a file may have
    std::vector<FormRules> vecForm;  ///< in document order; their record ranges don't overlap

    /// Place in vecForm of the form that checks a record (from 0) of a file of so many records.
    std::size_t FormAt(std::size_t nRow, std::size_t nCount) const;
    /// Records of the shortest file in which every form has a record and which holds every record
    /// to which another refers by its number.
    std::size_t ShortestFile() const;
    bool HasGenerations() const { return eFamily == Family::Base; }
};

/// The greatest record (from 1) to which a rule refers by its number, or 0.
long ReferredRecord(const CheckRule& rule);

/// The rules of a procedure. Throws std::runtime_error for an unknown keyword.
ProcedureRules MakeProcedureRules(const ProcedureDefinition& definition);

}  // namespace host
