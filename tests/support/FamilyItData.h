// What the IT sections of the Finance and CrossBorder families have in common.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "Bundle.h"
#include "CheckItem.h"
#include "KZCEkaITDataCrossBorder.h"
#include "KZCEkaITDataFinance.h"
#include "ResetState.h"

/// A field, a value that it refuses, and column and code of the refusal on both paths.
struct ItColumnCase
{
    const char* szName;
    KZCEkaITDataFinance_t eId;
    std::string strValue;
    const char* szPlain;
    const char* szEl;
};

inline void PrintTo(const ItColumnCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

inline std::string RepeatText(const char* szText, int nTimes)
{
    std::string strAll;
    for (int n = 0; n < nTimes; ++n)
        strAll += szText;
    return strAll;
}

/// All fields in the reverse order of the table.
inline std::vector<std::pair<KZCEkaITDataFinance_t, std::string>> FullItValues(
    const char* szProcedure)
{
    return {
        {KZCEkaITDataFinance_t::IT_SOFT_NAME, "帳票ソフト"},
        {KZCEkaITDataFinance_t::IT_PROCEDURE_CD, szProcedure},
        {KZCEkaITDataFinance_t::IT_DAIRI_ADR, "紅葉市4-5"},
        {KZCEkaITDataFinance_t::IT_DAIRI_NM, "白樺<税務>事務所"},
        {KZCEkaITDataFinance_t::IT_DAIRI_ID, "6543210987654321"},
        {KZCEkaITDataFinance_t::IT_DAIHYO_NM, "青葉太郎"},
        {KZCEkaITDataFinance_t::IT_NOZEISHA_ADR, "青葉市1-2-3"},
        {KZCEkaITDataFinance_t::IT_ZIP2, "4567"},
        {KZCEkaITDataFinance_t::IT_ZIP1, "123"},
        {KZCEkaITDataFinance_t::IT_NOZEISHA_NM, "青葉&商会"},
        {KZCEkaITDataFinance_t::IT_HOJINBANGO, "1234567890123"},
        {KZCEkaITDataFinance_t::IT_KOJINBANGO, "123456789012"},
        {KZCEkaITDataFinance_t::IT_NOZEISHA_ID, "1234567890123456"},
        {KZCEkaITDataFinance_t::IT_DD, "31"},
        {KZCEkaITDataFinance_t::IT_MM, "02"},
        {KZCEkaITDataFinance_t::IT_YY, "6"},
        {KZCEkaITDataFinance_t::IT_ERA, "5"},
        {KZCEkaITDataFinance_t::IT_ZEIMUSHO_CD, "00101"},
    };
}

/// The IT element of FullItValues.
inline std::string FullItSection(const std::string& strProcedure)
{
    return R"(<IT VR="1.3" id="IT">)"
           R"(<ZEIMUSHO ID="ZEIMUSHO"><gen:zeimusho_CD>00101</gen:zeimusho_CD></ZEIMUSHO>)"
           R"(<TEISYUTSU_DAY ID="TEISYUTSU_DAY"><gen:era>5</gen:era><gen:yy>6</gen:yy>)"
           R"(<gen:mm>02</gen:mm><gen:dd>31</gen:dd></TEISYUTSU_DAY>)"
           R"(<NOZEISHA_ID ID="NOZEISHA_ID">1234567890123456</NOZEISHA_ID>)"
           R"(<NOZEISHA_BANGO ID="NOZEISHA_BANGO"><gen:kojinbango>123456789012</gen:kojinbango>)"
           R"(<gen:hojinbango>1234567890123</gen:hojinbango></NOZEISHA_BANGO>)"
           R"(<NOZEISHA_NM ID="NOZEISHA_NM">青葉&amp;商会</NOZEISHA_NM>)"
           R"(<NOZEISHA_ZIP ID="NOZEISHA_ZIP"><gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2>)"
           R"(</NOZEISHA_ZIP>)"
           R"(<NOZEISHA_ADR ID="NOZEISHA_ADR">青葉市1-2-3</NOZEISHA_ADR>)"
           R"(<DAIHYO_NM ID="DAIHYO_NM">青葉太郎</DAIHYO_NM>)"
           R"(<DAIRI_ID ID="DAIRI_ID">6543210987654321</DAIRI_ID>)"
           R"(<DAIRI_NM ID="DAIRI_NM">白樺&lt;税務&gt;事務所</DAIRI_NM>)"
           R"(<DAIRI_ADR ID="DAIRI_ADR">紅葉市4-5</DAIRI_ADR>)"
           R"(<TETSUZUKI ID="TETSUZUKI"><procedure_CD>)" +
           strProcedure + "</procedure_CD></TETSUZUKI></IT>";
}

struct FinanceItData
{
    using Data = KZCEkaITDataFinance;
    static constexpr auto SET = &Data::SetITDataFinance;
    static constexpr auto GET = &Data::GetITDataFinance;
};

struct CrossBorderItData
{
    using Data = KZCEkaITDataCrossBorder;
    static constexpr auto SET = &Data::SetITDataCrossBorder;
    static constexpr auto GET = &Data::GetITDataCrossBorder;
};

/// An IT section of a family on the plain path.
template <class Family>
class FamilyItData : public ResetState
{
protected:
    FamilyItData()
    {
        KZCEkaTaxOffices::instance()->Initialize();
        m_it.Initialize(true);
    }

    std::string Set(KZCEkaITDataFinance_t eId, const std::string& strValue)
    {
        return Told([&] { return (m_it.*Family::SET)(eId, strValue.c_str()); });
    }
    const char* Get(KZCEkaITDataFinance_t eId) const { return (m_it.*Family::GET)(eId); }

    Bundle m_bundle;
    typename Family::Data m_it;
};
