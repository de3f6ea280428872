#include "document/DocumentFile.h"

#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>

#include <filesystem>
#include <string_view>

#include "xml/XercesGuards.h"

namespace {

/// The path as the library names it in its messages: from the root, without "/./".
std::u16string SystemId(const char* szPath)
{
    const std::string_view strPath = szPath;
    const bool bRelative = !strPath.empty() && !strPath.starts_with('/');
    const std::string strFull =
        bRelative ? std::filesystem::current_path().string() + "/" + szPath : std::string(szPath);
    const CharToXMLCh text(strFull.c_str());
    std::u16string strId(text.Get());
    xercesc::XMLPlatformUtils::removeDotSlash(strId.data());
    if (bRelative)
        xercesc::XMLPlatformUtils::removeDotDotSlash(strId.data());
    strId.resize(std::char_traits<char16_t>::length(strId.c_str()));  // shorter now
    return strId;
}

}  // namespace

DocumentFile::DocumentFile(const char* szPath, xercesc::MemoryManager* pMemory)
    : InputSource(pMemory), m_eResult(KZCMacOSNative::readStream(szPath, m_strBytes))
{
    setSystemId(SystemId(szPath).c_str());
}

xercesc::BinInputStream* DocumentFile::makeStream() const
{
    using Result = KZCMacOSNative::ReadResult;
    if (m_eResult == Result::NOT_OPENED)
        return nullptr;
    if (m_eResult == Result::NOT_READ)
        throw xercesc::XMLPlatformUtilsException(__FILE__, __LINE__,
                                                 xercesc::XMLExcepts::File_CouldNotReadFromFile);
    return new (getMemoryManager()) xercesc::BinMemInputStream(
        reinterpret_cast<const XMLByte*>(m_strBytes.data()), m_strBytes.size(),
        xercesc::BinMemInputStream::BufOpt_Reference, getMemoryManager());
}
