// The fields about the filer that a conversion takes from options or a profile.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "base/Language.h"
#include "form/Family.h"

namespace host {

enum FilerField : std::size_t
{
    ZEIMUSHO_CD,
    NOZEISHA_ID,
    KOJIN_BANGO,
    HOJIN_BANGO,
    NOZEISHA_NM,
    NOZEISHA_ADR,
    DAIHYO_NM,
    DAIRI_ID,
    DAIRI_NM,
    DAIRI_ADR,
    TETSUZUKI,
    SOFT_NAME,
    TEISHUTSU_ERA,
    TEISHUTSU_YEAR,
    TEISHUTSU_MONTH,
    TEISHUTSU_DAY,
    NOZEISHA_ZIP1,
    NOZEISHA_ZIP2,
    FILER_FIELD_COUNT,
};

struct FilerFieldRow
{
    const char* szKey;     ///< name in a profile
    const char* szOption;  ///< name on the command line
    Text help;
};

/// By field.
inline constexpr std::array<FilerFieldRow, FILER_FIELD_COUNT> FILER_FIELDS = {{
    {"zeimusho_cd",
     "--zeimusho-cd",
     {"Tax office, 5 digits (required)", "税務署番号、5桁（必須）"}},
    {"nozeisha_id",
     "--nozeisha-id",
     {"Filer's id, 16 digits (required)", "利用者識別番号、16桁（必須）"}},
    {"kojin_bango",
     "--kojin-bango",
     {"Personal number, 12 digits; not with --hojin-bango",
      "個人番号、12桁。--hojin-bango とは同時に指定できません"}},
    {"hojin_bango",
     "--hojin-bango",
     {"Corporate number, 13 digits; not with --kojin-bango",
      "法人番号、13桁。--kojin-bango とは同時に指定できません"}},
    {"nozeisha_nm",
     "--nozeisha-nm",
     {"Filer's name, up to 30 characters (required)",
      "納税者の氏名または名称、30文字以内（必須）"}},
    {"nozeisha_adr",
     "--nozeisha-adr",
     {"Filer's address, up to 100 characters (required)", "納税者の住所、100文字以内（必須）"}},
    {"daihyo_nm",
     "--daihyo-nm",
     {"Representative's name, up to 30 characters", "代表者の氏名、30文字以内"}},
    {"dairi_id", "--dairi-id", {"Agent's id, 16 digits", "代理人の利用者識別番号、16桁"}},
    {"dairi_nm", "--dairi-nm", {"Agent's name, up to 30 characters", "代理人の氏名、30文字以内"}},
    {"dairi_adr",
     "--dairi-adr",
     {"Agent's address, up to 100 characters", "代理人の住所、100文字以内"}},
    {"tetsuzuki",
     "--tetsuzuki",
     {"Procedure id; default: the one of the file's type id",
      "手続ID。省略するとファイルの申請区分のもの"}},
    {"soft_name",
     "--soft-name",
     {"Name of the software, up to 30 characters", "ソフトウェアの名称、30文字以内"}},
    {"teishutsu_era",
     "--teishutsu-era",
     {"Day of filing: era, 1 to 5 as in the file", "提出日の元号、1～5（CSVと同じ番号）"}},
    {"teishutsu_year",
     "--teishutsu-year",
     {"Day of filing: year of the era", "提出日の年（元号の年）"}},
    {"teishutsu_month", "--teishutsu-month", {"Day of filing: month", "提出日の月"}},
    {"teishutsu_day", "--teishutsu-day", {"Day of filing: day", "提出日の日"}},
    {"nozeisha_zip1",
     "--nozeisha-zip1",
     {"Filer's postal code, first 3 digits", "納税者の郵便番号の上3桁"}},
    {"nozeisha_zip2",
     "--nozeisha-zip2",
     {"Filer's postal code, last 4 digits", "納税者の郵便番号の下4桁"}},
}};

inline constexpr long CSV_PATH_ARGUMENT = 1;
inline constexpr long MOK_PATH_ARGUMENT = 2;
inline constexpr long FIRST_FILER_ARGUMENT = 3;

/// The fields that a conversion of the base family takes, in the order of its arguments behind the
/// paths of the CSV file and the document; below those of the other families.
inline constexpr std::array<FilerField, 12> BASE_ARGUMENTS = {
    ZEIMUSHO_CD, NOZEISHA_ID, KOJIN_BANGO, HOJIN_BANGO, NOZEISHA_NM, NOZEISHA_ADR,
    DAIHYO_NM,   DAIRI_ID,    DAIRI_NM,    DAIRI_ADR,   TETSUZUKI,   SOFT_NAME,
};
inline constexpr std::array<FilerField, FILER_FIELD_COUNT> FINANCE_ARGUMENTS = {
    ZEIMUSHO_CD,    NOZEISHA_ID,     KOJIN_BANGO,   HOJIN_BANGO, NOZEISHA_NM,   NOZEISHA_ADR,
    DAIHYO_NM,      DAIRI_ID,        DAIRI_NM,      DAIRI_ADR,   TETSUZUKI,     TEISHUTSU_ERA,
    TEISHUTSU_YEAR, TEISHUTSU_MONTH, TEISHUTSU_DAY, SOFT_NAME,   NOZEISHA_ZIP1, NOZEISHA_ZIP2,
};
inline constexpr std::array<FilerField, FILER_FIELD_COUNT> CROSSBORDER_ARGUMENTS = {
    ZEIMUSHO_CD, TEISHUTSU_ERA, TEISHUTSU_YEAR, TEISHUTSU_MONTH, TEISHUTSU_DAY, NOZEISHA_ID,
    KOJIN_BANGO, HOJIN_BANGO,   NOZEISHA_NM,    NOZEISHA_ZIP1,   NOZEISHA_ZIP2, NOZEISHA_ADR,
    DAIHYO_NM,   DAIRI_ID,      DAIRI_NM,       DAIRI_ADR,       TETSUZUKI,     SOFT_NAME,
};

std::span<const FilerField> ArgumentsOf(Family eFamily);
/// The field behind an argument (from 1) of the family's conversion, or nothing.
std::optional<FilerField> FieldOfArgument(Family eFamily, long lArgument);
/// The family's conversion takes the field.
bool Takes(Family eFamily, FilerField eField);

/// Nothing stands for a field that isn't given; an empty text is given, and empty.
using GivenFilerFields = std::array<std::optional<std::string>, FILER_FIELD_COUNT>;

/// The fields for a conversion, whatever its family.
struct FilerFields
{
    std::array<std::string, FILER_FIELD_COUNT> value;
    /// The option that gave the field; null for one of the profile, or none.
    std::array<const char*, FILER_FIELD_COUNT> szOption{};

    std::string& operator[](std::size_t nField) { return value[nField]; }
    const std::string& operator[](std::size_t nField) const { return value[nField]; }
};

}  // namespace host
