#pragma once

#include "KZCEkaValidItem.h"

/// Passes a path whose file ("file") can be read and isn't empty, or whose folder ("dir") exists.
class KZCEkaValidExistpath final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    void SetParam(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
};
