// Checks one file by the library.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "file/SourceFile.h"
#include "form/FormDefinition.h"
#include "request/FamilyOperations.h"
#include "request/FileReport.h"
#include "rules/RuleBook.h"

namespace host {

/// Runs the check and finds out what the library's codes don't tell: values, labels, reasons.
class FileCheck
{
public:
    /// \param strFile  As the user gave it.
    /// \param family  Whose operations take the file; nothing: that of its first record's type id.
    /// The library and the definitions are looked at for as long as the object lives.
    FileCheck(KZICsvConvMokEka& library,
              const Definitions& definitions,
              const std::string& strFile,
              std::optional<Family> family = std::nullopt);

    FileReport Run();

    const SourceFile& Source() const { return m_source; }
    const FamilyOperations& Operations() const { return m_operations; }
    /// The library's errors with all that is known about them.
    std::vector<ReportedError> Explain(const std::vector<DetailEntry>& vecEntry) const;
    /// Makes a report of a file that wasn't checked to its end.
    FileReport NotChecked(const std::string& strProblem, const std::string& strAdvice) const;
    /// The same for a fault that the library gave no reason for.
    FileReport Broken() const;

private:
    FileReport StartReport() const;
    FileReport Judge(const std::vector<DetailEntry>& vecEntry) const;
    ReportedError Explain(const DetailEntry& entry) const;
    void ExplainCell(ReportedError& error) const;

    const Definitions& m_definitions;
    std::string m_strFile;
    SourceFile m_source;
    FamilyOperations m_operations;
    const ProcedureDefinition* m_pProcedure;  ///< of the file's type id; null if unknown
    std::unique_ptr<RuleBook> m_pRules;       ///< its rules; null if unknown
};

}  // namespace host
