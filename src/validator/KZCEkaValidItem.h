// One check: a rule, the column that it watches, and the conditions under which it applies.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "EkaMsgTable.h"

class KZCEkaCsvFile;

/// A check holds its parameters and its rule in _validate; gating by outer items, reading the cell,
/// recording and tracing are done here. Status is STATUS_OK or STATUS_NG; a fault of the definition
/// throws FAULT when the check runs. Records and columns count from 0 unless said otherwise.
class KZCEkaValidItem
{
public:
    /// \param lColumn   Column of the item, or -1. \param eMessage  Replaces the item's own code.
    KZCEkaValidItem(long lColumn, KZCEkaMessage_t eMessage);
    virtual ~KZCEkaValidItem();
    KZCEkaValidItem(const KZCEkaValidItem&) = delete;
    KZCEkaValidItem& operator=(const KZCEkaValidItem&) = delete;

    /// Checks a record. \param lColumn  Fallback column, read by few items only.
    virtual int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn);
    /// Checks a bare value; the numbers are reported as they stand.
    virtual int Validate(const char* szValue, long lRow, long lColumn);
    /// As a condition: STATUS_OK if it holds. Records nothing.
    virtual int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn);
    virtual int ValidateOuter(const char* szValue);
    /// With false, refusals are returned but not recorded.
    virtual void SetErrOutput(bool bErrOutput) { m_bErrOutput = bErrOutput; }
    virtual void SetErrColumn(const std::string& strErrColumn) { m_strErrColumn = strErrColumn; }
    virtual void SetErrRow(const std::string& strErrRow) { m_strErrRow = strErrRow; }

    /// The item of a keyword, or null for an unknown one and for null texts. A text that the
    /// keyword doesn't read is dropped.
    static std::unique_ptr<KZCEkaValidItem> CreateItem(long lColumn,
                                                       const char* szId,
                                                       const char* szValue,
                                                       const char* szMin,
                                                       const char* szMax,
                                                       KZCEkaMessage_t eMessage);

    /// Takes the item over.
    void AddOuterItem(KZCEkaValidItem* pItem);

    /// "YYYY/MM/DD" of three cells of the current record, each read as a number; empty if all three
    /// are empty.
    std::string GetYYYYMMDDStr(const KZCEkaCsvFile* pCsv,
                               long lYearColumn,
                               long lMonthColumn,
                               long lDayColumn);
    /// Columns from 0 of a list of columns from 1. Throws a standard exception on a piece that is
    /// no number.
    static void SplitValue(const std::string& strValue,
                           std::vector<long>& vecColumn,
                           const std::string& strDelimiter);

protected:
    /// The rule: MSG_NONE to pass, or the message of the refusal.
    virtual KZCEkaMessage_t _validate(const char* szValue);

    /// Throws FAULT for null.
    static void RequireCsv(const KZCEkaCsvFile* pCsv, const char* szFunction);
    /// Every condition holds for the record.
    bool OuterItemsHold(const KZCEkaCsvFile* pCsv, long lRow);
    /// The code that is reported for a refusal.
    KZCEkaMessage_t ReportedCode(KZCEkaMessage_t eRefusal) const
    {
        return m_eMessage != MSG_NONE ? m_eMessage : eRefusal;
    }
    /// Records a refusal of the item's cell unless recording is off. \return STATUS_NG.
    /// \param lRow  From 0. \param bUtf8  Encoding of szCell, for the trace.
    int RecordCell(KZCEkaMessage_t eRefusal, long lRow, const char* szCell, bool bUtf8) const;
    /// Records an error and traces the value. Numbers from 1; \param bUtf8  Encoding of szValue.
    static void Record(KZCEkaMessage_t eMessage,
                       long lRecord,
                       long lColumn,
                       long lColumnEnd,
                       const char* szValue,
                       bool bUtf8);
    /// Traces that a condition doesn't hold. \return STATUS_NG.
    static int OuterRefused();
    /// Logs a refusal of the check. \return eMessage.
    static KZCEkaMessage_t Refuse(KZCEkaMessage_t eMessage,
                                  const char* szFunction,
                                  const char* szMessage = nullptr,
                                  const char* szFile = __builtin_FILE(),
                                  long lLine = __builtin_LINE());
    /// The answer of a service that may raise. What it raises is logged under szFunction and thrown
    /// as FAULT: nothing else leaves a rule.
    template <class Service>
    static auto Guarded(const char* szFunction,
                        Service service,
                        const char* szFile = __builtin_FILE(),
                        long lLine = __builtin_LINE())
    {
        try {
            return service();
        } catch (...) {
            RaiseCaught(szFunction, szFile, lLine);
        }
    }
    /// For a handler: logs what was caught, "メモリ確保エラー。" if memory ran out and no message
    /// otherwise, and throws FAULT.
    [[noreturn]] static void RaiseCaught(const char* szFunction,
                                         const char* szFile = __builtin_FILE(),
                                         long lLine = __builtin_LINE());
    /// Logs "定義体パラメータ指定エラー。" and throws FAULT.
    [[noreturn]] static void RaiseParameterFault(const char* szFunction,
                                                 const char* szFile = __builtin_FILE(),
                                                 long lLine = __builtin_LINE());

    const KZCEkaCsvFile* m_pCsv = nullptr;  ///< of the last check; not owned
    KZCEkaMessage_t m_eMessage;
    long m_lColumn;
    std::vector<std::unique_ptr<KZCEkaValidItem>> m_vecOuter;
    bool m_bErrOutput = true;
    std::string m_strErrColumn;
    std::string m_strErrRow;
    long m_lRow = 0;
};
