// Reading and comparing of dates. The first byte of the input holds switches; the rest is three
// texts (a date, a lower and an upper limit) with NUL between them.
#include <chrono>
#include <string>
#include <string_view>

#include "FuzzSupport.h"
#include "KZCMacOSNative.h"

namespace {

using FuzzSupport::Require;

enum Switch : unsigned
{
    REQUIRED = 1,    // both limits are required
    NULL_LOWER = 2,  // there is no lower limit
    NULL_UPPER = 4,  // there is no upper limit
    NULL_DATE = 8,   // there is no date
};

/// What dateTimeComp returns.
enum Comparison : long
{
    SAME = 0,
    LATER = 1,
    EARLIER = 2,
    FIRST_UNREADABLE = -1,
    SECOND_UNREADABLE = -2,
};

/// What rangeDate returns in one limit's part, the upper limit's values being 16 times these.
constexpr long LIMIT_SAME = 0;
constexpr long LIMIT_PASSED = 1;
constexpr long LIMIT_AHEAD = 2;
constexpr long LIMIT_ABSENT = 15;
constexpr long UPPER_FACTOR = 16;

bool IsDate(const char* szDate)
{
    return KZCMacOSNative::dateTimeChange(szDate);
}

void TestReading(const char* szDate)
{
    constexpr long UNTOUCHED = -7;
    long lYear = UNTOUCHED;
    long lMonth = UNTOUCHED;
    long lDay = UNTOUCHED;
    const bool bIsDate = KZCMacOSNative::dateTimeChange(szDate, lYear, lMonth, lDay);
    Require(bIsDate == IsDate(szDate), "both forms of the reader agree");
    if (!bIsDate) {
        Require(lYear == UNTOUCHED && lMonth == UNTOUCHED && lDay == UNTOUCHED,
                "a text that is no date leaves the outputs alone");
        return;
    }
    Require(lYear >= 1 && lYear <= 9999 && lMonth >= 1 && lDay >= 1, "a date lies in its range");
    const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(lYear)),
                                           std::chrono::month(static_cast<unsigned>(lMonth)),
                                           std::chrono::day(static_cast<unsigned>(lDay)));
    Require(date.ok(), "a date exists in the calendar");

    char szCanonical[32];
    std::snprintf(szCanonical, sizeof(szCanonical), "%04ld/%02ld/%02ld", lYear, lMonth, lDay);
    const bool bHasTime = std::string_view(szDate).find(':') != std::string_view::npos;
    const long lOrder = KZCMacOSNative::dateTimeComp(szDate, szCanonical);
    Require(lOrder == SAME || (bHasTime && lOrder == LATER),
            "a date is its Gregorian form, or later on that day");
}

void TestOrder(const char* szFirst, const char* szSecond)
{
    const long lOrder = KZCMacOSNative::dateTimeComp(szFirst, szSecond);
    const long lReverse = KZCMacOSNative::dateTimeComp(szSecond, szFirst);
    if (!IsDate(szFirst))
        Require(lOrder == FIRST_UNREADABLE, "the first text is looked at first");
    else if (!IsDate(szSecond))
        Require(lOrder == SECOND_UNREADABLE, "the second text is told");
    else {
        Require(lOrder >= SAME && lOrder <= EARLIER, "two dates can be compared");
        Require(lOrder == SAME ? lReverse == SAME : lOrder + lReverse == LATER + EARLIER,
                "the reverse comparison gives the reverse order");
    }
}

long LimitPart(const char* szDate, const char* szLimit, bool bAbsent)
{
    if (bAbsent)
        return LIMIT_ABSENT;
    const long lOrder = KZCMacOSNative::dateTimeComp(szDate, szLimit);
    return lOrder == SAME ? LIMIT_SAME : lOrder == LATER ? LIMIT_PASSED : LIMIT_AHEAD;
}

long ExpectedRange(const char* szDate, const char* szLower, const char* szUpper, bool bRequired)
{
    const bool bNoLower = szLower == nullptr || (!bRequired && *szLower == '\0');
    const bool bNoUpper = szUpper == nullptr || (!bRequired && *szUpper == '\0');
    if (!IsDate(szDate))
        return -2;
    if (bNoLower ? bRequired : !IsDate(szLower))
        return -3;
    if (bNoUpper ? bRequired : !IsDate(szUpper))
        return -4;
    if (bNoLower && bNoUpper)
        return -5;
    return LimitPart(szDate, szLower, bNoLower) +
           UPPER_FACTOR * LimitPart(szDate, szUpper, bNoUpper);
}

/// Takes the text up to the next NUL off the input.
std::string TakeText(std::string_view& strInput)
{
    const std::string strText(strInput.substr(0, strInput.find('\0')));
    strInput.remove_prefix(std::min(strInput.size(), strText.size() + 1));
    return strText;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    if (nSize == 0)
        return 0;
    const unsigned nSwitches = pData[0];
    std::string_view strInput = FuzzSupport::AsText(pData + 1, nSize - 1);
    const std::string strDate = TakeText(strInput);
    const std::string strLower = TakeText(strInput);
    const std::string strUpper = TakeText(strInput);
    TestReading(strDate.c_str());
    TestReading(strLower.c_str());
    TestReading(strUpper.c_str());
    TestOrder(strDate.c_str(), strLower.c_str());
    TestOrder(strDate.c_str(), strUpper.c_str());
    TestOrder(strDate.c_str(), strDate.c_str());

    const char* szDate = (nSwitches & NULL_DATE) != 0 ? nullptr : strDate.c_str();
    const char* szLower = (nSwitches & NULL_LOWER) != 0 ? nullptr : strLower.c_str();
    const char* szUpper = (nSwitches & NULL_UPPER) != 0 ? nullptr : strUpper.c_str();
    const bool bRequired = (nSwitches & REQUIRED) != 0;
    Require(KZCMacOSNative::rangeDate(szDate, szLower, szUpper, bRequired) ==
                ExpectedRange(szDate, szLower, szUpper, bRequired),
            "the place in a range follows from the comparisons");
    return 0;
}
