#pragma once

#include "KZCEkaValidDate.h"

/// Passes an era date that exists. The fourth era counts up to March of its year 32.
class KZCEkaValidExistdate final : public KZCEkaValidDate
{
public:
    KZCEkaValidExistdate(long lColumn, KZCEkaMessage_t eMessage);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
