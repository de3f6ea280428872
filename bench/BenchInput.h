// The input of every measurement: a resource folder of its own and CSV files made by rule.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace BenchInput {

/// Type id and procedure of the report that the made definition file knows.
inline constexpr const char* TYPE_ID = "002";
inline constexpr const char* PROCEDURE_ID = "PGE5020";
/// The same in the Finance family: with a page for each record, and with pages of several records.
inline constexpr const char* FINANCE_TYPE_ID = "101";
inline constexpr const char* FINANCE_PROCEDURE_ID = "PGE2015";
inline constexpr const char* PAGED_TYPE_ID = "202";
inline constexpr const char* PAGED_PROCEDURE_ID = "PGE1640";
/// Columns of a record. The first is the type id, the others are checked.
inline constexpr std::size_t COLUMN_COUNT = 30;
/// The most records that a file may have.
inline constexpr std::size_t MAX_RECORDS = 5000;
inline constexpr std::size_t FINANCE_MAX_RECORDS = 1000;

enum class Cells
{
    CLEAN,  ///< every cell passes its checks
    WRONG,  ///< every cell but the type id is refused by one of its checks
};

struct CsvShape
{
    std::size_t nRecords = MAX_RECORDS;
    Cells eCells = Cells::CLEAN;
    /// Bytes by which the document made of the file is longer than without padding, spread over the
    /// records' free texts.
    std::size_t nPadding = 0;
    const char* szTypeId = TYPE_ID;
};

/// A definition file whose report has COLUMN_COUNT columns of every common kind. UTF-8.
std::string DefinitionText();
/// The same report as both definition files of a Finance procedure. \param szRows  Its row
/// attributes. UTF-8.
std::string FinanceDefinitionText(const char* szProcedureId, const char* szRows);
/// A report of type id "001" with every date check and age. UTF-8; DefinitionText holds it too.
std::string DateReportText();
/// A CSV file for it, COLUMN_COUNT columns a record, that passes.
std::string DateCsvText(std::size_t nRecords);
/// A table of tax offices that holds the ones that the CSV files name. UTF-8.
std::string TaxOfficesText();
/// A whole CSV file. The same bytes for the same shape. Shift_JIS with CRLF.
std::string CsvText(const CsvShape& shape);

/// Writes the bytes to a file. Throws std::runtime_error if that fails.
void WriteFile(const std::filesystem::path& path, const std::string& strBytes);

/// A folder that goes away with its object. Its resource folder is what the library uses from then
/// on, in this process and in those that it starts.
class Folder
{
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path Path(const std::string& strName) const { return m_path / strName; }
    /// Makes a CSV file. \return Its path.
    std::string WriteCsv(const std::string& strName, const CsvShape& shape) const;

private:
    std::filesystem::path m_path;
};

}  // namespace BenchInput
