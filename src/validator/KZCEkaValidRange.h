#pragma once

#include "KZCEkaValidItem.h"
#include "NumberRange.h"

/// Passes a number from min to max. A limit that is left out is 0.
class KZCEkaValidRange final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    void SetParam(const char* szMin, const char* szMax);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    NumberRange m_range;
};
