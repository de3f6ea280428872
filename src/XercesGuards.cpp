#include "XercesGuards.h"

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUni.hpp>

static_assert(sizeof(XMLCh) == sizeof(char16_t));

XercesSession::XercesSession()
{
    xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale);
}

XercesSession::~XercesSession()
{
    xercesc::XMLPlatformUtils::Terminate();
}

XMLChToChar::XMLChToChar(const XMLCh* szText)
{
    if (szText == nullptr)
        return;
    const xercesc::TranscodeToStr text(szText, "UTF-8");
    m_strText.assign(reinterpret_cast<const char*>(text.str()), text.length());
}

CharToXMLCh::CharToXMLCh(const char* szText)
{
    if (szText == nullptr)
        return;
    const xercesc::TranscodeFromStr text(reinterpret_cast<const XMLByte*>(szText),
                                         std::char_traits<char>::length(szText), "UTF-8");
    m_strText.assign(reinterpret_cast<const char16_t*>(text.str()), text.length());
}
