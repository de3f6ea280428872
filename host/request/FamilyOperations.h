// The operations of the library by family.
#pragma once

#include <KZEkaMok/KZEkaMok.h>

#include <memory>
#include <string>

#include "form/Family.h"
#include "request/FilerFields.h"

namespace host {

/// Every result may be null: then the library could not even start.
class FamilyOperations
{
public:
    using Result = std::shared_ptr<KZIConvertResultEka>;

    /// \param library  Looked at for as long as the object lives.
    FamilyOperations(KZICsvConvMokEka& library, Family eFamily)
        : m_library(library), m_eFamily(eFamily)
    {
    }

    Family OfFamily() const { return m_eFamily; }
    Result Check(const std::string& strCsvPath) const;
    Result Convert(const std::string& strCsvPath,
                   const std::string& strMokPath,
                   const FilerFields& fields) const;
    /// Makes the same document in memory. Forgets the file again.
    bool CanMakeDocument(const std::string& strCsvPath, const FilerFields& fields) const;

private:
    Result ConvertKept(const FilerFields& fields) const;
    Result CheckAndKeep(const std::string& strCsvPath) const;

    KZICsvConvMokEka& m_library;
    Family m_eFamily;
};

bool Passed(const FamilyOperations::Result& pResult);

}  // namespace host
