#include "lint/Lint.h"

#include "lint/LintTopics.h"

namespace host {

std::vector<LintFinding> LintFolder(const std::string& strBundle,
                                    const std::vector<std::string>& vecTypeId)
{
    LintReport report;
    const LintBundle bundle = ReadLintBundle(strBundle, vecTypeId, report);
    for (const auto& pFile : bundle.vecFile) {
        for (LintForm& form : pFile->vecForm)
            PlaceItems(*pFile, form, report);
        LintElements(*pFile, report);
        LintCatalogue(*pFile, vecTypeId, report);
        LintItems(*pFile, report);
        LintColumns(*pFile, report);
        LintChecks(*pFile, report);
        LintRanges(*pFile, report);
        if (pFile->eRole == LintRole::Both)
            LintDocument(*pFile, nullptr, report);
    }
    for (const LintProcedure& procedure : bundle.vecProcedure)
        if (procedure.pDocument != nullptr)
            LintDocument(*procedure.pDocument, procedure.pChecks, report);
    LintOffices(bundle, report);
    LintLoad(bundle, report);
    return report.Take();
}

}  // namespace host
