#pragma once

#include "KZCEkaValidItem.h"

/// Passes katakana, full-width alphanumerics and printable ASCII but the comma, as Shift_JIS.
class KZCEkaValidMultikana_2 final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
