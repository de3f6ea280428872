#pragma once

#include "KZCEkaValidDate.h"

/// Passes an era date that exists in the era that the record states, each era up to its real end.
class KZCEkaValidExistdate_2 final : public KZCEkaValidDate
{
public:
    KZCEkaValidExistdate_2(long lColumn, KZCEkaMessage_t eMessage);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;
};
