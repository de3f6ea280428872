// Collects the errors of a request and renders them as the detail table.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "EkaMsgTable.h"
#include "result/ErrorIndex.h"

/// One recorded error. Records and columns count from 1; record 0 is the file as a whole, record
/// 9999 an argument of the call. nColumnEnd is -1 for a single column.
struct _ResultTable
{
    std::int64_t nRecord;
    std::int64_t nColumn;
    std::int64_t nColumnEnd;
    KZCEkaMessage_t eMessage;

    bool operator==(const _ResultTable&) const = default;
};

/// Record number that marks an argument of the call.
inline constexpr long ARGUMENT_RECORD = 9999;
/// End column of an error that concerns a single column.
inline constexpr long SINGLE_COLUMN = -1;

/// The process-wide result store. Callers go through instance() and keep no pointer across calls.
class KZCValidResult
{
public:
    static KZCValidResult* instance();
    static void destroy();

    virtual ~KZCValidResult() = default;

    /// Empties the errors, nothing else.
    void ClearResult();
    void SetResult(KZCEkaMessage_t eMessage, long lRecord, long lColumn, long lColumnEnd);
    /// Replaces every error by the single HE70018E of a broken installation or program.
    void SetFatalError();
    bool IsEmpty() const { return m_vecResult.empty(); }
    /// An error of that record covers that column (both from 1), alone or in its range.
    bool IsExistErr(long lRecord, long lColumn);
    /// Keeps the first of equal entries, in order.
    void AlignErrCode();
    /// The detail table; empties the store.
    std::string MakeResult();

    /// The text of the IT section, against which references are tested.
    void SetITData(const std::string& strITData) { m_strITData = strITData; }
    /// The IT text holds <id ID="id">, byte for byte.
    bool ExistID(const std::string& strId) const;

    /// Fills the pool with 0 to lCount - 1 in an order that is the same in every process.
    void ResetRundomNumber(long lCount);
    /// The first number of the pool, or 0 if it is empty.
    long PopFrontRandomNumber();

private:
    static inline std::unique_ptr<KZCValidResult> m_pInstance;

    std::string m_strITData;
    std::vector<std::int64_t> m_vecRandom;  ///< reversed: the front of the pool is the back here
    std::vector<_ResultTable> m_vecResult;
    ErrorIndex m_errorIndex;
    std::size_t m_nIndexed = 0;  ///< how many of m_vecResult the index knows
};
