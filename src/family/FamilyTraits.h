// What differs between the families in the steps that their requests share: one table to look at.
#pragma once

#include "KZCEkaCommon.h"
#include "validator/KZCArgValid.h"

/// Argument numbers of two arguments that depend on each other.
struct ArgumentPair
{
    long lFirst;
    long lSecond;
};

/// Argument numbers of a conversion on one path.
struct ConversionArguments
{
    ArgumentPair numbers;  ///< personal and corporate number
    ArgumentPair zip;      ///< both parts of the postal code; unused in the base family
};

struct FamilyTraits
{
    KZCEkaCommon::EXEC_MODE eExecMode;
    ConversionArguments plain;
    ConversionArguments el;  ///< those of the Finance family are the plain path's: wanted
    KZCArgValid_t eKeyCheck;
    /// Argument number of the procedure id; bit 0 is set on the plain path, which leaves an odd
    /// number as it is.
    long lProcedureArgument;
    /// Equal errors stand once in the detail table.
    bool bAlignsErrors;
    /// A fault of a plain request leaves the detail table empty and its error in the result store,
    /// and a plain check leaves the check flag up.
    bool bHidesPlainFault;
    /// A fault in the second reading of a file doesn't fail the check that it ends.
    bool bForgivesReload;
    /// The result of a request that fails in its closing steps is a failure, whatever it was.
    bool bFailsOnClosingFault;
};

inline constexpr FamilyTraits BASE_FAMILY = {
    .eExecMode = KZCEkaCommon::EXEC_MODE_ZEKA,
    .plain = {.numbers = {5, 6}, .zip = {0, 0}},
    .el = {.numbers = {4, 5}, .zip = {0, 0}},
    .eKeyCheck = ARG_KEY,
    .lProcedureArgument = 12,
    .bAlignsErrors = false,
    .bHidesPlainFault = false,
    .bForgivesReload = false,
    .bFailsOnClosingFault = false,
};

inline constexpr FamilyTraits FINANCE_FAMILY = {
    .eExecMode = KZCEkaCommon::EXEC_MODE_OTHER,
    .plain = {.numbers = {5, 6}, .zip = {19, 20}},
    .el = {.numbers = {5, 6}, .zip = {19, 20}},
    .eKeyCheck = ARG_KEY_FINANCE,
    .lProcedureArgument = 12,
    .bAlignsErrors = true,
    .bHidesPlainFault = false,
    .bForgivesReload = false,
    .bFailsOnClosingFault = false,
};

inline constexpr FamilyTraits CROSSBORDER_FAMILY = {
    .eExecMode = KZCEkaCommon::EXEC_MODE_OTHER,
    .plain = {.numbers = {9, 10}, .zip = {12, 13}},
    .el = {.numbers = {8, 9}, .zip = {11, 12}},
    .eKeyCheck = ARG_KEY_CROSSBORDER,
    .lProcedureArgument = 18,
    .bAlignsErrors = true,
    .bHidesPlainFault = true,
    .bForgivesReload = true,
    .bFailsOnClosingFault = true,
};
