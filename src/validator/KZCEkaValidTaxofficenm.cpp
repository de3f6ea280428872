#include "KZCEkaValidTaxofficenm.h"

#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "KZCEkaTaxOffices.h"
#include "KZCMacOSNative.h"
#include "Wrapping.h"
#include "fault/Fault.h"

int KZCEkaValidTaxofficenm::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidTaxofficenm::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const long lNameColumn = m_lColumn < 0 ? lColumn : m_lColumn;
    std::string strName = pCsv->GetItem(lRow, lNameColumn);
    if (KZCEkaCommon::GetCsvCheckFlag())
        strName = KZCMacOSNative::convertUTF8fromShiftJIS(strName.c_str());
    const KZCEkaMessage_t eRefusal =
        _validate(pCsv->GetItem(lRow, WrappingSum(lNameColumn, 1)), strName.c_str());
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    if (m_bErrOutput)
        Record(ReportedCode(eRefusal), WrappingSum(lRow, 1), WrappingSum(lNameColumn, 1),
               WrappingSum(lNameColumn, 2), strName.c_str(), true);
    return STATUS_NG;
}

int KZCEkaValidTaxofficenm::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidTaxofficenm::ValidateOuter");
    // As a condition the name stays in the cell's own encoding: wanted.
    return _validate(pCsv->GetItem(lRow, WrappingSum(m_lColumn, 1)),
                     pCsv->GetItem(lRow, m_lColumn)) == MSG_NONE
               ? STATUS_OK
               : OuterRefused();
}

KZCEkaMessage_t KZCEkaValidTaxofficenm::_validate(const char* szCode, const char* szName)
{
    constexpr const char* FUNCTION = "KZCEkaValidTaxofficenm::_validate";
    return Guarded(FUNCTION,
                   [&] { return KZCEkaTaxOffices::instance()->IsValidName(szCode, szName); })
               ? MSG_NONE
               : Refuse(HE70002E, FUNCTION);
}
