#include "KZCEkaValidExistDateYYYYMMDD.h"

#include "KZCDebugDump.h"
#include "KZCEkaCsvFile.h"
#include "KZCMacOSNative.h"
#include "KZCValidResult.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

constexpr const char* FUNCTION = "KZCEkaValidExistDateYYYYMMDD::_validate";

}  // namespace

void KZCEkaValidExistDateYYYYMMDD::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
}

KZCEkaMessage_t KZCEkaValidExistDateYYYYMMDD::_validate(const char* /*szValue*/)
{
    if (m_strValue.empty())
        RaiseParameterFault(FUNCTION);
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    const Columns columns = ReadColumns();
    return Guarded(FUNCTION, [&] {
        const std::string strDate =
            GetYYYYMMDDStr(m_pCsv, columns.lYear, columns.lMonth, columns.lDay);
        if (strDate.empty() || IsReal(strDate, columns))
            return MSG_NONE;
        const KZCEkaMessage_t eCode = ReportedCode(HE70012E);
        const long lRecord = WrappingSum(m_lRow, 1);
        KZCValidResult::instance()->SetResult(eCode, lRecord, WrappingSum(columns.lYear, 1),
                                              WrappingSum(columns.lDay, 1));
        m_bErrOutput = false;
        // The trace names the item's own column, not that of the year: wanted.
        KZCDebugDump::OutputValid(eCode, lRecord, WrappingSum(m_lColumn, 1), strDate.c_str(), true);
        return eCode;
    });
}

KZCEkaValidExistDateYYYYMMDD::Columns KZCEkaValidExistDateYYYYMMDD::ReadColumns() const
{
    std::vector<long> vecColumn;
    Guarded(FUNCTION, [&] { SplitValue(m_strValue, vecColumn, " "); });
    if (vecColumn.size() != 3)
        RaiseFault(FUNCTION, "定義体パラメータ不足。");
    return {vecColumn[0], vecColumn[1], vecColumn[2]};
}

bool KZCEkaValidExistDateYYYYMMDD::IsReal(const std::string& strDate, const Columns& columns) const
{
    constexpr int LAST_SHORT_YEAR = 99;
    return CText::ReadInt(m_pCsv->GetItem(m_lRow, columns.lYear)) > LAST_SHORT_YEAR &&
           KZCMacOSNative::dateTimeChange(strDate.c_str());
}
