// A resource folder of a test's own.
#pragma once

#include <optional>
#include <string>

#include "Environment.h"
#include "SmallDefinition.h"
#include "TempFolder.h"

/// Makes a folder KZEkaMok.bundle and has the library use it for as long as the object lives.
class Bundle
{
public:
    /// \param definition  Text of KZEkaDefine.xml. \param taxOffices  Text of TaxOffices.xml.
    /// Nothing leaves the file out.
    explicit Bundle(const std::optional<std::string>& definition = SMALL_DEFINITION,
                    const std::optional<std::string>& taxOffices = SMALL_TAX_OFFICES)
        : m_strPath(m_folder.MakeFolder("KZEkaMok.bundle")),
          m_environment("KZEKAMOK_BUNDLE", m_strPath)
    {
        if (definition)
            Write("KZEkaDefine.xml", *definition);
        if (taxOffices)
            Write("TaxOffices.xml", *taxOffices);
    }

    /// The folder itself.
    const std::string& Path() const { return m_strPath; }
    /// Full path of something in it, whether or not it exists.
    std::string Path(const std::string& strName) const { return m_strPath + "/" + strName; }
    /// Makes or replaces a file, such as "Finance/PGE2015vld.xml". \return Its full path.
    std::string Write(const std::string& strName, const std::string& strBytes) const
    {
        return m_folder.Write("KZEkaMok.bundle/" + strName, strBytes);
    }

private:
    TempFolder m_folder;
    std::string m_strPath;
    Environment m_environment;
};
