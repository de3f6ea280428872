#include "CheckFile.h"

#include <KZEkaMok/KZEkaMok.h>

#include <algorithm>
#include <string_view>

#include "Advice.h"
#include "FilerFields.h"
#include "Installation.h"
#include "SafeText.h"
#include "StructureHint.h"

namespace host {
namespace {

constexpr std::string_view FINANCE_FAMILY = "Finance";
constexpr std::string_view CROSSBORDER_FAMILY = "CrossBorder";

/// Empty for the base family and for ids of no family, which the library refuses.
std::string_view OtherFamily(const std::string& strTypeId)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (strTypeId.size() != 3 || !std::ranges::all_of(strTypeId, isDigit))
        return {};
    if (strTypeId == "301" || strTypeId == "302")
        return CROSSBORDER_FAMILY;
    return strTypeId.front() == '1' || strTypeId.front() == '2' ? FINANCE_FAMILY
                                                                : std::string_view();
}

ErrorScope ScopeOf(const DetailEntry& entry)
{
    if (entry.lRecord == ARGUMENT_RECORD)
        return ErrorScope::Argument;
    if (entry.lRecord <= FILE_RECORD)
        return ErrorScope::File;
    return entry.lColumn > 0 ? ErrorScope::Cell : ErrorScope::Record;
}

std::string ArgumentName(long lArgument)
{
    if (lArgument == CSV_PATH_ARGUMENT)
        return "FILE";
    if (lArgument == MOK_PATH_ARGUMENT)
        return "--output";
    const long lField = lArgument - FIRST_FILER_ARGUMENT;
    if (lField < 0 || lField >= static_cast<long>(FILER_FIELDS.size()))
        return "argument " + std::to_string(lArgument);
    return FILER_FIELDS[static_cast<std::size_t>(lField)].szOption;
}

bool Holds(const std::vector<DetailEntry>& vecEntry, KZCEkaMessage_t eMessage)
{
    return std::ranges::any_of(
        vecEntry, [eMessage](const DetailEntry& entry) { return entry.eMessage == eMessage; });
}

/// The error that is the path's own, or null. An empty file is none: it has been read to its end.
/// \param bReadable  The file could be read, so that it is empty if the library says so.
const DetailEntry* FindPathError(const std::vector<DetailEntry>& vecEntry, bool bReadable)
{
    const auto isPathError = [bReadable](const DetailEntry& entry) {
        return entry.lRecord == ARGUMENT_RECORD && entry.lColumn == CSV_PATH_ARGUMENT &&
               (entry.eMessage != HE70024E || !bReadable);
    };
    const auto it = std::ranges::find_if(vecEntry, isPathError);
    return it != vecEntry.end() ? &*it : nullptr;
}

}  // namespace

FileCheck::FileCheck(KZICsvConvMokEka& library,
                     const Definitions& definitions,
                     const std::string& strFile)
    : m_library(library),
      m_definitions(definitions),
      m_strFile(strFile),
      m_source(strFile),
      m_pProcedure(definitions.Find(m_source.Cells().TypeId()))
{
}

FileReport FileCheck::Run()
{
    if (const auto strProblem = m_source.PathProblem())
        return NotChecked("The file was not checked: " + *strProblem + ".", "Rename it.");
    const std::string strTypeId = UnquotedTypeId(m_source.Cells());
    if (const auto strFamily = OtherFamily(strTypeId); !strFamily.empty())
        return NotChecked("The file's type id " + strTypeId + " belongs to the " +
                              std::string(strFamily) + " family, which this build doesn't do.",
                          "Use a build that does.");

    const auto pResult = m_library.CsvCheck(m_source.LibraryPath().c_str());
    if (!pResult)
        return NotChecked("The library could not even start the check.",
                          "Make sure that enough memory is free.");

    FileReport report;
    if (pResult->GetResult() == PROCESS_OK) {
        report = StartReport();
        report.eOutcome = Outcome::Passed;
        report.eStatus = ExitStatus::Passed;
        report.strProcedure = pResult->GetProcId();
    } else {
        report = Judge(ParseDetailTable(pResult->GetDetailErrorInfo()));
    }

    const auto strNul = m_source.NulProblem();
    if (strNul && report.eOutcome != Outcome::NotChecked) {
        report.eOutcome = Outcome::NotChecked;
        report.eStatus = ExitStatus::NotChecked;
        report.strProblem = "The file was not checked to its end: " + *strNul + ".";
        report.strAdvice = "Remove the NUL bytes.";
    }
    return report;
}

FileReport FileCheck::StartReport() const
{
    FileReport report;
    report.strFile = m_strFile;
    if (m_pProcedure != nullptr)
        report.strProcedure = m_pProcedure->strProcId;
    if (!m_source.TextProblem())
        report.records = m_source.Cells().FilledRecordCount();
    return report;
}

FileReport FileCheck::NotChecked(const std::string& strProblem, const std::string& strAdvice) const
{
    FileReport report = StartReport();
    report.strProblem = strProblem;
    report.strAdvice = strAdvice;
    return report;
}

FileReport FileCheck::Broken() const
{
    if (const std::string strProblem = InstallationProblem(); !strProblem.empty())
        return NotChecked("The installation is not complete.", strProblem);
    if (const auto strProblem = m_source.TextProblem())
        return NotChecked("The file can't be read: " + *strProblem + ".",
                          "Save it as a Shift_JIS text.");
    return NotChecked(
        "The library broke down without a reason that can be seen from here; the "
        "definition of the file's form may be faulty.",
        LOG_ADVICE);
}

FileReport FileCheck::Judge(const std::vector<DetailEntry>& vecEntry) const
{
    const bool bNoReason = vecEntry.empty() || Holds(vecEntry, HE70017E);
    FileReport report;
    if (Holds(vecEntry, HE70018E) || bNoReason) {
        report = Broken();
    } else if (const auto* pPathError = FindPathError(vecEntry, !m_source.TextProblem())) {
        const bool bEmpty = pPathError->eMessage == HE70024E;
        report = NotChecked("The file was not checked.",
                            bEmpty ? "It is no regular file: copy what it gives into one."
                                   : AdviceFor(pPathError->eMessage));
    } else {
        report = StartReport();
        report.eOutcome = Outcome::Refused;
        report.eStatus = ExitStatus::Refused;
        if (m_source.LooksLikeUtf8())
            report.strNote =
                "The file can be read as UTF-8, too. If it was saved as UTF-8, save it "
                "as Shift_JIS: that explains most of these errors.";
    }
    report.vecError = Explain(vecEntry);
    report.bMoreErrors = Holds(vecEntry, HE70022E);
    return report;
}

std::vector<ReportedError> FileCheck::Explain(const std::vector<DetailEntry>& vecEntry) const
{
    std::vector<ReportedError> vecError;
    vecError.reserve(vecEntry.size());
    for (const DetailEntry& entry : vecEntry)
        if (entry.eMessage != HE70022E)  // tells about the table and not about the file
            vecError.push_back(Explain(entry));
    return vecError;
}

ReportedError FileCheck::Explain(const DetailEntry& entry) const
{
    ReportedError error;
    error.entry = entry;
    error.eScope = ScopeOf(entry);
    switch (error.eScope) {
        case ErrorScope::Cell: {
            const long lColumnEnd = std::max(entry.lColumn, entry.lColumnEnd);
            const FormDefinition* pForm =
                m_pProcedure != nullptr
                    ? m_pProcedure->FormAt(static_cast<std::size_t>(entry.lRecord),
                                           m_source.Cells().RecordCount())
                    : nullptr;
            if (pForm != nullptr)
                error.strName = pForm->labels.Find(entry.lColumn, entry.lColumnEnd);
            error.value = m_source.Cells().Cells(static_cast<std::size_t>(entry.lRecord),
                                                 static_cast<std::size_t>(entry.lColumn),
                                                 static_cast<std::size_t>(lColumnEnd));
            break;
        }
        case ErrorScope::Argument:
            error.strName = ArgumentName(entry.lColumn);
            if (entry.lColumn == CSV_PATH_ARGUMENT)
                error.value = m_strFile;
            break;
        case ErrorScope::File:
            error.strHint = StructureHint(entry.eMessage, m_source.Cells(), m_definitions);
            break;
        case ErrorScope::Record:
            break;
    }
    return error;
}

}  // namespace host
