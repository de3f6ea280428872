// A file as a source of the XML library.
#pragma once

#include <xercesc/sax/InputSource.hpp>

#include <cstddef>
#include <string>

#include "KZCMacOSNative.h"

/// Reads the file when it is made. What went wrong is told by the library itself, in its own words,
/// once it asks for the bytes.
class DocumentFile final : public xercesc::InputSource
{
public:
    /// \param szPath  UTF-8 in every locale, which the library's own file layer doesn't grant.
    /// \param pMemory  Lives longer than the source.
    DocumentFile(const char* szPath, xercesc::MemoryManager* pMemory);

    /// Null if the file could not be opened. Throws xercesc::XMLException if it could not be read.
    xercesc::BinInputStream* makeStream() const override;

    std::size_t Size() const { return m_strBytes.size(); }

private:
    std::string m_strBytes;
    KZCMacOSNative::ReadResult m_eResult;
};
