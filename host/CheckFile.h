// Checks one file by the library.
#pragma once

#include <string>

#include "FileReport.h"
#include "FormDefinition.h"
#include "SourceFile.h"

class KZICsvConvMokEka;

namespace host {

/// Runs the check and finds out what the library's codes don't tell: values, labels, reasons.
class FileCheck
{
public:
    /// \param strFile  As the user gave it.
    /// The library and the definitions are looked at for as long as the object lives.
    FileCheck(KZICsvConvMokEka& library,
              const Definitions& definitions,
              const std::string& strFile);

    FileReport Run();

    const SourceFile& Source() const { return m_source; }
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

    KZICsvConvMokEka& m_library;
    const Definitions& m_definitions;
    std::string m_strFile;
    SourceFile m_source;
    const ProcedureDefinition* m_pProcedure;  ///< of the file's type id; null if unknown
};

}  // namespace host
