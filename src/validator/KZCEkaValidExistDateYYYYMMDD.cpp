#include "KZCEkaValidExistDateYYYYMMDD.h"

#include "CText.h"
#include "Fault.h"
#include "KZCEkaCsvFile.h"
#include "KZCMacOSNative.h"

namespace {

constexpr const char* FUNCTION = "KZCEkaValidExistDateYYYYMMDD::_validate";

}  // namespace

void KZCEkaValidExistDateYYYYMMDD::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
}

KZCEkaMessage_t KZCEkaValidExistDateYYYYMMDD::_validate(const char* /*szValue*/)
{
    constexpr int LAST_SHORT_YEAR = 99;
    if (m_strValue.empty())
        RaiseParameterFault(FUNCTION);
    if (m_pCsv == nullptr)
        RaiseFault(FUNCTION, nullptr);
    const std::vector<long> vecColumn = ReadColumns();
    const long lYear = vecColumn[0];
    const long lDay = vecColumn[2];
    const std::string strDate = GetYYYYMMDDStr(m_pCsv, lYear, vecColumn[1], lDay);
    if (strDate.empty() || (CText::ReadInt(m_pCsv->GetItem(m_lRow, lYear)) > LAST_SHORT_YEAR &&
                            KZCMacOSNative::dateTimeChange(strDate.c_str())))
        return MSG_NONE;
    const KZCEkaMessage_t eCode = ReportedCode(HE70012E);
    Record(eCode, m_lRow + 1, lYear + 1, lDay + 1, strDate.c_str(), true);
    m_bErrOutput = false;
    return eCode;
}

/// Columns of year, month and day, from 0.
std::vector<long> KZCEkaValidExistDateYYYYMMDD::ReadColumns() const
{
    std::vector<long> vecColumn;
    try {
        SplitValue(m_strValue, vecColumn, " ");
    } catch (...) {
        RaiseFault(FUNCTION, nullptr);
    }
    if (vecColumn.size() != 3)
        RaiseFault(FUNCTION, "定義体パラメータ不足。");
    return vecColumn;
}
