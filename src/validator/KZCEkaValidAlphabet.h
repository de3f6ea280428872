#pragma once

#include "KZCEkaValidItem.h"

/// Passes half-width letters; null and the empty text pass.
class KZCEkaValidAlphabet final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
