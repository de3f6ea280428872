#pragma once

#include "KZCEkaValidItem.h"

/// Passes full-width katakana and the full-width blank, read as Shift_JIS byte pairs.
class KZCEkaValidMultikana final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
