#pragma once

#include "KZCEkaValidItem.h"

/// Passes printable ASCII with carriage returns and line feeds; null and the empty text pass.
class KZCEkaValidAlnumsbl final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
