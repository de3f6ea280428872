// A look at the conversion store that doesn't make one.
#pragma once

#include <ostream>
#include <typeinfo>

#include "KZCConvertInfo.h"
#include "KZCConvertInfoCrossBorder.h"
#include "KZCConvertInfoFinance.h"

enum class StoreKind
{
    None,
    Base,
    Finance,
    CrossBorder,
    Other,
};

inline std::ostream& operator<<(std::ostream& stream, StoreKind eKind)
{
    constexpr const char* NAMES[] = {"None", "Base", "Finance", "CrossBorder", "Other"};
    return stream << NAMES[static_cast<int>(eKind)];
}

class StorePeek final : public KZCConvertInfo
{
public:
    /// Null if there is none.
    static const KZCConvertInfo* Get() { return m_pInstance.get(); }

    static StoreKind Kind()
    {
        if (!m_pInstance)
            return StoreKind::None;
        const KZCConvertInfo& store = *m_pInstance;
        if (typeid(store) == typeid(KZCConvertInfo))
            return StoreKind::Base;
        if (typeid(store) == typeid(KZCConvertInfoFinance))
            return StoreKind::Finance;
        if (typeid(store) == typeid(KZCConvertInfoCrossBorder))
            return StoreKind::CrossBorder;
        return StoreKind::Other;
    }
};
