#pragma once

#include "KZCEkaValidItem.h"
#include "TokenList.h"

/// Passes a value that is one of a list of texts.
class KZCEkaValidContain final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    void SetParam(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    TokenList m_list;
};
