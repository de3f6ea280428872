// Makes files that pass the check of a procedure, from its definition file alone.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "generate/ProcedureRules.h"
#include "generate/RecordGenerator.h"

namespace host {

/// One record generator for each form of a procedure, around one table: a check may read other
/// records than its own. Works inside a CheckPhase only.
class FileGenerator
{
public:
    using Record = RecordGenerator::Record;

    /// \param procedure  Looked at until destruction. \param strFolder  Where files that cells name
    /// are made.
    FileGenerator(const ProcedureRules& procedure,
                  const std::vector<TaxOffice>& vecOffice,
                  const std::string& strFolder,
                  unsigned nSeed);
    FileGenerator(const FileGenerator&) = delete;
    FileGenerator& operator=(const FileGenerator&) = delete;

    /// A file of so many records, whose generations take turns.
    const std::vector<Record>& Make(std::size_t nCount);
    /// Another record in the place of one (from 0) of the file made last, the others being as they
    /// are.
    const Record& MakeAgain(std::size_t nRow);

    /// The file made last.
    RecordTable& Table() { return m_table; }

private:
    void MakeRecord(std::size_t nRow, std::size_t nCount);

    const ProcedureRules& m_procedure;
    RecordTable m_table;
    std::vector<RecordGenerator> m_vecGenerator;
    std::size_t m_nTurn = 0;
};

}  // namespace host
