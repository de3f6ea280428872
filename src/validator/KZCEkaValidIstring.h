#pragma once

#include "KZCEkaValidItem.h"

/// Passes characters of the filing service: assigned codes whose Unicode image is in its table.
class KZCEkaValidIstring final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
