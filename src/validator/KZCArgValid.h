// The checks of call arguments and IT fields.
#pragma once

#include <span>

#include "EkaMsgTable.h"

/// Number of a row set, 1 to 26; 0 for a field without a check.
enum KZCArgValid_t : int
{
    ARG_NONE = 0,
    ARG_CSV_PATH = 1,
    ARG_MOK_PATH = 2,
    ARG_KEY = 3,
    ARG_ZEIMUSHO_CD = 4,
    ARG_NOZEISHA_ID = 5,
    ARG_REFUSED = 6,
    ARG_KOJINBANGO = 7,
    ARG_HOJINBANGO = 8,
    ARG_NOZEISHA_NM = 9,
    ARG_NOZEISHA_ADR = 10,
    ARG_DAIHYO_NM = 11,
    ARG_DAIRI_ID = 12,
    ARG_DAIRI_NM = 13,
    ARG_DAIRI_ADR = 14,
    ARG_PROCEDURE_CD = 15,
    ARG_SOFT_NAME = 16,
    ARG_KEY_FINANCE = 17,
    ARG_PROCEDURE_CD_FINANCE = 18,
    ARG_ERA = 19,
    ARG_YY = 20,
    ARG_MM = 21,
    ARG_DD = 22,
    ARG_ZIP1 = 23,
    ARG_ZIP2 = 24,
    ARG_KEY_CROSSBORDER = 25,
    ARG_PROCEDURE_CD_CROSSBORDER = 26,
};

/// One check of an argument. Absent texts are empty, never null.
struct ArgValidRow
{
    long lColumn = -1;
    const char* szId = "";
    const char* szValue = "";
    const char* szMin = "";
    const char* szMax = "";
    long lOuterColumn = -1;
    const char* szOuterId = "";  ///< empty for none
    const char* szOuterValue = "";
    const char* szOuterMin = "";
    const char* szOuterMax = "";
    KZCEkaMessage_t eMessage = MSG_NONE;
};

/// The rows of a type in order; empty for numbers outside 1 to 26.
std::span<const ArgValidRow> GetArgValidRows(KZCArgValid_t eType);
