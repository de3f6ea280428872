// Cells as UTF-16 units. In a file of its own, as the log, which tells of its faults, stands on the
// rest of the class.
#include <algorithm>
#include <utility>

#include "KZCEkaCommon.h"
#include "KZCMacOSNative.h"
#include "fault/Fault.h"
#include "text/CText.h"
#include "text/ShiftJis.h"

namespace {

/// The JIS table's code point for one of the decoder's table. The character checks of the base
/// family are defined on the former.
constexpr char16_t JisUnit(char16_t cUnit)
{
    switch (cUnit) {
        case u'\u005C':
            return u'\u00A5';
        case u'\u007E':
            return u'\u203E';
        case u'\u2225':
            return u'\u2016';
        case u'\uFF0D':
            return u'\u2212';
        case u'\uFF3C':
            return u'\u005C';
        case u'\uFF5E':
            return u'\u301C';
        case u'\uFFE0':
            return u'\u00A2';
        case u'\uFFE1':
            return u'\u00A3';
        case u'\uFFE2':
            return u'\u00AC';
        default:
            return cUnit;
    }
}

}  // namespace

std::u16string KZCEkaCommon::MtoWString(const char* szText)
{
    if (szText == nullptr)
        return {};
    try {
        if (m_bDuringCsvCheck)
            return KZCMacOSNative::convertUTF16fromShiftJIS(szText);
        auto strUnits = Utf8::Decode(szText);
        if (!strUnits)
            throw FAULT;
        return *std::move(strUnits);
    } catch (...) {
        RaiseFault("KZCEkaCommon::MtoWString", nullptr);
    }
}

std::u16string KZCEkaCommon::ConvertSPChar(const char* szText)
{
    try {
        return m_execMode == EXEC_MODE_ZEKA ? ConvertSPCharZeka(szText)
                                            : ConvertSPCharFinance(szText);
    } catch (...) {
        RaiseFault("KZCEkaCommon::ConvertSPChar", nullptr);
    }
}

std::u16string KZCEkaCommon::ConvertSPCharZeka(const char* szText)
{
    std::u16string strUnits = MtoWString(szText);
    std::ranges::transform(strUnits, strUnits.begin(), JisUnit);
    return strUnits;
}

std::u16string KZCEkaCommon::ConvertSPCharFinance(const char* szText)
{
    return MtoWString(szText);
}
