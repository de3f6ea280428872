// Checks one file and turns it into a document.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "file/PendingDocument.h"
#include "request/CheckFile.h"
#include "request/FilerFields.h"

namespace host {

struct ConversionOptions
{
    std::optional<Family> family;  ///< nothing: that of the file's first record's type id
    /// Does everything, but leaves no file.
    bool bDryRun = false;
    /// A field that an option gives has to be one that the family takes. Without this such fields
    /// are passed over, as those of a profile always are.
    bool bRefuseForeignOptions = false;
};

/// The library's conversion doesn't check columns, so a file is checked first, and one with errors
/// is refused with the report of that check. The document appears whole or not at all.
class FileConversion
{
public:
    /// \param strOutput  Path of the document, ending in .mok or .MOK.
    /// \param fields  An empty procedure id is filled from the check, an empty software name is
    ///     this program's.
    FileConversion(KZICsvConvMokEka& library,
                   const Definitions& definitions,
                   const std::string& strFile,
                   const std::string& strOutput,
                   FilerFields fields,
                   const ConversionOptions& options = {});

    /// Where the document goes. Its path is then only what is told of it.
    void WriteTo(FilePlace place) { m_place = std::move(place); }

    FileReport Run();

private:
    std::string OutputPath() const;
    FileReport Convert(FileReport report);
    FileReport Write(FileReport report, PendingDocument& document);
    FileReport Keep(FileReport report, PendingDocument& document);
    FileReport Judge(FileReport report,
                     const std::vector<DetailEntry>& vecEntry,
                     const PendingDocument& document);
    FileReport Broken(FileReport report) const;
    FileReport NotWritten(FileReport report,
                          const PendingDocument& document,
                          const std::string& strReason) const;
    std::string ForeignOption() const;
    void ExplainArguments(FileReport& report) const;

    FileCheck m_check;
    std::string m_strOutput;  ///< as the user gave it
    std::optional<FilePlace> m_place;
    FilerFields m_fields;
    ConversionOptions m_options;
};

}  // namespace host
