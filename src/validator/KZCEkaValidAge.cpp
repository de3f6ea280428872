#include "KZCEkaValidAge.h"

#include "CText.h"
#include "Fault.h"
#include "KZCValidResult.h"
#include "validator/AgeWord.h"

namespace {

std::optional<int> ReadLimit(const char* szLimit)
{
    if (*CText::OrEmpty(szLimit) == '\0')
        return std::nullopt;
    return CText::ReadInt(szLimit);
}

}  // namespace

void KZCEkaValidAge::SetParam(const char* szValue, const char* szMin, const char* szMax)
{
    m_bGiven = *CText::OrEmpty(szValue) != '\0';
    m_vecToken = CText::SplitTokens(CText::OrEmpty(szValue));
    m_nMin = ReadLimit(szMin);
    m_nMax = ReadLimit(szMax);
}

int KZCEkaValidAge::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidAge::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const Dates dates = ReadDates(pCsv, lRow);
    const KZCEkaMessage_t eRefusal = _validate(dates.strBirthDate.c_str(), dates.strYear.c_str());
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    const long lErrorColumn = CheckedColumn(lColumn) + 1;
    const bool bWide = m_vecToken.size() > AgeWord::WIDENING &&
                       m_vecToken[AgeWord::WIDENING] == AgeWord::WIDENING_WORD;
    return RecordDate(eRefusal, lRow + 1,
                      {lErrorColumn, bWide ? lErrorColumn + DATE_LAST_CELL : SINGLE_COLUMN},
                      dates.strBirthDate);
}

int KZCEkaValidAge::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidAge::ValidateOuter");
    const Dates dates = ReadDates(pCsv, lRow);
    return _validate(dates.strBirthDate.c_str(), dates.strYear.c_str()) == MSG_NONE
               ? STATUS_OK
               : OuterRefused();
}

KZCEkaValidAge::Dates KZCEkaValidAge::ReadDates(const KZCEkaCsvFile* pCsv, long lRow)
{
    constexpr const char* FUNCTION = "KZCEkaValidAge::ReadDates";
    if (!m_bGiven)
        RaiseParameterFault(FUNCTION);
    const long lBirthColumn = CText::ReadLong(m_vecToken.at(AgeWord::BIRTH_COLUMN).c_str());
    std::string strBirthDate = GetDateString(pCsv, lRow, lBirthColumn - 1);
    const long lYearColumn = CText::ReadLong(m_vecToken.at(AgeWord::YEAR_COLUMN).c_str());
    if (lYearColumn < 1)
        RaiseParameterFault(FUNCTION);
    return {std::move(strBirthDate), GetYearString(pCsv, lRow, lYearColumn - 1)};
}

KZCEkaMessage_t KZCEkaValidAge::_validate(const char* szBirthDate, const char* szYear)
{
    constexpr const char* FUNCTION = "KZCEkaValidAge::_validate";
    stSYSTEMTIME birth = {};
    stSYSTEMTIME reference = {};
    if (m_vecToken.size() <= AgeWord::DAY ||
        !StringToSystemTime((std::string(szYear) + "/" + m_vecToken[AgeWord::MONTH] + "/" +
                             m_vecToken[AgeWord::DAY])
                                .c_str(),
                            reference) ||
        !StringToSystemTime(szBirthDate, birth))
        return Refuse(HE70010E, FUNCTION, "日付の変換に失敗しました。");

    const auto wReferenceYear = static_cast<std::uint16_t>(
        reference.wYear +
        static_cast<long>(CText::ReadInt(m_vecToken[AgeWord::ADDED_YEARS].c_str())));
    const int nMonth = CText::ReadInt(m_vecToken[AgeWord::MONTH].c_str());
    const int nDay = CText::ReadInt(m_vecToken[AgeWord::DAY].c_str());
    const bool bBeforeBirthday =
        nMonth < birth.wMonth || (nMonth == birth.wMonth && nDay < birth.wDay);
    const int nAge = wReferenceYear - birth.wYear - (bBeforeBirthday ? 1 : 0);
    if ((m_nMin && nAge < *m_nMin) || (m_nMax && nAge > *m_nMax))
        return Refuse(HE70010E, FUNCTION);
    return MSG_NONE;
}
