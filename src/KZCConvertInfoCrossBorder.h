// The conversion store of the CrossBorder family.
#pragma once

#include <string>

#include "KZCConvertInfoFinance.h"

class KZCConvertInfoCrossBorder : public KZCConvertInfoFinance
{
public:
    /// The instance of whatever class; a CrossBorder store if there is none.
    static KZCConvertInfo* instance_crossborder();

    int ReloadCsvFile(long lCsvDistKey, const std::string& strPath) override;
    _ConvertTable GetConvertTable(long lCsvDistKey) override;

private:
    KZCConvertInfoCrossBorder() = default;
};
