// How the records of a file are dealt out to several.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "form/FormDefinition.h"

namespace host {

/// The records that every part has, around those that are dealt out.
struct FixedRecords
{
    std::size_t nHead = 0;  ///< at the front: those of forms with a range of their own
    std::size_t nTail = 0;  ///< at the end: 1 if the last record is a form of its own
};

/// Nothing is fixed where a procedure has one form.
FixedRecords FixedRecordsOf(const ProcedureDefinition& procedure);

/// The bytes of the parts, in the order of the records. A file that fits into one part gives one.
/// \param vecRecord  With their line ends; the last may lack it.
/// \param nMost  Records of a part, more than the fixed ones.
std::vector<std::string> SplitRecords(const std::vector<std::string_view>& vecRecord,
                                      const FixedRecords& fixed,
                                      std::size_t nMost);

}  // namespace host
