#pragma once

#include "KZCEkaValidItem.h"

/// Passes a filled value.
class KZCEkaValidExist final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
