#include "KZCEkaValidExistdate_2.h"

KZCEkaValidExistdate_2::KZCEkaValidExistdate_2(long lColumn, KZCEkaMessage_t eMessage)
    : KZCEkaValidEraSpan(lColumn, eMessage, EraTable::RealSpans())
{
    m_bKeepEraName = true;
}
