#pragma once

#include "KZCEkaValidColumnPair.h"

/// Passes if the two cells agree.
class KZCEkaValidContainColumn final : public KZCEkaValidColumnPair
{
public:
    using KZCEkaValidColumnPair::KZCEkaValidColumnPair;

private:
    KZCEkaMessage_t Verdict(bool bAgree) const override;
};
