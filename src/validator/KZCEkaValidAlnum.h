#pragma once

#include "KZCEkaValidItem.h"

/// Passes half-width letters, digits, hyphens and blanks; null and the empty text pass.
class KZCEkaValidAlnum final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
