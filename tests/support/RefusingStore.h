// A store whose files are refused as a test wants it.
#pragma once

#include <memory>
#include <string>

#include "KZCConvertInfoFinance.h"
#include "KZCEkaCsvFileFinance.h"
#include "KZCEkaITDataFinance.h"
#include "definition/KZCEkaDefinitionFinance.h"

/// Stands in for the store of the Finance or the CrossBorder family.
class RefusingStore final : public KZCConvertInfoFinance
{
public:
    /// \param nCode  What reading a file returns. It records nothing.
    static void Install(int nCode)
    {
        m_nCode = nCode;
        m_pInstance = std::make_unique<RefusingStore>();
    }

    _ConvertTable GetConvertTable(long lCsvDistKey) override
    {
        return FindOrMake(lCsvDistKey,
                          MAKERS_OF<Csv, KZCEkaDefinitionFinance, KZCEkaITDataFinance>);
    }

private:
    class Csv final : public KZCEkaCsvFileFinance
    {
    public:
        int ReadFile(const std::string& /*strPath*/) override { return m_nCode; }
    };

    static inline int m_nCode = 0;
};
