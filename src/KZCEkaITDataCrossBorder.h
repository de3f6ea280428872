// The IT section of a CrossBorder document.
#pragma once

#include "KZCEkaITDataFinance.h"

/// The same fields in the same order; what differs are the argument numbers and one check.
using KZCEkaITDataCrossBorder_t = KZCEkaITDataFinance_t;

class KZCEkaITDataCrossBorder : public KZCEkaITDataFinance
{
public:
    void Initialize(bool bPublic) override;
    std::string GetXml() const override;
    /// As SetITData, with the argument numbers of this family.
    virtual int SetITDataCrossBorder(KZCEkaITDataCrossBorder_t eId, const char* szValue);

    /// Valid until the next change; empty for an id out of range.
    const char* GetITDataCrossBorder(KZCEkaITDataCrossBorder_t eId) const
    {
        return GetValue(static_cast<int>(eId));
    }
};
