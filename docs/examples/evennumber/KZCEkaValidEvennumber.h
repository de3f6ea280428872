#pragma once

#include "KZCEkaValidItem.h"

/// Passes half-width digits whose last one is even; null and the empty text pass.
class KZCEkaValidEvennumber final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
