#include "KZCEkaValidTaxoffice.h"

#include "KZCEkaTaxOffices.h"

KZCEkaMessage_t KZCEkaValidTaxoffice::_validate(const char* szValue)
{
    return Guarded("KZCEkaValidTaxoffice::_validate",
                   [szValue] { return KZCEkaTaxOffices::instance()->IsExistCode(szValue); })
               ? MSG_NONE
               : HE70011E;
}
