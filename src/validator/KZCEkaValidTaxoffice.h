#pragma once

#include "KZCEkaValidItem.h"

/// Passes the code of a tax office.
class KZCEkaValidTaxoffice final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
