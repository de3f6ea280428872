#include "request/RequestSteps.h"

#include <string>

namespace RequestSteps {

namespace {

void RefuseArgument(KZCEkaMessage_t eMessage, long lArgument)
{
    KZCValidResult::instance()->SetResult(eMessage, ARGUMENT_RECORD, lArgument, SINGLE_COLUMN);
}

}  // namespace

void TraceArguments(const char* szStem, std::initializer_list<Argument> arguments)
{
    if (!KZCDebugDump::IsOn())
        return;
    try {
        for (const auto& [szName, szValue] : arguments)
            KZCCsvConvMokEka::OutputIF(szValue, (std::string(szStem) + szName).c_str());
    } catch (...) {
        return;  // a trace is never worth a request
    }
}

void TraceKey(const char* szStem, long lCsvDistKey)
{
    if (!KZCDebugDump::IsOn())
        return;
    try {
        TraceArguments(szStem, {{"lCsvDistKey:", std::to_string(lCsvDistKey).c_str()}});
    } catch (...) {
        return;  // a long number takes memory of its own
    }
}

bool IsGiven(const char* szText)
{
    return szText != nullptr && *szText != '\0';
}

bool RefuseBothNumbers(const FilerArguments& filer, const ConversionArguments& arguments)
{
    if (!IsGiven(filer.szKojinBango) || !IsGiven(filer.szHojinBango))
        return false;
    RefuseArgument(HE70010E, arguments.numbers.lFirst);
    RefuseArgument(HE70010E, arguments.numbers.lSecond);
    return true;
}

bool RefuseHalfZip(const FilerArguments& filer, const ConversionArguments& arguments)
{
    const bool bZip1 = IsGiven(filer.szNozeishaZip1);
    const bool bZip2 = IsGiven(filer.szNozeishaZip2);
    if (bZip1 == bZip2)
        return false;
    RefuseArgument(HE70001E, bZip1 ? arguments.zip.lSecond : arguments.zip.lFirst);
    return true;
}

}  // namespace RequestSteps
