#pragma once

#include "KZCEkaValidItem.h"

/// Passes a value made of half-width digits only; null and the empty text pass.
class KZCEkaValidNumber final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
