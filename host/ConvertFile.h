// Checks one file and turns it into a document.
#pragma once

#include <string>

#include "CheckFile.h"
#include "FilerFields.h"

namespace host {

/// The library's conversion doesn't check columns, so a file is checked first, and one with errors
/// is refused with the report of that check.
class FileConversion
{
public:
    /// \param strOutput  Path of the document, ending in .mok or .MOK.
    /// \param fields  An empty procedure id is filled from the check, an empty software name is
    /// this
    ///     program's.
    FileConversion(KZICsvConvMokEka& library,
                   const Definitions& definitions,
                   const std::string& strFile,
                   const std::string& strOutput,
                   FilerFields fields);

    FileReport Run();

private:
    FileReport Convert(FileReport report);
    FileReport Judge(FileReport report, const std::vector<DetailEntry>& vecEntry);
    FileReport Broken(FileReport report) const;
    FileReport NotWritten(FileReport report) const;
    void ExplainArguments(FileReport& report) const;
    bool CanMakeDocument();

    KZICsvConvMokEka& m_library;
    FileCheck m_check;
    std::string m_strOutput;      ///< as the user gave it
    std::string m_strOutputPath;  ///< absolute, as the library wants a folder in it
    FilerFields m_fields;
};

}  // namespace host
