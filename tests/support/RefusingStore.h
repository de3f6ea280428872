// A store whose files are refused as a test wants it.
#pragma once

#include <memory>
#include <string>

#include "KZCConvertInfoFinance.h"
#include "KZCEkaCsvFileFinance.h"

/// Stands in for the store of the Finance or the CrossBorder family.
class RefusingStore final : public KZCConvertInfoFinance
{
public:
    /// \param nCode  What reading a file returns. It records nothing.
    static void Install(int nCode)
    {
        auto pStore = std::make_unique<RefusingStore>();
        pStore->m_nCode = nCode;
        m_pInstance = std::move(pStore);
    }

private:
    class Csv final : public KZCEkaCsvFileFinance
    {
    public:
        explicit Csv(int nCode) : m_nCode(nCode) {}
        int ReadFile(const std::string& /*strPath*/) override { return m_nCode; }

    private:
        int m_nCode;
    };

    std::unique_ptr<KZCEkaCsvFile> MakeCsvFile() const override
    {
        return std::make_unique<Csv>(m_nCode);
    }

    int m_nCode = 0;
};
