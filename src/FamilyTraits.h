// What differs between the families in the steps that their requests share.
#pragma once

#include "KZCEkaCommon.h"

/// Argument numbers of the two taxpayer numbers.
struct NumberArguments
{
    long lKojinBango;
    long lHojinBango;
};

struct FamilyTraits
{
    KZCEkaCommon::EXEC_MODE eExecMode;
    NumberArguments plainNumbers;  ///< on the plain path
    NumberArguments elNumbers;     ///< on the EL path
};

inline constexpr FamilyTraits BASE_FAMILY = {KZCEkaCommon::EXEC_MODE_ZEKA, {5, 6}, {4, 5}};
