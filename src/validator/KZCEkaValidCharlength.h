#pragma once

#include "KZCEkaValidItem.h"
#include "LengthLimit.h"

/// Passes a value of the right number of characters, wide and narrow each counting 1.
class KZCEkaValidCharlength final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue  Exact length, or empty. \param szMax  Largest length, read if szValue is
    /// empty.
    void SetParam(const char* szValue, const char* szMax);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    LengthLimit m_limit;
};
