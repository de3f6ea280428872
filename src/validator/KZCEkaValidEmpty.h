#pragma once

#include "KZCEkaValidItem.h"

/// Passes null and the empty text.
class KZCEkaValidEmpty final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
