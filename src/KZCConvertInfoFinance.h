// The conversion store of the Finance family.
#pragma once

#include <string>

#include "KZCConvertInfo.h"

class KZCConvertInfoFinance : public KZCConvertInfo
{
public:
    /// The instance of whatever class; a Finance store if there is none.
    static KZCConvertInfo* instance_finance();

    int ReloadCsvFile(long lCsvDistKey, const std::string& strPath) override;
    _ConvertTable GetConvertTable(long lCsvDistKey) override;

protected:
    KZCConvertInfoFinance() = default;
};
