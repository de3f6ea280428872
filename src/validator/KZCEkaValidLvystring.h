#pragma once

#include "KZCEkaValidItem.h"

/// Passes the characters that the filing service's documents may carry. A line feed is one of them
/// only with the parameter "allow_LF".
class KZCEkaValidLvystring final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    void SetParam(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
    bool m_bAllowLineFeed = false;
};
