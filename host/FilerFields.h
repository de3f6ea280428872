// The fields about the filer that a conversion takes from options or a profile.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

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
    FILER_FIELD_COUNT,
};

struct FilerFieldRow
{
    const char* szKey;     ///< name in a profile
    const char* szOption;  ///< name on the command line
    const char* szHelp;
};

/// In the order of the conversion's arguments, behind the paths of the CSV file and the document.
inline constexpr std::array<FilerFieldRow, FILER_FIELD_COUNT> FILER_FIELDS = {{
    {"zeimusho_cd", "--zeimusho-cd", "Tax office, 5 digits (required)"},
    {"nozeisha_id", "--nozeisha-id", "Filer's id, 16 digits (required)"},
    {"kojin_bango", "--kojin-bango", "Personal number, 12 digits; not with --hojin-bango"},
    {"hojin_bango", "--hojin-bango", "Corporate number, 13 digits; not with --kojin-bango"},
    {"nozeisha_nm", "--nozeisha-nm", "Filer's name, up to 30 characters (required)"},
    {"nozeisha_adr", "--nozeisha-adr", "Filer's address, up to 100 characters (required)"},
    {"daihyo_nm", "--daihyo-nm", "Representative's name, up to 30 characters"},
    {"dairi_id", "--dairi-id", "Agent's id, 16 digits"},
    {"dairi_nm", "--dairi-nm", "Agent's name, up to 30 characters"},
    {"dairi_adr", "--dairi-adr", "Agent's address, up to 100 characters"},
    {"tetsuzuki", "--tetsuzuki", "Procedure id; default: the one of the file's type id"},
    {"soft_name", "--soft-name", "Name of the software, up to 30 characters"},
}};
inline constexpr long CSV_PATH_ARGUMENT = 1;
inline constexpr long MOK_PATH_ARGUMENT = 2;
inline constexpr long FIRST_FILER_ARGUMENT = 3;

/// Nothing stands for a field that isn't given; an empty text is given, and empty.
using GivenFilerFields = std::array<std::optional<std::string>, FILER_FIELD_COUNT>;
using FilerFields = std::array<std::string, FILER_FIELD_COUNT>;

}  // namespace host
