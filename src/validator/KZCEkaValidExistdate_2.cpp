#include "KZCEkaValidExistdate_2.h"

#include "EraSpan.h"

KZCEkaValidExistdate_2::KZCEkaValidExistdate_2(long lColumn, KZCEkaMessage_t eMessage)
    : KZCEkaValidDate(lColumn, eMessage)
{
    m_bKeepEra = true;
    m_bKeepEraName = true;
}

KZCEkaMessage_t KZCEkaValidExistdate_2::_validate(const char* szValue)
{
    if (szValue == nullptr)
        return MSG_NONE;
    return Guarded("KZCEkaValidExistdate_2::_validate", [&] {
        const std::string strDate = szValue;
        return EraSpan::Holds(strDate, WarekiToSeireki(strDate), EraTable::RealSpans()) ? MSG_NONE
                                                                                        : HE70012E;
    });
}
