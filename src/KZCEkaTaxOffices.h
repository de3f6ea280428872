// The registry of tax offices.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>

/// Process-wide. Filled from TaxOffices.xml by Initialize and asked by the check items.
class KZCEkaTaxOffices
{
public:
    static KZCEkaTaxOffices* instance();
    static void destroy();

    virtual ~KZCEkaTaxOffices() = default;

    /// Reads the table once; a failed reading can be tried again. Throws FAULT if it can't be read.
    void Initialize();
    /// An office of type 5 has this code. Throws FAULT before Initialize has passed.
    bool IsExistCode(const char* szCode) const;
    /// The first office of type 5 with this code has this name (UTF-8). Throws as above.
    bool IsValidName(const char* szCode, const char* szName) const;

private:
    using OfficeMap = std::unordered_map<std::string, std::string>;

    const OfficeMap& Offices(const char* szFunction) const;

    static inline std::unique_ptr<KZCEkaTaxOffices> m_pInstance;

    std::unique_ptr<OfficeMap> m_pOffices;  ///< name by code, first entry wins; null until read
};
