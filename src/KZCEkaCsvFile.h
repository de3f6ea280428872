// One CSV file as a table of texts.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "EkaMsgTable.h"
#include "csv/CsvTable.h"

/// Cells are Shift_JIS while a check runs and UTF-8 otherwise. Texts handed out stay valid until
/// the next change of the file.
class KZCEkaCsvFile
{
public:
    using Record = CsvTable::Record;

    KZCEkaCsvFile() = default;
    virtual ~KZCEkaCsvFile() = default;
    KZCEkaCsvFile(const KZCEkaCsvFile&) = delete;
    KZCEkaCsvFile& operator=(const KZCEkaCsvFile&) = delete;

    /// Records whose first column is not empty: the count that the host is told.
    virtual std::int64_t GetNonCRLFRecordCount() const;
    /// Reads, splits and checks the structure of a file. \param strPath  UTF-8.
    /// \return STATUS_NG if the file was rejected; the reason is in the result store. Throws FAULT
    /// if it can't be read, with nothing recorded.
    virtual int ReadFile(const std::string& strPath);
    /// The index (from 0) is in range, its first column is filled and it has at least 2 columns.
    virtual bool IsValidRecord(long lRecord) const;
    /// Removes the blank records. Generations go to the kept records by position.
    virtual void DeleteEmptyRecord();
    virtual void Clear();
    /// Ends a column and, if bEndOfRecord, the record. \return STATUS_NG if the record was refused.
    virtual int ColumnTerm(std::string& strBuffer, Record& record, bool bEndOfRecord);
    /// \return false to stop reading; the reason is in the result store.
    virtual bool ValidateRecord(const Record& record);

    /// Splits a text into records. \param bQuote  Double quotes may hold commas and line ends.
    /// \return STATUS_NG when a record was refused. Throws FAULT for null.
    int Parse(const char* szText, bool bQuote);

    const char* GetTypeId() const { return m_strTypeId.c_str(); }
    /// Blank records included.
    std::int64_t GetRecordCount() const { return m_table.RecordCount(); }
    /// Both from 0. The empty text for anything out of range.
    const char* GetItem(long lRecord, long lColumn) const { return m_table.Cell(lRecord, lColumn); }
    /// "junior", "senior", or the empty text.
    std::string GetRecordGeneration(long lRecord) const;
    bool isLastRecord(long lRecord) const { return lRecord + 1 == GetRecordCount(); }
    /// Record from 0, column from 1.
    bool checkEmpty(long lRecord, long lColumn) const;

    /// Works out the generation of a record (from 0) from its contents.
    void checkGeneration(long lRecord);
    /// The cell (record from 0, column from 1) is a well-formed 14-digit reference number.
    bool preCheckNumber(long lRecord, long lColumn) const;

protected:
    /// Reads a file anew and splits it. \return what Parse returned. Throws FAULT if it can't be
    /// read.
    int ReadAndParse(const std::string& strPath, bool bQuote, const char* szFunction);
    /// Ends a column: its trimmed text goes to the record, or is only counted in one too wide.
    void TakeColumn(std::string& strBuffer, Record& record);
    /// Columns of the record being read, those that are only counted too.
    std::int64_t ColumnsOf(const Record& record) const;
    /// Stores a record and leaves an empty one of the same capacity. \param bBeyondLimit  The file
    /// has more records than it may: it is refused in the end, and cells aren't held for ever.
    void StoreRecord(Record& record, bool bBeyondLimit);
    /// Records an error of the structure and logs it. \return STATUS_NG.
    static int Refuse(KZCEkaMessage_t eMessage,
                      long lRecord,
                      long lColumn,
                      const char* szFunction,
                      const char* szLog,
                      const char* szValue);
    static int Refuse(KZCEkaMessage_t eMessage,
                      long lRecord,
                      long lColumn,
                      const char* szFunction,
                      const char* szLog,
                      long lValue);

    std::map<std::int64_t, std::string> m_mapGeneration;
    std::string m_strTypeId;
    std::int64_t m_nColumnNum = 0;
    CsvTable m_table;

private:
    int CheckRecordCount() const;
    bool FindTypeId(const std::string& strTypeId);

    std::int64_t m_nSurplusColumns = 0;  ///< of the record being read, counted without their text
    bool m_bCountOnly = false;           ///< of further records the first column alone is looked at
};
