#pragma once

#include "KZCEkaValidItem.h"
#include "TokenList.h"

/// Passes a path that ends in one of a list of extensions, dots included, case told apart.
class KZCEkaValidExtension final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    void SetParam(const char* szValue);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    TokenList m_list;
};
