// The conversion store of the CrossBorder family.
#pragma once

#include "KZCConvertInfoFinance.h"

class KZCConvertInfoCrossBorder : public KZCConvertInfoFinance
{
public:
    /// The instance of whatever class; a CrossBorder store if there is none.
    static KZCConvertInfo* instance_crossborder();

private:
    KZCConvertInfoCrossBorder() = default;

    std::unique_ptr<KZCEkaCsvFile> MakeCsvFile() const override;
    std::unique_ptr<KZCEkaDefinition> MakeDefinition() const override;
    std::unique_ptr<KZCEkaITData> MakeITData() const override;
};
