// Which checks reported an error, in words.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "form/DetailTable.h"
#include "form/FormDefinition.h"

namespace host {

/// The checks of a procedure by the place of their errors. Made once for a file and asked for each
/// of its errors: a definition may have thousands of checks, and a file a hundred thousand errors.
/// Looks at the definition for as long as it lives.
class RuleBook
{
public:
    explicit RuleBook(const ProcedureDefinition& procedure);

    /// The words of the checks that report such an error there, in their order, each once, joined
    /// by "／" or "; or ": those of the form of the error's record, and those of other forms that
    /// place their errors in that record. Empty if there is none, as for errors of files and
    /// arguments. More than RULES_MAX end with an ellipsis, as do words of more than
    /// RULE_BYTES_MAX. \param nRecordCount  Records of the file.
    const std::string& RuleOf(const DetailEntry& entry, std::size_t nRecordCount);

    static constexpr std::size_t RULES_MAX = 8;
    static constexpr std::size_t RULE_BYTES_MAX = 4000;

private:
    using Span = std::pair<long, long>;  ///< first and last column of an error
    struct PlacedCheck
    {
        const FormDefinition* pForm;
        const CheckDefinition* pCheck;
    };

    std::string Words(const std::vector<PlacedCheck>& vecCheck,
                      const DetailEntry& entry,
                      const FormDefinition* pOwn) const;

    const ProcedureDefinition& m_procedure;
    std::map<Span, std::vector<PlacedCheck>> m_mapCheck;  ///< in their order
    bool m_bNamesRecords = false;  ///< a check names the record of its errors
    /// What was asked before, by own form, place, code, and record if checks name theirs.
    std::map<std::tuple<const FormDefinition*, long, long, KZCEkaMessage_t, long>, std::string>
        m_mapKnown;
};

/// RuleBook::RuleOf for one question.
std::string RuleOf(const ProcedureDefinition& procedure,
                   const DetailEntry& entry,
                   std::size_t nRecordCount);
/// The same for a form that is the only one of its procedure.
std::string RuleOf(const FormDefinition& form, const DetailEntry& entry);

}  // namespace host
