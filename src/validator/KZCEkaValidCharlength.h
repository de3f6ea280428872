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

    /// Characters of a value in the encoding of the check flag; 0 if it can't be decoded. Half of a
    /// surrogate pair has no length and ends the count.
    static long CountCharacters(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    LengthLimit m_limit;
};
