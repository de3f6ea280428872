#include "command/FilerOptions.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <chrono>
#include <string_view>

#include "base/SafeText.h"
#include "base/UsageError.h"
#include "calendar/EraTable.h"
#include "request/Profile.h"
#include "text/ShiftJis.h"

namespace host {
namespace {

constexpr const char* DATE_OPTION = "--teishutsu-date";

constexpr Text GROUP = {"Fields of the filer (an option wins over the profile)",
                        "納税者の項目（オプションはプロファイルより優先されます）"};
constexpr Text PROFILE_HELP = {"File that holds the filer's fields, see below",
                               "納税者の項目を書いたファイル（下記を参照）"};
constexpr Text DATE_HELP = {"Day of filing as YYYY-MM-DD, in place of its four parts",
                            "提出日を YYYY-MM-DD（西暦）で指定。元号・年・月・日の代わりです"};
constexpr Text NOT_UTF8 = {"{1} {2}: the value has to be UTF-8",
                           "{1} {2}：値はUTF-8にしてください"};
constexpr Text NO_DATE = {"--teishutsu-date {1}: write a day that exists as YYYY-MM-DD",
                          "--teishutsu-date {1}：実在する日付を YYYY-MM-DD で書いてください"};
constexpr Text DATE_TWICE = {"give --teishutsu-date or {1}, not both",
                             "--teishutsu-date と {1} は、どちらか一方だけを指定してください"};

constexpr FilerField DATE_FIELDS[] = {TEISHUTSU_ERA, TEISHUTSU_YEAR, TEISHUTSU_MONTH,
                                      TEISHUTSU_DAY};

/// A text that isn't UTF-8 would be taken for an empty one.
void RequireUtf8(const FilerFields& fields)
{
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        if (!Utf8::Decode(fields[n]))
            throw UsageError(Say(NOT_UTF8, {FILER_FIELDS[n].szOption, MakeSafe(fields[n])}));
}

/// The number that all of the text is, or 0.
int ReadDigits(std::string_view strDigits)
{
    int nNumber = 0;
    const char* pEnd = strDigits.data() + strDigits.size();
    const auto [pStop, error] = std::from_chars(strDigits.data(), pEnd, nNumber);
    return error == std::errc() && pStop == pEnd ? nNumber : 0;
}

/// The code of the era that holds the day, or 0.
int EraOf(const std::string& strDay)
{
    const auto spans = EraTable::RealSpans();
    for (std::size_t n = 0; n < spans.size(); ++n) {
        const std::string_view strLast = spans[n].szLast;
        if (strDay >= spans[n].szFirst && (strLast.empty() || strDay <= strLast))
            return static_cast<int>(n) + 1;
    }
    return 0;
}

}  // namespace

void FilerOptions::AddTo(CLI::App& command)
{
    command.add_option("--profile", m_strProfile, Say(PROFILE_HELP))->type_name("TOML");
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        m_option[n] =
            command.add_option(FILER_FIELDS[n].szOption, m_value[n], Say(FILER_FIELDS[n].help))
                ->type_name("TEXT")
                ->group(Say(GROUP));
    m_pDate = command.add_option(DATE_OPTION, m_strDate, Say(DATE_HELP))
                  ->type_name("DATE")
                  ->group(Say(GROUP));
}

FilerFields FilerOptions::Read() const
{
    GivenFilerFields given;
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        if (m_option[n]->count() > 0)
            given[n] = m_value[n];
    if (m_pDate->count() > 0)
        TakeDate(given);
    FilerFields fields =
        MergeFields(given, m_strProfile.empty() ? GivenFilerFields() : ReadProfile(m_strProfile));
    if (m_pDate->count() > 0)
        for (const FilerField eField : DATE_FIELDS)
            fields.szOption[eField] = DATE_OPTION;
    RequireUtf8(fields);
    return fields;
}

void FilerOptions::TakeDate(GivenFilerFields& given) const
{
    for (const FilerField eField : DATE_FIELDS)
        if (given[eField])
            throw UsageError(Say(DATE_TWICE, {FILER_FIELDS[eField].szOption}));
    if (!SetFilingDate(m_strDate, given))
        throw UsageError(Say(NO_DATE, {MakeSafe(m_strDate)}));
}

FilerFields MergeFields(const GivenFilerFields& options, const GivenFilerFields& profile)
{
    FilerFields fields;
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n) {
        fields[n] = options[n] ? *options[n] : profile[n].value_or(std::string());
        fields.szOption[n] = options[n] ? FILER_FIELDS[n].szOption : nullptr;
    }
    return fields;
}

bool SetFilingDate(const std::string& strDate, GivenFilerFields& fields)
{
    if (strDate.size() != 10 || strDate[4] != '-' || strDate[7] != '-')
        return false;
    const std::string_view strAll = strDate;
    const int nYear = ReadDigits(strAll.substr(0, 4));
    const int nMonth = ReadDigits(strAll.substr(5, 2));
    const int nDay = ReadDigits(strAll.substr(8, 2));
    const std::chrono::year_month_day day(std::chrono::year(nYear),
                                          std::chrono::month(static_cast<unsigned>(nMonth)),
                                          std::chrono::day(static_cast<unsigned>(nDay)));
    if (nYear <= 0 || nMonth <= 0 || nDay <= 0 || !day.ok())
        return false;
    std::string strSlashes = strDate;
    strSlashes[4] = strSlashes[7] = '/';
    const int nEra = EraOf(strSlashes);
    if (nEra == 0)
        return false;
    fields[TEISHUTSU_ERA] = std::to_string(nEra);
    fields[TEISHUTSU_YEAR] = std::to_string(nYear - EraTable::Base(EraTable::Name(nEra)));
    fields[TEISHUTSU_MONTH] = std::to_string(nMonth);
    fields[TEISHUTSU_DAY] = std::to_string(nDay);
    return true;
}

}  // namespace host
