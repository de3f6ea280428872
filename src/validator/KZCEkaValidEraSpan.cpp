#include "KZCEkaValidEraSpan.h"

#include <algorithm>

#include "CText.h"
#include "KZCMacOSNative.h"
#include "RangeVerdict.h"

KZCEkaValidEraSpan::KZCEkaValidEraSpan(long lColumn,
                                       KZCEkaMessage_t eMessage,
                                       std::span<const EraTable::Span> spans)
    : KZCEkaValidDate(lColumn, eMessage), m_spans(spans)
{
    m_bKeepEra = true;
}

KZCEkaMessage_t KZCEkaValidEraSpan::_validate(const char* szValue)
{
    if (szValue == nullptr)
        return MSG_NONE;
    const std::string strEraText = szValue;
    const auto pSpan = std::ranges::find_if(m_spans, [&](const EraTable::Span& span) {
        return strEraText.find(span.strName) != std::string::npos;
    });
    const bool bFound = pSpan != m_spans.end();
    // A bad bound or none at all is no refusal here.
    const RangeVerdict verdict(KZCMacOSNative::rangeDate(WarekiToSeireki(strEraText).c_str(),
                                                         bFound ? pSpan->szFirst : nullptr,
                                                         bFound ? pSpan->szLast : nullptr, false));
    const bool bRefused = verdict.IsBeforeMin() || verdict.IsAfterMax() || verdict.Code() == -1 ||
                          verdict.Code() == -2;
    return bRefused ? Refuse(HE70012E, "KZCEkaValidEraSpan::_validate") : MSG_NONE;
}
