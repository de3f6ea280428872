#include "KZCEkaValidAge.h"

#include <utility>

#include "KZCValidResult.h"
#include "Wrapping.h"
#include "fault/Fault.h"
#include "text/CText.h"
#include "validator/AgeWord.h"

void KZCEkaValidAge::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_strValue = CText::OrEmpty(szValue);
    m_strMin = CText::OrEmpty(szMin);
    m_strMax = CText::OrEmpty(szMax);
    m_vecToken = CText::SplitTokens(m_strValue);
    m_nMin = CText::ReadInt(szMin);
    m_nMax = CText::ReadInt(szMax);
}

int KZCEkaValidAge::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    constexpr const char* FUNCTION = "KZCEkaValidAge::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const Dates dates = ReadDates(pCsv, lRow, FUNCTION);
    const KZCEkaMessage_t eRefusal = _validate(dates.strBirthDate.c_str(), dates.strYear.c_str());
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    const bool bWide = m_vecToken.size() > AgeWord::WIDENING &&
                       m_vecToken[AgeWord::WIDENING] == AgeWord::WIDENING_WORD;
    ErrorColumns columns = ColumnsFrom(CheckedColumn(lColumn), DATE_LAST_CELL);
    if (!bWide)
        columns.lLast = SINGLE_COLUMN;
    return RecordDate(eRefusal, WrappingSum(lRow, 1), columns, dates.strBirthDate);
}

int KZCEkaValidAge::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    constexpr const char* FUNCTION = "KZCEkaValidAge::ValidateOuter";
    RequireCsv(pCsv, FUNCTION);
    const Dates dates = ReadDates(pCsv, lRow, FUNCTION);
    return _validate(dates.strBirthDate.c_str(), dates.strYear.c_str()) == MSG_NONE
               ? STATUS_OK
               : OuterRefused();
}

KZCEkaValidAge::Dates KZCEkaValidAge::ReadDates(const KZCEkaCsvFile* pCsv,
                                                long lRow,
                                                const char* szFunction)
{
    if (m_strValue.empty())
        RaiseParameterFault(szFunction);
    const long lBirthColumn = CText::ReadLong(m_vecToken.at(AgeWord::BIRTH_COLUMN).c_str());
    std::string strBirthDate = GetDateString(pCsv, lRow, WrappingSum(lBirthColumn, -1));
    const long lYearColumn = CText::ReadLong(m_vecToken.at(AgeWord::YEAR_COLUMN).c_str());
    if (lYearColumn < 1)
        RaiseParameterFault(szFunction);
    return {std::move(strBirthDate), GetYearString(pCsv, lRow, lYearColumn - 1)};
}

KZCEkaMessage_t KZCEkaValidAge::_validate(const char* szBirthDate, const char* szYear)
{
    constexpr const char* FUNCTION = "KZCEkaValidAge::_validate";
    const auto nAge = Guarded(FUNCTION, [&] { return Age(szBirthDate, szYear); });
    if (!nAge)
        return Refuse(HE70010E, FUNCTION, "日付の変換に失敗しました。");
    if ((!m_strMin.empty() && *nAge < m_nMin) || (!m_strMax.empty() && *nAge > m_nMax))
        return Refuse(HE70010E, FUNCTION);
    return MSG_NONE;
}

std::optional<int> KZCEkaValidAge::Age(const char* szBirthDate, const char* szYear)
{
    stSYSTEMTIME birth = {};
    stSYSTEMTIME reference = {};
    if (m_vecToken.size() <= AgeWord::DAY ||
        !StringToSystemTime((std::string(szYear) + "/" + m_vecToken[AgeWord::MONTH] + "/" +
                             m_vecToken[AgeWord::DAY])
                                .c_str(),
                            reference) ||
        !StringToSystemTime(szBirthDate, birth))
        return std::nullopt;
    // Years are 16 bits wide and wrap around: wanted.
    const auto wReferenceYear = static_cast<std::uint16_t>(
        reference.wYear +
        static_cast<long>(CText::ReadInt(m_vecToken[AgeWord::ADDED_YEARS].c_str())));
    const int nMonth = CText::ReadInt(m_vecToken[AgeWord::MONTH].c_str());
    const int nDay = CText::ReadInt(m_vecToken[AgeWord::DAY].c_str());
    const bool bBeforeBirthday =
        nMonth < birth.wMonth || (nMonth == birth.wMonth && nDay < birth.wDay);
    return wReferenceYear - birth.wYear - (bBeforeBirthday ? 1 : 0);
}
