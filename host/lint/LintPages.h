// The pages of a template's reports: when one opens and closes, and whether both happen.
#pragma once

#include <set>

#include "lint/LintBundle.h"

namespace host {

/// A page begins at this record (from 1) of so many, if the record writes something.
bool OpensPage(const LintFile& document, const LintForm& form, long lRecord, long lCount);

/// Follows the records of a file and reports each form whose pages aren't opened or closed.
class PageTurner
{
public:
    PageTurner(const LintFile& document, LintReport& report);

    /// The next record that the writers give to a form.
    void Turn(const LintForm& form, long lRecord, long lCount);
    /// No record follows. Ready for another file.
    void Finish(long lCount);

private:
    void Tell(const LintForm& form, const LintTexts& texts, long lRecord, long lCount);

    const LintFile& m_document;
    LintReport& m_report;
    std::set<const LintForm*> m_setTold;
    const LintForm* m_pForm = nullptr;  ///< of the last record
    bool m_bOpen = false;
};

}  // namespace host
