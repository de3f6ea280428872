// One CSV file of the Finance family, which may hold several reports in ranges of records.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "KZCDefinitionManager.h"
#include "KZCEkaCsvFile.h"

/// Records have no generation here, and blank lines are not stored.
class KZCEkaCsvFileFinance : public KZCEkaCsvFile
{
public:
    /// How an empty record is recognised.
    enum CSV_EMPTYCHECK_MODE : int
    {
        EMPTYCHECK_FIRST_COLUMN = 0,  ///< its first column is empty
        EMPTYCHECK_COLUMN_COUNT = 1,  ///< it has no columns, which no stored record has
    };

    /// A report of the validation file: the records that it covers and their columns.
    struct COL_INFO
    {
        std::int64_t nStartRow;    ///< from 1
        std::int64_t nEndRow;      ///< inclusive; 0 and -1 reach to the end of the file
        std::int64_t nColumnNum;   ///< columns of each of its records
        std::int64_t nLastRecord;  ///< not 0: it covers the last record only

        bool operator==(const COL_INFO&) const = default;
    };

    KZCEkaCsvFileFinance() : KZCEkaCsvFileFinance(CALL_TYPE_FINANCE) {}

    /// Records that are not empty.
    std::int64_t GetNonCRLFRecordCount() const override;
    /// Reads and splits; limits and column counts are left to checkMaxRecord.
    /// \return STATUS_NG if a record was refused; the reason is in the result store. Throws FAULT
    /// if the file or its validation file can't be read.
    int ReadFile(const std::string& strPath) override;
    /// The index (from 0) is in range and any column of the record is filled, whichever it is.
    bool IsValidRecord(long lRecord) const override;
    void DeleteEmptyRecord() override;
    void Clear() override;
    int ColumnTerm(std::string& strBuffer, Record& record, bool bEndOfRecord) override;

    /// \return 1 to store the record, -1 to drop it silently, 0 to stop reading with the reason in
    /// the result store.
    int ValidateRecordFinance(const Record& record);
    /// Tests the record limit and every record's columns. \return STATUS_NG at the first error,
    /// which is in the result store.
    int checkMaxRecord() const;
    /// \param nIndex  Record from 0.
    int checkColumnCount(int nIndex, long lExpected) const;
    /// \param lRecord  From 0.
    bool isEmptyRecord(long lRecord) const;
    void setEmptyCheckMode(const std::string& strTypeId);

protected:
    explicit KZCEkaCsvFileFinance(CALL_TYPE eCallType) : m_eCallType(eCallType) {}

    CALL_TYPE m_eCallType;
    CSV_EMPTYCHECK_MODE m_eEmptyCheckMode = EMPTYCHECK_FIRST_COLUMN;
    std::vector<COL_INFO> m_vecColInfo;  ///< one for each report of the validation file, in order

private:
    bool ReadReports(const Record& record);
    void LoadReports(const std::string& strTypeId, const std::string& strProcId);
    int CheckReportRecords() const;
    int CheckRange(const COL_INFO& info) const;
    std::int64_t CountValidRecords() const;
    bool HasTooManyRecords() const;

    std::int64_t m_nMaxRecord = 0;  ///< of the procedure
};
