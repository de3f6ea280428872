#pragma once

#include "KZCEkaValidItem.h"

/// Passes full-width characters; null and the empty text pass.
class KZCEkaValidMultibyte final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
