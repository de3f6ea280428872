#include "EraSpan.h"

#include <algorithm>

#include "KZCMacOSNative.h"
#include "RangeVerdict.h"

bool EraSpan::Holds(const std::string& strEraText,
                    const std::string& strWestern,
                    std::span<const EraTable::Span> spans)
{
    const auto pSpan = std::ranges::find_if(spans, [&](const EraTable::Span& span) {
        return strEraText.find(span.strName) != std::string::npos;
    });
    const bool bFound = pSpan != spans.end();
    const RangeVerdict verdict(KZCMacOSNative::rangeDate(strWestern.c_str(),
                                                         bFound ? pSpan->szFirst : nullptr,
                                                         bFound ? pSpan->szLast : nullptr, false));
    // A bad bound or none at all is no refusal here.
    return !verdict.IsBeforeMin() && !verdict.IsAfterMax() && verdict.Code() != -1 &&
           verdict.Code() != -2;
}
