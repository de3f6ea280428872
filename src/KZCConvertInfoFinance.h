// The conversion store of the Finance family.
#pragma once

#include "KZCConvertInfo.h"

class KZCConvertInfoFinance : public KZCConvertInfo
{
public:
    /// The instance of whatever class; a Finance store if there is none.
    static KZCConvertInfo* instance_finance();

protected:
    KZCConvertInfoFinance() = default;

    std::unique_ptr<KZCEkaCsvFile> MakeCsvFile() const override;
    std::unique_ptr<KZCEkaDefinition> MakeDefinition() const override;
    std::unique_ptr<KZCEkaITData> MakeITData() const override;
};
