#pragma once

#include "KZCEkaValidItem.h"

/// Passes a date group that is filled as a whole or empty as a whole. How many columns the group
/// has depends on the record's kind in its first column. Records what it refuses by itself, with
/// its own code, also as a condition; from then on the base class records nothing more.
class KZCEkaValidExist_2 final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
