#include "KZCEkaValidTaxoffice.h"

#include "KZCEkaTaxOffices.h"

KZCEkaMessage_t KZCEkaValidTaxoffice::_validate(const char* szValue)
{
    return KZCEkaTaxOffices::instance()->IsExistCode(szValue)
               ? MSG_NONE
               : Refuse(HE70011E, "KZCEkaValidTaxoffice::_validate");
}
