#include "KZCArgValid.h"

#include <array>

namespace {

constexpr ArgValidRow EXIST = {.szId = "exist"};
constexpr ArgValidRow NUMBER = {.szId = "number"};
constexpr ArgValidRow NUMBER_IF_FILLED = {.szId = "number", .szOuterId = "exist"};
constexpr ArgValidRow LVYSTRING = {.szId = "lvystring"};
constexpr ArgValidRow LVYSTRING_IF_FILLED = {.szId = "lvystring", .szOuterId = "exist"};
constexpr ArgValidRow TWO_CHARACTERS = {.szId = "charlength", .szMax = "2"};

constexpr ArgValidRow Length(const char* szLength)
{
    return {.szId = "length", .szValue = szLength};
}

constexpr ArgValidRow LengthIfFilled(const char* szLength)
{
    return {.szId = "length", .szValue = szLength, .szOuterId = "exist"};
}

constexpr ArgValidRow Charlength(const char* szMax)
{
    return {.szId = "charlength", .szMax = szMax};
}

constexpr ArgValidRow CharlengthIfFilled(const char* szMax)
{
    return {.szId = "charlength", .szMax = szMax, .szOuterId = "exist"};
}

constexpr ArgValidRow Range(const char* szMin, const char* szMax)
{
    return {.szId = "range", .szMin = szMin, .szMax = szMax};
}

constexpr ArgValidRow RangeIfFilled(const char* szMin, const char* szMax)
{
    return {.szId = "range", .szMin = szMin, .szMax = szMax, .szOuterId = "exist"};
}

constexpr ArgValidRow Extension(const char* szValue)
{
    return {.szId = "extension", .szValue = szValue};
}

constexpr ArgValidRow Existpath(const char* szValue)
{
    return {.szId = "existpath", .szValue = szValue};
}

constexpr ArgValidRow ProcedureCode(const char* szValue)
{
    return {.szId = "contain", .szValue = szValue, .eMessage = HE70010E};
}

constexpr std::array CSV_PATH = {EXIST, Extension(".txt .TXT .csv .CSV"), Existpath("file")};
constexpr std::array MOK_PATH = {EXIST, Extension(".mok .MOK"), Existpath("dir")};
constexpr std::array KEY = {EXIST, Range("1", "5")};
constexpr std::array ZEIMUSHO_CD = {EXIST, NUMBER, Length("5"), ArgValidRow{.szId = "taxoffice"}};
constexpr std::array NOZEISHA_ID = {EXIST, NUMBER, Length("16")};
constexpr std::array KOJINBANGO = {NUMBER_IF_FILLED, LengthIfFilled("12")};
constexpr std::array HOJINBANGO = {NUMBER_IF_FILLED, LengthIfFilled("13")};
constexpr std::array NOZEISHA_NM = {EXIST, Charlength("30"), LVYSTRING};
constexpr std::array NOZEISHA_ADR = {EXIST, Charlength("100"), LVYSTRING};
constexpr std::array OPTIONAL_NAME = {CharlengthIfFilled("30"), LVYSTRING_IF_FILLED};
constexpr std::array DAIRI_ID = {NUMBER_IF_FILLED, LengthIfFilled("16")};
constexpr std::array DAIRI_ADR = {CharlengthIfFilled("100"), LVYSTRING_IF_FILLED};
constexpr std::array PROCEDURE_CD = {
    ProcedureCode("PGE5010 PGE5020 PGE5030 PGE5040 PGE5050 PGE5060 PGE5070 PGE5080 PGE5090")};
constexpr std::array SOFT_NAME = {
    EXIST, ArgValidRow{.szId = "charlength", .szMax = "30", .eMessage = HE70007E},
    LVYSTRING_IF_FILLED};
constexpr std::array KEY_FINANCE = {EXIST, Range("1", "16")};
constexpr std::array PROCEDURE_CD_FINANCE = {
    ProcedureCode("PGE2015 PGE2025 PGE2030 PGE2040 PGE2055 PGE2065 PGE2070 PGE2080 PGE2095 "
                  "PGE2105 PGE2115 PGE2125 PGE2135 PGE2140 PGE2150 PGE2160 PGE1630 PGE1640")};
constexpr std::array ERA = {EXIST, Length("1"),
                            ArgValidRow{.szId = "contain", .szValue = "1 2 3 4 5"}};
constexpr std::array YY = {EXIST, NUMBER_IF_FILLED, TWO_CHARACTERS, RangeIfFilled("1", "99")};
constexpr std::array MM = {EXIST, NUMBER_IF_FILLED, TWO_CHARACTERS, RangeIfFilled("1", "12")};
constexpr std::array DD = {EXIST, NUMBER_IF_FILLED, TWO_CHARACTERS, RangeIfFilled("1", "31")};
constexpr std::array ZIP1 = {NUMBER_IF_FILLED, LengthIfFilled("3")};
constexpr std::array ZIP2 = {NUMBER_IF_FILLED, LengthIfFilled("4")};
constexpr std::array KEY_CROSSBORDER = {EXIST, Range("1", "10")};
constexpr std::array PROCEDURE_CD_CROSSBORDER = {ProcedureCode("PGE1650 PGE1660")};

using Rows = std::span<const ArgValidRow>;

/// By type, from 1.
constexpr std::array<Rows, ARG_PROCEDURE_CD_CROSSBORDER> ROWS = {
    CSV_PATH,
    MOK_PATH,
    KEY,
    ZEIMUSHO_CD,
    NOZEISHA_ID,
    CSV_PATH,
    KOJINBANGO,
    HOJINBANGO,
    NOZEISHA_NM,
    NOZEISHA_ADR,
    OPTIONAL_NAME,
    DAIRI_ID,
    OPTIONAL_NAME,
    DAIRI_ADR,
    PROCEDURE_CD,
    SOFT_NAME,
    KEY_FINANCE,
    PROCEDURE_CD_FINANCE,
    ERA,
    YY,
    MM,
    DD,
    ZIP1,
    ZIP2,
    KEY_CROSSBORDER,
    PROCEDURE_CD_CROSSBORDER,
};

}  // namespace

std::span<const ArgValidRow> GetArgValidRows(KZCArgValid_t eType)
{
    const auto nRow = static_cast<std::size_t>(eType) - 1;
    return nRow < ROWS.size() ? ROWS[nRow] : Rows();
}
