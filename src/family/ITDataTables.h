// The fields of the IT section, family by family, in the order of their ids and of the document.
#pragma once

#include <array>
#include <cstddef>

#include "validator/KZCArgValid.h"

/// One field of the IT section as its family's table has it.
struct ITDataRow
{
    const char* szGroup;     ///< tag of the element that the row belongs to, or null
    const char* szOwnTag;    ///< tag of the element that the row opens, or null for a child
    const char* szChildTag;  ///< tag inside the group, or null
    KZCArgValid_t eCheck;    ///< 0 for a row without a check
    long lPublicColumn;      ///< argument number on the plain path, or -1
    long lPrivateColumn;     ///< argument number on the EL path, or -1
};

/// Column of a field that no argument fills.
inline constexpr long NO_ARGUMENT = -1;

inline constexpr std::array<ITDataRow, 16> ITDataTable = {{
    {nullptr, nullptr, nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"ZEIMUSHO", "ZEIMUSHO", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"ZEIMUSHO", nullptr, "gen:zeimusho_CD", ARG_ZEIMUSHO_CD, 3, 2},
    {"NOZEISHA_ID", "NOZEISHA_ID", nullptr, ARG_NOZEISHA_ID, 4, 3},
    {"NOZEISHA_BANGO", "NOZEISHA_BANGO", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"NOZEISHA_BANGO", nullptr, "gen:kojinbango", ARG_KOJINBANGO, 5, 4},
    {"NOZEISHA_BANGO", nullptr, "gen:hojinbango", ARG_HOJINBANGO, 6, 5},
    {"NOZEISHA_NM", "NOZEISHA_NM", nullptr, ARG_NOZEISHA_NM, 7, 6},
    {"NOZEISHA_ADR", "NOZEISHA_ADR", nullptr, ARG_NOZEISHA_ADR, 8, 7},
    {"DAIHYO_NM", "DAIHYO_NM", nullptr, ARG_DAIHYO_NM, 9, 8},
    {"DAIRI_ID", "DAIRI_ID", nullptr, ARG_DAIRI_ID, 10, 9},
    {"DAIRI_NM", "DAIRI_NM", nullptr, ARG_DAIRI_NM, 11, 10},
    {"DAIRI_ADR", "DAIRI_ADR", nullptr, ARG_DAIRI_ADR, 12, 11},
    {"TETSUZUKI", "TETSUZUKI", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"TETSUZUKI", nullptr, "procedure_CD", ARG_PROCEDURE_CD, 13, 12},
    {nullptr, nullptr, nullptr, ARG_SOFT_NAME, 14, NO_ARGUMENT},
}};

inline constexpr std::array<ITDataRow, 24> ITDataTableFINANCE = {{
    {nullptr, nullptr, nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"ZEIMUSHO", "ZEIMUSHO", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"ZEIMUSHO", nullptr, "gen:zeimusho_CD", ARG_ZEIMUSHO_CD, 3, 2},
    {"TEISYUTSU_DAY", "TEISYUTSU_DAY", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"TEISYUTSU_DAY", nullptr, "gen:era", ARG_ERA, 14, 13},
    {"TEISYUTSU_DAY", nullptr, "gen:yy", ARG_YY, 15, 14},
    {"TEISYUTSU_DAY", nullptr, "gen:mm", ARG_MM, 16, 15},
    {"TEISYUTSU_DAY", nullptr, "gen:dd", ARG_DD, 17, 16},
    {"NOZEISHA_ID", "NOZEISHA_ID", nullptr, ARG_NOZEISHA_ID, 4, 3},
    {"NOZEISHA_BANGO", "NOZEISHA_BANGO", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"NOZEISHA_BANGO", nullptr, "gen:kojinbango", ARG_KOJINBANGO, 5, 4},
    {"NOZEISHA_BANGO", nullptr, "gen:hojinbango", ARG_HOJINBANGO, 6, 5},
    {"NOZEISHA_NM", "NOZEISHA_NM", nullptr, ARG_NOZEISHA_NM, 7, 6},
    {"NOZEISHA_ZIP", "NOZEISHA_ZIP", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"NOZEISHA_ZIP", nullptr, "gen:zip1", ARG_ZIP1, 19, 18},
    {"NOZEISHA_ZIP", nullptr, "gen:zip2", ARG_ZIP2, 20, 19},
    {"NOZEISHA_ADR", "NOZEISHA_ADR", nullptr, ARG_NOZEISHA_ADR, 8, 7},
    {"DAIHYO_NM", "DAIHYO_NM", nullptr, ARG_DAIHYO_NM, 9, 8},
    {"DAIRI_ID", "DAIRI_ID", nullptr, ARG_DAIRI_ID, 10, 9},
    {"DAIRI_NM", "DAIRI_NM", nullptr, ARG_DAIRI_NM, 11, 10},
    {"DAIRI_ADR", "DAIRI_ADR", nullptr, ARG_DAIRI_ADR, 12, 11},
    {"TETSUZUKI", "TETSUZUKI", nullptr, ARG_NONE, NO_ARGUMENT, NO_ARGUMENT},
    {"TETSUZUKI", nullptr, "procedure_CD", ARG_PROCEDURE_CD_FINANCE, 13, 12},
    {nullptr, nullptr, nullptr, ARG_SOFT_NAME, 18, 17},
}};

namespace ITDataTables {

/// What the CrossBorder family changes in a row of the Finance family.
struct CrossBorderField
{
    std::size_t nId;
    KZCArgValid_t eCheck;
    long lPublicColumn;
    long lPrivateColumn;
};

inline constexpr std::array<CrossBorderField, 18> CROSSBORDER_FIELDS = {{
    {2, ARG_ZEIMUSHO_CD, 3, 2},
    {4, ARG_ERA, 4, 3},
    {5, ARG_YY, 5, 4},
    {6, ARG_MM, 6, 5},
    {7, ARG_DD, 7, 6},
    {8, ARG_NOZEISHA_ID, 8, 7},
    {10, ARG_KOJINBANGO, 9, 8},
    {11, ARG_HOJINBANGO, 10, 9},
    {12, ARG_NOZEISHA_NM, 11, 10},
    {14, ARG_ZIP1, 12, 11},
    {15, ARG_ZIP2, 13, 12},
    {16, ARG_NOZEISHA_ADR, 14, 13},
    {17, ARG_DAIHYO_NM, 15, 14},
    {18, ARG_DAIRI_ID, 16, 15},
    {19, ARG_DAIRI_NM, 17, 16},
    {20, ARG_DAIRI_ADR, 18, 17},
    {22, ARG_PROCEDURE_CD_CROSSBORDER, 19, 18},
    {23, ARG_SOFT_NAME, 20, 19},
}};

consteval auto MakeCrossBorderTable()
{
    auto table = ITDataTableFINANCE;
    for (const CrossBorderField& field : CROSSBORDER_FIELDS) {
        ITDataRow& row = table[field.nId];
        row.eCheck = field.eCheck;
        row.lPublicColumn = field.lPublicColumn;
        row.lPrivateColumn = field.lPrivateColumn;
    }
    return table;
}

}  // namespace ITDataTables

inline constexpr std::array<ITDataRow, 24> ITDataTableCROSSBORDER =
    ITDataTables::MakeCrossBorderTable();
