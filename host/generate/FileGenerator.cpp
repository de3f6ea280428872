#include "generate/FileGenerator.h"

namespace host {

FileGenerator::FileGenerator(const ProcedureRules& procedure,
                             const std::vector<TaxOffice>& vecOffice,
                             const std::string& strFolder,
                             unsigned nSeed)
    : m_procedure(procedure), m_table(procedure.HasGenerations())
{
    for (const FormRules& form : procedure.vecForm)
        m_vecGenerator.emplace_back(form, m_table, vecOffice, strFolder, nSeed);
}

const std::vector<FileGenerator::Record>& FileGenerator::Make(std::size_t nCount)
{
    m_table.Clear();
    for (std::size_t nRow = 0; nRow < nCount; ++nRow)
        MakeRecord(nRow, nCount);
    return m_table.Records();
}

const FileGenerator::Record& FileGenerator::MakeAgain(std::size_t nRow)
{
    MakeRecord(nRow, m_table.Records().size());
    return m_table.Records()[nRow];
}

void FileGenerator::MakeRecord(std::size_t nRow, std::size_t nCount)
{
    m_vecGenerator[m_procedure.FormAt(nRow, nCount)].Make(static_cast<long>(nRow), m_nTurn++);
}

}  // namespace host
